#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

/// Files and folders for tests. All functions throw on failure, which fails the test.
namespace test {

/// Gives the owner all permissions for the folders of a tree, so that it can be removed. Ignores
/// errors.
void MakeRemovable(std::filesystem::path const& folder);

/// A unique temporary folder, removed with everything in it, unreadable folders included, at the
/// end of the scope. Its path is absolute and contains no symlink.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(TempDir const&) = delete;
  TempDir& operator=(TempDir const&) = delete;

  std::filesystem::path const& path() const { return path_; }
  /// The path of a file in it.
  std::string operator/(std::string const& inside) const { return (path_ / inside).string(); }

 private:
  std::filesystem::path path_;
};

/// Makes later temporary folders in memory, if there is enough of it. For tests that create and
/// remove thousands of files, which is slow on a disk. Does nothing if LARKMOOR_TEST_VOLUME is set:
/// the tests then stay on the volume they were started on.
void PreferMemory();

/// Changes the working folder to a path until the end of the scope.
class WorkingFolder {
 public:
  explicit WorkingFolder(std::filesystem::path const& path);
  ~WorkingFolder();
  WorkingFolder(WorkingFolder const&) = delete;
  WorkingFolder& operator=(WorkingFolder const&) = delete;

 private:
  std::filesystem::path const former_;
};

/// Sets the process's umask until the end of the scope.
class Umask {
 public:
  explicit Umask(mode_t mask);
  ~Umask();
  Umask(Umask const&) = delete;
  Umask& operator=(Umask const&) = delete;

 private:
  mode_t const former_;
};

/// Closes standard input until the end of the scope, so that the next file opened is descriptor 0.
class ClosedInput {
 public:
  ClosedInput();
  ~ClosedInput();
  ClosedInput(ClosedInput const&) = delete;
  ClosedInput& operator=(ClosedInput const&) = delete;

 private:
  int const former_;
};

/// The permission bits of a file; of a symlink, its own.
unsigned ModeOf(std::filesystem::path const& path);

/// Makes a socket.
void MakeSocket(std::string const& path);

/// Writes a file, making the folders above it.
void WriteFile(std::filesystem::path const& path, std::string const& bytes);
std::string ReadFile(std::filesystem::path const& path);

/// A file of a tree: everything that an installation must preserve.
struct Node {
  char type = 0;        ///< 'f' file, 'd' folder, 'l' symlink, 'o' anything else
  unsigned mode = 0;    ///< permission bits; 0 for a symlink, whose bits mean nothing
  std::string content;  ///< a file's bytes, a symlink's target, empty otherwise
  bool operator==(Node const& other) const {
    return type == other.type && mode == other.mode && content == other.content;
  }
};
std::ostream& operator<<(std::ostream& out, Node const& node);

/// A tree by relative path. Empty if nothing exists at the root.
using Tree = std::map<std::string, Node>;
Tree ReadTree(std::filesystem::path const& root);

/// Whether file permissions restrict this process; root ignores them.
bool PermissionsApply();

}  // namespace test
