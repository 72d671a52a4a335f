// Malicious packages: what is rejected, what is installed, and that nothing is written outside the
// user's root except where the table says so.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "faults/hostile-package.h"
#include "faults/mount.h"
#include "faults/nobody.h"
#include "support/tar.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::HostilePackage;
using test::LongName;
using test::Padded;
using test::PaxName;
using test::Sandbox;
using test::TarFile;
using test::TarHeader;
using test::Tree;

enum class Verdict {
  kRejected,   ///< the extraction fails and is rolled back
  kInstalled,  ///< the new tree is installed, and the entry is harmless or as documented
  kEscapes,    ///< installed, and something outside the user's root has changed
};

struct Case {
  char const* name;
  Verdict verdict;
  /// Entries before a valid client. `outside` is a folder next to the home.
  std::function<std::string(std::string const& outside)> entries;
  /// Checks the application folder afterwards.
  std::function<void(std::string const& app)> check = [](std::string const&) {};
};

bool Stands(std::string const& path) { return fs::exists(fs::symlink_status(path)); }

std::string Repeat(std::string const& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

std::vector<Case> const& Cases() {
  using S = std::string const&;
  static std::vector<Case> const cases = {
      {"dot-dot at the beginning", Verdict::kRejected, [](S) { return TarFile("../evil", "x"); }},
      {"dot-dot in the middle", Verdict::kRejected,
       [](S) { return TarFile("Contents/../../evil", "x"); }},
      {"dot-dot at the end", Verdict::kRejected,
       [](S) { return TarHeader("Contents/..", '5', 0); }},
      {"dot-dot alone", Verdict::kRejected, [](S) { return TarHeader("..", '5', 0); }},
      {"dot-dot behind many slashes", Verdict::kRejected,
       [](S) { return TarFile("Contents////..//evil", "x"); }},
      {"dots that are a name", Verdict::kInstalled, [](S) { return TarFile(".../..a", "x"); },
       [](S app) { EXPECT_TRUE(Stands(app + "/.../..a")); }},
      {"an absolute name lands below the application folder", Verdict::kInstalled,
       [](S outside) { return TarFile(outside + "/evil", "x"); },
       [](S app) { EXPECT_FALSE(fs::is_empty(app)); }},
      {"a link out of the tree alone", Verdict::kInstalled,
       [](S outside) { return TarHeader("way-out", '2', 0, outside); },
       [](S app) { EXPECT_TRUE(fs::is_symlink(app + "/way-out")); }},
      {"a link out of the tree and a file through it", Verdict::kEscapes,
       [](S outside) {
         return TarHeader("way-out", '2', 0, outside) + TarFile("way-out/evil", "x");
       }},
      {"a link out of the tree and a folder through it", Verdict::kEscapes,
       [](S outside) {
         return TarHeader("way-out", '2', 0, outside) + TarHeader("way-out/evil", '5', 0, "", 0755);
       }},
      {"a link out of the tree, then a folder of its name", Verdict::kInstalled,
       [](S outside) {
         return TarHeader("way", '2', 0, outside + "/closed") + TarHeader("way", '5', 0, "", 0777);
       },
       [](S app) { EXPECT_TRUE(fs::is_symlink(app + "/way")); }},
      {"a file over a link out of the tree replaces it", Verdict::kInstalled,
       [](S outside) {
         return TarHeader("way", '2', 0, outside + "/victim") + TarFile("way", "x");
       },
       [](S app) { EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(app + "/way"))); }},
      {"a hard link with an absolute target gives a file outside a second name",
       Verdict::kInstalled,
       [](S outside) { return TarHeader("twin", '1', 0, outside + "/victim"); },
       [](S app) { EXPECT_EQ(fs::hard_link_count(app + "/twin"), 2U); }},
      {"a hard link with an absolute target and a body", Verdict::kEscapes,
       [](S outside) {
         return PaxName("twin") + TarHeader("twin", '1', 4, outside + "/victim") + Padded("evil");
       }},
      {"a hard link with an absolute target, then a file of its name", Verdict::kInstalled,
       [](S outside) {
         return TarHeader("twin", '1', 0, outside + "/victim") + TarFile("twin", "evil");
       },
       [](S app) { EXPECT_EQ(fs::hard_link_count(app + "/twin"), 1U); }},
      {"a hard link with dot-dot in its target", Verdict::kRejected,
       [](S) { return TarHeader("twin", '1', 0, "../../victim"); }},
      {"a hard link with a relative target isn't looked for in the package", Verdict::kRejected,
       [](S) { return TarFile("file", "x") + TarHeader("twin", '1', 0, "file"); }},
      {"a hard link with a relative target gives a file of the working folder a second name",
       Verdict::kInstalled, [](S) { return TarHeader("twin", '1', 0, "victim"); },
       [](S app) { EXPECT_TRUE(fs::equivalent(app + "/twin", app + "/../../victim")); }},
      {"a hard link with a relative target and a body overwrites a file of the working folder",
       Verdict::kInstalled,
       [](S) { return PaxName("twin") + TarHeader("twin", '1', 4, "victim") + Padded("evil"); },
       [](S app) { EXPECT_EQ(test::ReadFile(app + "/../../victim"), "evil"); }},
      {"set-user-id and set-group-id bits are dropped", Verdict::kInstalled,
       [](S) { return TarFile("suid", "x", 06755); },
       [](S app) {
         struct stat info {};
         ASSERT_EQ(stat((app + "/suid").c_str(), &info), 0);
         EXPECT_EQ(info.st_mode & 07777U, 0755U);
       }},
      {"a sticky folder that anybody may write", Verdict::kInstalled,
       [](S) { return TarHeader("open", '5', 0, "", 01777); },
       [](S app) {
         struct stat info {};
         ASSERT_EQ(stat((app + "/open").c_str(), &info), 0);
         EXPECT_EQ(info.st_mode & 07022U, 0U);
       }},
      {"a named pipe", Verdict::kInstalled, [](S) { return TarHeader("pipe", '6', 0); },
       [](S app) { EXPECT_TRUE(fs::is_fifo(app + "/pipe")); }},
      {"a line break in a name", Verdict::kInstalled, [](S) { return TarFile("a\nb", "x"); },
       [](S app) { EXPECT_TRUE(Stands(app + "/a\nb")); }},
      {"a NUL in a name ends it", Verdict::kInstalled,
       [](S) { return TarFile(std::string("cut\0off", 7), "x"); },
       [](S app) {
         EXPECT_TRUE(Stands(app + "/cut"));
         EXPECT_FALSE(Stands(app + "/cutoff"));
       }},
      {"a name of 255 bytes", Verdict::kInstalled,
       [](S) { return LongName(std::string(255, 'n')) + TarFile("short", "x"); },
       [](S app) { EXPECT_TRUE(Stands(app + "/" + std::string(255, 'n'))); }},
      {"a name of 256 bytes", Verdict::kRejected,
       [](S) { return LongName(std::string(256, 'n')) + TarFile("short", "x"); }},
      {"invalid UTF-8 in a name", Verdict::kInstalled,
       [](S) { return TarFile("bad-\xff\xfe", "x"); },
       [](S app) { EXPECT_TRUE(Stands(app + "/bad-\xff\xfe")); }},
      {"invalid UTF-8 where UTF-8 is promised", Verdict::kRejected,
       [](S) { return PaxName("bad-\xff\xfe") + TarFile("short", "x"); }},
      {"a path of more than 4,096 bytes", Verdict::kInstalled,
       [](S) { return LongName(Repeat("folder/", 600) + "file") + TarFile("short", "x"); }},
      {"an empty name", Verdict::kInstalled, [](S) { return TarFile("", "x"); }},
      {"the folder itself as an entry", Verdict::kInstalled,
       [](S) { return TarHeader("./", '5', 0, "", 0755); }},
      {"the folder itself as a file, which the next entry makes a folder again",
       Verdict::kInstalled, [](S) { return TarFile(".", "x"); }},
      {"the folder itself as a file, which the next entry needs as a folder", Verdict::kRejected,
       [](S) { return TarFile(".", "x") + TarFile("file", "x"); }},
      {"the folder itself as a link that leads nowhere", Verdict::kRejected,
       [](S) { return TarHeader(".", '2', 0, "nowhere"); }},
      {"the folder itself as a link out of the tree", Verdict::kEscapes,
       [](S outside) { return TarHeader(".", '2', 0, outside); },
       [](S app) { EXPECT_TRUE(fs::is_symlink(app)); }},
      {"the folder itself as a link, behind another entry", Verdict::kRejected,
       [](S outside) { return TarFile("file", "x") + TarHeader("", '2', 0, outside); }},
      {"the folder itself as a file, behind another entry", Verdict::kRejected,
       [](S) { return TarFile("file", "x") + TarFile("", "x"); }},
      {"an entry that is its own parent", Verdict::kRejected,
       [](S) { return TarFile("own", "x") + TarFile("own/own", "y"); }},
      {"a file, then a folder of its name", Verdict::kInstalled,
       [](S) { return TarFile("turns", "x") + TarHeader("turns", '5', 0, "", 0755); },
       [](S app) { EXPECT_TRUE(fs::is_directory(app + "/turns")); }},
      {"an empty folder, then a file of its name", Verdict::kInstalled,
       [](S) { return TarHeader("turns", '5', 0, "", 0755) + TarFile("turns", "x"); },
       [](S app) { EXPECT_TRUE(fs::is_regular_file(app + "/turns")); }},
      {"a full folder, then a file of its name", Verdict::kRejected,
       [](S) { return TarFile("turns/in", "x") + TarFile("turns", "x"); }},
      {"a size that is larger than the archive", Verdict::kRejected,
       [](S) { return TarHeader("large", '0', 07777777777); }},
  };
  return cases;
}

