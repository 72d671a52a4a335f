// Only the libarchive calls of an installation: one pass counts the entries, another writes them,
// with the launcher's options. No window, no notifications, no log.
//
// usage: install-floor PACKAGE FOLDER

#include <archive.h>
#include <archive_entry.h>

#include <clocale>
#include <string>

namespace {

constexpr size_t kBlockSize = 10240;
constexpr int kOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

archive* Open(char const* package) {
  archive* const reader = archive_read_new();
  archive_read_support_filter_all(reader);
  archive_read_support_format_all(reader);
  return archive_read_open_filename(reader, package, kBlockSize) == ARCHIVE_OK ? reader : nullptr;
}

int Count(char const* package) {
  archive* const reader = Open(package);
  if (reader == nullptr) return 0;
  int count = 0;
  for (archive_entry* entry = nullptr; archive_read_next_header(reader, &entry) == ARCHIVE_OK;) {
    ++count;
    archive_read_data_skip(reader);
  }
  archive_read_free(reader);
  return count;
}

int Write(char const* package, std::string const& folder) {
  archive* const reader = Open(package);
  archive* const writer = archive_write_disk_new();
  if (reader == nullptr || writer == nullptr) return 0;
  archive_write_disk_set_options(writer, kOptions);
  int count = 0;
  std::string path;
  for (archive_entry* entry = nullptr; archive_read_next_header(reader, &entry) == ARCHIVE_OK;) {
    path.assign(folder).append("/").append(archive_entry_pathname(entry));
    archive_entry_set_pathname(entry, path.c_str());
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) break;
    ++count;
  }
  archive_write_free(writer);
  archive_read_free(reader);
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  setlocale(LC_ALL, "");  // for libarchive, which converts names
  int const total = Count(argv[1]);
  return total > 0 && Write(argv[1], argv[2]) == total ? 0 : 1;
}
