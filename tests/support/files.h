#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

/// Files and folders for tests. Every function throws on failure, which fails the test.
namespace test {

/// A fresh folder of its own, removed with everything in it at the end of the scope, unreadable
/// folders inside it included. Its path is absolute and holds no symbolic link.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(TempDir const&) = delete;
  TempDir& operator=(TempDir const&) = delete;

  std::filesystem::path const& path() const { return path_; }
  /// The path of something inside, as text.
  std::string operator/(std::string const& inside) const { return (path_ / inside).string(); }

 private:
  std::filesystem::path path_;
};

/// Puts the temporary folders that come into memory, if there is enough of it. For tests that make
/// and remove thousands of files, which a disk takes its time over. With LARKMOOR_TEST_VOLUME in
/// the environment they stay on the volume that the tests were put on.
void PreferMemory();

/// Writes a file, making the folders above it.
void WriteFile(std::filesystem::path const& path, std::string const& bytes);
std::string ReadFile(std::filesystem::path const& path);

/// What stands at one place of a tree: everything about it that an installation has to keep.
struct Node {
  char type = 0;        ///< 'f' file, 'd' folder, 'l' link, 'o' anything else
  unsigned mode = 0;    ///< permission bits; 0 for a link, whose bits mean nothing
  std::string content;  ///< a file's bytes, a link's text, empty otherwise
  bool operator==(Node const& other) const {
    return type == other.type && mode == other.mode && content == other.content;
  }
};
std::ostream& operator<<(std::ostream& out, Node const& node);

/// A whole tree by relative path. Empty when nothing stands at the root.
using Tree = std::map<std::string, Node>;
Tree ReadTree(std::filesystem::path const& root);

/// Whether this process is held back by file permissions; root is not.
bool PermissionsApply();

}  // namespace test
