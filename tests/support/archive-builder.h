#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

/// Packages for tests, built in memory.
namespace test {

/// An entry of an archive. Modes are permission bits; 0 means 0755 for folders and 0644 for the
/// rest.
struct Entry {
  enum class Kind { kFile, kFolder, kLink, kHardLink };

  static Entry File(std::string path, std::string bytes, mode_t mode = 0644);
  static Entry Folder(std::string path, mode_t mode = 0755);
  /// A symlink to `target`.
  static Entry Link(std::string path, std::string target);
  /// A hard link to the entry named `target`.
  static Entry HardLink(std::string path, std::string target);

  Kind kind = Kind::kFile;
  std::string path;
  std::string content;  ///< a file's bytes, a link's target
  mode_t mode = 0;
};

/// The bytes of an archive. `format` and `filter` are libarchive's names: "gnutar", "pax", "zip",
/// "cpio"; "gzip", "xz", "zstd", "none".
std::string MakeArchive(std::vector<Entry> const& entries, std::string const& format = "gnutar",
                        std::string const& filter = "none");

}  // namespace test