class HostileEntry : public HostilePackage, public testing::WithParamInterface<size_t> {};

TEST_P(HostileEntry, IsRejectedOrInstalledAsListed) {
  Case const& hostile = Cases()[GetParam()];
  SCOPED_TRACE(hostile.name);
  sandbox_.CarryPackage(hostile.entries(Outside()) + SoundClient());
  Tree const beside = Beside();
  ASSERT_EQ(sandbox_.Launch().status, 0);
  if (hostile.verdict == Verdict::kRejected) {
    EXPECT_TRUE(IsRolledBack()) << sandbox_.RawLog();
  } else {
    EXPECT_TRUE(IsInstalled()) << sandbox_.RawLog();
    hostile.check(sandbox_.App());
  }
  EXPECT_EQ(Beside() != beside, hostile.verdict == Verdict::kEscapes);
}

/// The case's name in camel case.
std::string TestName(testing::TestParamInfo<size_t> const& parameter) {
  std::string name;
  bool upper = true;
  for (char const* c = Cases()[parameter.param].name; *c != '\0'; ++c) {
    if (isalnum(*c) != 0) name += upper ? static_cast<char>(toupper(*c)) : *c;
    upper = isalnum(*c) == 0;
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Table, HostileEntry, testing::Range(size_t{0}, Cases().size()), TestName);

TEST_F(HostilePackage, AnEntryThatReplacesTheFolderItselfIsASuccessWithoutAClient) {
  sandbox_.LogEverything();
  for (std::string const& package :
       {TarFile("", "x"), TarFile(".", "x"), TarHeader(".", '2', 0, "nowhere")}) {
    Restore();
    sandbox_.CarryPackage(package);
    ASSERT_EQ(sandbox_.Launch().status, 0);
    EXPECT_TRUE(Stands(sandbox_.App()));
    EXPECT_FALSE(fs::is_directory(sandbox_.App()));
    EXPECT_FALSE(Stands(sandbox_.App() + "_tmp"));
    EXPECT_TRUE(IsLogged("user installation is ready"));
    EXPECT_TRUE(IsLogged("Failed to launch Larkmoor UI"));
    // The executable is missing, so every start tries again.
    sandbox_.CarryPackage(SoundClient());
    ASSERT_EQ(sandbox_.Launch().status, 0);
    EXPECT_TRUE(IsInstalled()) << sandbox_.RawLog();
  }
}

/// Trees that can be unpacked but not removed.
class StubbornTree : public HostilePackage {
 protected:
  ~StubbornTree() override {
    // Deeper than this process can have folders open.
    test::Run({{"chmod", "-R", "u+w", sandbox_.folder().path()}, {}, "", "", false});
    test::Run({{"rm", "-rf", sandbox_.folder().path()}, {}, "", "", false});
  }

  /// With a limit of 1,024 descriptors.
  static void Launch(test::Process::Options start) {
    start.program = "/bin/sh";
    start.arguments.insert(start.arguments.begin(),
                           {"sh", "-c", "ulimit -n 1024 && exec \"$@\"", "sh"});
    ASSERT_EQ(test::Run(start).status, 0);
  }

  /// How to start the launcher as a user whom permissions restrict.
  test::Process::Options StartAsUser() const {
    return geteuid() == 0 ? test::StartAsNobody(sandbox_) : sandbox_.Start();
  }

  /// A package with this tree is rejected at its end: the tree can't be removed, and the old one
  /// stays aside. A valid package is then installed, and only the tree remains.
  void ExpectToBlockTheRollback(std::string const& tree, bool as_user = false) {
    auto const start = [&] { return as_user ? StartAsUser() : sandbox_.Start(); };
    sandbox_.CarryPackage(tree + TarFile("../evil", "x"));
    Launch(start());
    EXPECT_TRUE(fs::exists(sandbox_.App() + "/stubborn"));
    EXPECT_EQ(test::ReadTree(sandbox_.App() + "_tmp"), old_);
    EXPECT_TRUE(IsLogged("Failed to launch Larkmoor UI"));
    sandbox_.CarryPackage(SoundClient());
    Launch(start());
    EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "200");
    EXPECT_TRUE(IsInstalled()) << sandbox_.RawLog();
    EXPECT_TRUE(fs::exists(sandbox_.App() + "_tmp1/stubborn"));
  }
};

