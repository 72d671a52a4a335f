// Truncated and corrupted packages: what is rejected, and that the old tree is restored.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "faults/hostile-package.h"
#include "faults/sweep.h"
#include "mac/mac-service.h"
#include "service/extractor.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::HostilePackage;
using test::Sandbox;
using test::Tree;

/// The upgrade of a sandbox in this process: a hundred times faster than a start.
class Transaction : public MacService {
 public:
  explicit Transaction(Sandbox const& sandbox) : package_(sandbox.Package()) {
    app_path = ustring(sandbox.App());
  }
  /// Like the program's, with known paths.
  int ExtractPackage() override {
    fs::create_directories(app_path.c_str());
    Extractor extractor;
    extractor.package_path = ustring(package_);
    extractor.dest_path = app_path;
    return extractor.Extract();
  }

 private:
  std::string package_;
};

class DamagedPackage : public HostilePackage {
 protected:
  /// Upgrades from the old tree with these bytes as the package. If they are rejected, the old tree
  /// must be back.
  int Extract(std::string const& bytes) {
    sandbox_.CarryPackage(bytes);
    Restore();
    int const result = Transaction(sandbox_).PrepareUserEnv();
    EXPECT_TRUE(result == 0 || IsRolledBack());
    EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
    return result;
  }
  Tree Extracted() const { return test::ReadTree(sandbox_.App()); }
};

TEST_F(DamagedPackage, CompressedAndTruncatedAtAnyBlockIsRejected) {
  std::mt19937 random(1);
  std::vector<Entry> entries = Sandbox::Client(200);
  for (char& byte : entries[3].content) byte = static_cast<char>(random());
  std::string const whole = test::MakeArchive(entries, "gnutar", "gzip");
  for (size_t size = 0; size < whole.size(); size += 512) {
    EXPECT_EQ(Extract(whole.substr(0, size)), -1) << "cut at " << size;
  }
  EXPECT_EQ(Extract(whole), 0);
}

TEST_F(DamagedPackage, PlainTarTruncatedBetweenTwoEntriesIsAccepted) {
  std::string const whole = SoundClient();
  size_t passed = 0;
  size_t refused = 0;
  Extract(whole);
  Tree const tree = Extracted();
  for (size_t size = 0; size < whole.size(); size += 512) {
    int const result = Extract(whole.substr(0, size));
    (result == 0 ? passed : refused)++;
    // What is accepted consists of complete entries and lacks the last ones. INFO is among them, so
    // the next start unpacks again.
    Tree const part = Extracted();
    if (result != 0 || part == tree) continue;
    EXPECT_EQ(part.count("Contents/Resources/INFO"), 0U) << "cut at " << size;
  }
  EXPECT_GT(passed, 0U);
  EXPECT_GT(refused, 0U);
}

/// The results of a thousand packages with one flipped bit each.
struct Flips {
  int refused = 0;
  int same = 0;   ///< the complete tree, byte for byte
  int other = 0;  ///< accepted, but different
};

class FlippedBit : public DamagedPackage, public testing::WithParamInterface<char const*> {
 protected:
  Flips FlipAThousand(std::string const& whole) {
    std::mt19937 random(20);
    EXPECT_EQ(Extract(whole), 0);
    Tree const tree = Extracted();
    Flips flips;
    for (int i = 0; i < 1000; ++i) {
      std::string bytes = whole;
      size_t const at = random() % bytes.size();
      bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
      if (Extract(bytes) != 0) {
        ++flips.refused;
      } else {
        (Extracted() == tree ? flips.same : flips.other)++;
      }
    }
    return flips;
  }
};

/// A valid client, packed as by scripts/make-package: the program zstd adds a checksum, libarchive
/// doesn't.
std::string Packed(std::string const& filter) {
  if (filter != "zstd") return test::MakeArchive(Sandbox::Client(200), "gnutar", filter);
  test::TempDir const folder;
  std::string const tar = folder / "client.tar";
  test::WriteFile(tar, test::MakeArchive(Sandbox::Client(200), "gnutar"));
  EXPECT_EQ(test::Run({{"/usr/bin/env", "zstd", "-q", tar}, {}, "", "", false}).status, 0);
  return test::ReadFile(tar + ".zst");
}

TEST_P(FlippedBit, NeverWritesOutsideAndIsMissedOnlyWhereNoChecksumIsVerified) {
  Tree const beside = Beside();
  std::string const filter = GetParam();
  Flips const flips = FlipAThousand(Packed(filter));
  EXPECT_EQ(Beside(), beside);
  EXPECT_GT(flips.refused, 0);
  // libarchive doesn't verify gzip's checksum; plain tar only has one for headers.
  EXPECT_EQ(flips.other != 0, filter == "none" || filter == "gzip");
  test::Report("a flipped bit at 1,000 places, filter " + filter + ": " +
               std::to_string(flips.refused) + " refused, " + std::to_string(flips.same) +
               " whole, " + std::to_string(flips.other) + " with other bytes");
}

INSTANTIATE_TEST_SUITE_P(Filters, FlippedBit, testing::Values("none", "gzip", "zstd", "xz"),
                         [](auto const& parameter) { return std::string(parameter.param); });

TEST_F(HostilePackage, AnyDamageIsRolledBack) {
  std::string const whole = test::MakeArchive(Sandbox::Client(200), "gnutar", "gzip");
  for (size_t size : {size_t{0}, size_t{1}, size_t{17}, whole.size() / 2, whole.size() - 1}) {
    sandbox_.CarryPackage(whole.substr(0, size));
    ASSERT_EQ(sandbox_.Launch().status, 0);
    EXPECT_TRUE(IsRolledBack()) << "cut at " << size << ": " << sandbox_.RawLog();
  }
}

}  // namespace
