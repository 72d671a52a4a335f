#include "support/archive-builder.h"

#include <archive.h>
#include <archive_entry.h>

#include <memory>
#include <stdexcept>
#include <utility>

namespace test {
namespace {

void Check(int result, archive* writer) {
  if (result != ARCHIVE_OK) {
    char const* reason = archive_error_string(writer);
    throw std::runtime_error(std::string("archive: ") + (reason != nullptr ? reason : "unknown"));
  }
}

la_ssize_t Append(archive*, void* bytes, void const* buffer, size_t size) {
  static_cast<std::string*>(bytes)->append(static_cast<char const*>(buffer), size);
  return static_cast<la_ssize_t>(size);
}

void Describe(archive_entry* header, Entry const& entry) {
  archive_entry_set_pathname(header, entry.path.c_str());
  archive_entry_set_perm(header, entry.mode);
  switch (entry.kind) {
    case Entry::Kind::kFile:
      archive_entry_set_filetype(header, AE_IFREG);
      archive_entry_set_size(header, static_cast<la_int64_t>(entry.content.size()));
      break;
    case Entry::Kind::kFolder:
      archive_entry_set_filetype(header, AE_IFDIR);
      break;
    case Entry::Kind::kLink:
      archive_entry_set_filetype(header, AE_IFLNK);
      archive_entry_set_symlink(header, entry.content.c_str());
      break;
    case Entry::Kind::kHardLink:
      archive_entry_set_filetype(header, AE_IFREG);
      archive_entry_set_hardlink(header, entry.content.c_str());
      break;
  }
}

}  // namespace

Entry Entry::File(std::string path, std::string bytes, mode_t mode) {
  return {Kind::kFile, std::move(path), std::move(bytes), mode};
}

Entry Entry::Folder(std::string path, mode_t mode) {
  return {Kind::kFolder, std::move(path), "", mode};
}

Entry Entry::Link(std::string path, std::string target) {
  return {Kind::kLink, std::move(path), std::move(target), 0777};
}

Entry Entry::HardLink(std::string path, std::string target) {
  return {Kind::kHardLink, std::move(path), std::move(target), 0644};
}

std::string MakeArchive(std::vector<Entry> const& entries, std::string const& format,
                        std::string const& filter) {
  std::string bytes;
  std::unique_ptr<archive, decltype(&archive_write_free)> const writer(archive_write_new(),
                                                                       archive_write_free);
  Check(archive_write_set_format_by_name(writer.get(), format.c_str()), writer.get());
  if (filter != "none") {
    Check(archive_write_add_filter_by_name(writer.get(), filter.c_str()), writer.get());
  }
  // Some filters treat padding after a compressed stream as damage.
  archive_write_set_bytes_in_last_block(writer.get(), 1);
  Check(archive_write_open(writer.get(), &bytes, nullptr, Append, nullptr), writer.get());
  for (Entry const& entry : entries) {
    std::unique_ptr<archive_entry, decltype(&archive_entry_free)> const header(archive_entry_new(),
                                                                               archive_entry_free);
    Describe(header.get(), entry);
    Check(archive_write_header(writer.get(), header.get()), writer.get());
    if (entry.kind == Entry::Kind::kFile && !entry.content.empty()) {
      la_ssize_t const written =
          archive_write_data(writer.get(), entry.content.data(), entry.content.size());
      if (written != static_cast<la_ssize_t>(entry.content.size()))
        Check(ARCHIVE_FATAL, writer.get());
    }
  }
  Check(archive_write_close(writer.get()), writer.get());
  return bytes;
}

}  // namespace test