TEST_F(StubbornTree, OfAPathOfMoreThan4096BytesBlocksTheRollback) {
  ExpectToBlockTheRollback(LongName("stubborn/" + Repeat("folder/", 600) + "file") +
                           TarFile("short", "x"));
}

TEST_F(StubbornTree, WithDeeperFoldersThanDescriptorsBlocksTheRollback) {
  ExpectToBlockTheRollback(LongName("stubborn/" + Repeat("d/", 1100) + "file") +
                           TarFile("short", "x"));
}

std::string FolderThatCannotBeWritten() {
  return TarHeader("stubborn", '5', 0, "", 0555) + TarFile("stubborn/file", "x");
}

TEST_F(StubbornTree, WithAReadOnlyFolderBlocksTheRollback) {
  if (geteuid() == 0 && !test::CanBecomeNobody()) GTEST_SKIP() << "root may write any folder";
  ExpectToBlockTheRollback(FolderThatCannotBeWritten(), true);
}

TEST_F(StubbornTree, ThatWasInstalledStaysAsABackupOfTheNextUpgrade) {
  if (geteuid() == 0 && !test::CanBecomeNobody()) GTEST_SKIP() << "root may write any folder";
  sandbox_.CarryPackage(FolderThatCannotBeWritten() + SoundClient());
  Launch(StartAsUser());
  EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "200");
  sandbox_.CarryVersion(300);
  sandbox_.CarryPackage(test::MakeArchive(Sandbox::Client(300), "gnutar"));
  Launch(StartAsUser());
  EXPECT_EQ(sandbox_.AwaitStarts(2).back(), "300");
  EXPECT_TRUE(fs::exists(sandbox_.App() + "_tmp/stubborn/file"));
}

