// FSRemove compared with a simple version that removes each file by its full path.
#include <dirent.h>
#include <gmock/gmock.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"

namespace fs = std::filesystem;
using test::TempDir;
using test::Tree;

namespace {

int PlainRemove(std::string const& path) {
  _FILE_INFO_tag info;
  if (path.empty() || GetFileInfo(path, info) != 0) return -1;
  if (!info.exists) return 0;
  if (info.type == FILE_TYPE_DIRECTORY) {
    DIR* const dir = opendir(path.c_str());
    if (dir == nullptr) return 0;
    int result = 0;
    while (dirent const* const entry = result == 0 ? readdir(dir) : nullptr) {
      std::string const name = entry->d_name;
      if (name != "." && name != ".." && PlainRemove(path + "/" + name) != 0) result = -3;
    }
    closedir(dir);
    if (result != 0) return result;
  }
  return std::remove(path.c_str()) < 0 ? -3 : 0;
}

int OwnRemove(std::string const& path) { return FSRemove(path, false); }

/// A file of a tree: a folder if its name ends in a slash, a symlink if it has a target.
struct Object {
  std::string path;
  std::string target = {};
};

struct Trace {
  int result = 0;
  std::vector<std::string> log = {};
  Tree left = {};
  bool operator==(Trace const& other) const {
    return result == other.result && log == other.log && left == other.left;
  }
};

void PrintTo(Trace const& trace, std::ostream* out) {
  *out << "result " << trace.result << "\nlog:\n";
  for (std::string const& line : trace.log) *out << "  " << line << "\n";
  *out << "left:\n";
  for (auto const& node : trace.left) *out << "  " << node.first << "\n";
}

/// Where trees are made, deep enough for a path to climb out of them safely.
class RemovalSteps : public testing::Test {
 protected:
  std::string Box() const { return folder_ / "some/way/down/box"; }
  void Make(std::vector<Object> const& tree) const {
    fs::remove_all(Box());
    fs::create_directories(Box());
    for (Object const& object : tree) {
      std::string const path = Box() + "/" + object.path;
      if (!object.target.empty()) {
        fs::create_symlink(object.target, path);
      } else if (path.back() == '/') {
        fs::create_directories(path);
      } else {
        test::WriteFile(path, "");
      }
    }
  }
  /// Whether a path leads into the box, so that it may be removed.
  bool LeadsInside(std::string const& path) const {
    std::error_code error;
    std::string const resolved = fs::canonical(Box() + "/" + path, error).string();
    return !error && resolved.rfind(Box() + "/", 0) == 0;
  }
  Trace Run(int (*remove)(std::string const&), std::vector<Object> const& tree,
            std::string const& path) const {
    Make(tree);
    Trace trace;
    test::FileOpLog const log;
    trace.result = remove(Box() + "/" + path);
    trace.log = log.Lines();
    trace.left = test::ReadTree(Box());
    return trace;
  }
  void ExpectSame(std::vector<Object> const& tree, std::string const& path) const {
    EXPECT_EQ(Run(OwnRemove, tree, path), Run(PlainRemove, tree, path)) << path;
  }

 private:
  TempDir folder_;
};

TEST_F(RemovalSteps, AreTheSameThroughASymlinkInTheRemovedTree) {
  std::vector<Object> const tree = {{"up/t/a/file"},    {"up/t/b/file"},           {"up/t/l", ".."},
                                    {"up/t/self", "."}, {"up/t/b/back", "../a"},   {"up/t/z"},
                                    {"up/beside/file"}, {"up/t/a/over", "../../t"}};
  for (char const* const path :
       {"up/t/l/", "up/t/l/.", "up/t/l/..", "up/t/l/t", "up/t/l/t/", "up/t/l/t/l/t", "up/t/self/",
        "up/t/self/.", "up/t/self/a", "up/t/b/back/", "up/t/b/back/..", "up/t/a/over/",
        "up/t/a/over/b", "up/t/l/beside", "up/t/l", "up/t"}) {
    ExpectSame(tree, path);
  }
}

TEST_F(RemovalSteps, AreTheSameForPathsThatEndInSlashesAndDots) {
  std::vector<Object> const tree = {
      {"t/a/deep/file"}, {"t/b"}, {"t/link", "a"}, {"t/gone", "none"}};
  for (char const* const path :
       {"t/", "t//", "t/.", "t/./", "t/a/..", "t/a/../", "t/a/deep/../..", "t/a/.", "t/link/",
        "t/link/.", "t/link/..", "t/gone/", "t/b/", "t/b/.", "t//a", "./t"}) {
    ExpectSame(tree, path);
  }
}

// Random trees and paths, including paths that the removal itself invalidates.
TEST_F(RemovalSteps, AreTheSameForAnyTreeAndPath) {
  constexpr int kTrees = 200;
  std::mt19937 dice(1);
  auto const roll = [&dice](std::size_t sides) { return static_cast<std::size_t>(dice()) % sides; };
  auto const pick = [&roll](auto const& list) { return list[roll(std::size(list))]; };
  int compared = 0;
  for (int number = 0; number < kTrees && !HasFailure(); ++number) {
    std::vector<Object> tree;
    std::vector<std::string> folders = {""};
    std::vector<std::string> names = {".", "..", ""};
    std::size_t const objects = 4 + roll(8);
    for (std::size_t i = 0; i < objects; ++i) {
      static constexpr char const* kTargets[] = {".",    "..",     "../..",   "../../..",
                                                 "../a", "../b",   "a",       "b",
                                                 "a/b",  "../a/c", "../../a", "../../b"};
      std::string const name(1, "abcdefghijkl"[i]);
      std::string const path = pick(folders) + name;
      names.push_back(name);
      switch (roll(4)) {
        case 0:
          tree.push_back({path});
          break;
        case 1:
          tree.push_back({path + "/"});
          folders.push_back(path + "/");
          break;
        default:
          tree.push_back({path, pick(kTargets)});
      }
    }
    for (int i = 0; i < 8; ++i) {
      std::string path = pick(tree).path;
      for (std::size_t part = roll(5); part > 0; --part) path += "/" + pick(names);
      Make(tree);
      if (!LeadsInside(path)) continue;
      ++compared;
      ExpectSame(tree, path);
    }
  }
  EXPECT_GT(compared, 100);
}

}  // namespace