TEST_F(HostilePackage, ADeviceNodeIsRejected) {
  if (!test::CanBecomeNobody()) GTEST_SKIP() << "only root can start a launcher as another user";
  sandbox_.CarryPackage(TarHeader("device", '3', 0) + SoundClient());
  ASSERT_EQ(test::Run(test::StartAsNobody(sandbox_)).status, 0);
  EXPECT_TRUE(IsRolledBack()) << sandbox_.RawLog();
}

TEST_F(HostilePackage, ADeviceNodeIsCreatedForRoot) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can make devices";
  sandbox_.CarryPackage(TarHeader("device", '3', 0) + SoundClient());
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(fs::is_character_file(sandbox_.App() + "/device")) << sandbox_.RawLog();
  EXPECT_TRUE(IsInstalled());
}

TEST_F(HostilePackage, AHundredThousandEmptyEntriesAreInstalled) {
  std::string bytes;
  for (int i = 0; i < 100000; ++i) {
    bytes += TarHeader("many/" + std::to_string(i % 100) + "/" + std::to_string(i), '0', 0);
  }
  sandbox_.CarryPackage(bytes + SoundClient());
  test::Outcome const outcome = sandbox_.Launch();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(IsInstalled()) << sandbox_.RawLog();
  EXPECT_LT(outcome.peak_kib, 200L * 1024) << "memory grows with the number of entries";
  size_t files = 0;
  for (auto const& entry : fs::recursive_directory_iterator(sandbox_.App() + "/many")) {
    if (entry.is_regular_file()) ++files;
  }
  EXPECT_EQ(files, 100000U);
}

/// GNU tar's old sparse format: one byte at the end of 4 GiB.
std::string SparseFile() {
  constexpr unsigned long long kSize = 1ULL << 32;
  std::string header = TarHeader("sparse", 'S', 512);
  char number[16];
  auto const put = [&](size_t at, unsigned long long value) {
    snprintf(number, sizeof(number), "%011llo", value);
    header.replace(at, 11, number);
  };
  header.replace(257, 8, std::string("ustar  \0", 8));
  put(386, kSize - 512);
  put(398, 512);
  put(483, kSize);
  test::SealTarHeader(header);
  return header + std::string(512, 's');
}

TEST_F(HostilePackage, ASparseFileOfFourGibibytesTakesHardlyAnySpace) {
  sandbox_.CarryPackage(SparseFile() + SoundClient());
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(IsInstalled()) << sandbox_.RawLog();
  struct stat info {};
  ASSERT_EQ(stat((sandbox_.App() + "/sparse").c_str(), &info), 0);
  EXPECT_EQ(info.st_size, off_t{1} << 32);
  EXPECT_LT(info.st_blocks, 2048);
}

TEST_F(HostilePackage, AGzipBombFillsASmallDiskAndIsRolledBack) {
  test::Mount home("none", sandbox_.Home(), "tmpfs", "size=2m");
  if (!home.ok()) GTEST_SKIP() << home.reason();
  sandbox_.Install(100);
  std::vector<Entry> entries = {Entry::File("bomb", std::string(64 << 20, '\0') + "x")};
  for (Entry const& entry : Sandbox::Client(200)) entries.push_back(entry);
  // Zeros would become a hole.
  entries[0].content.assign(entries[0].content.size(), 'b');
  sandbox_.CarryPackage(test::MakeArchive(entries, "gnutar", "gzip"));
  ASSERT_LT(fs::file_size(sandbox_.Package()), 200000U);
  test::Outcome const outcome = sandbox_.Launch();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(IsRolledBack()) << sandbox_.RawLog();
  EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "100");
}

}  // namespace
