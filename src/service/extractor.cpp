#include "service/extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <iostream>
#include <memory>

#include "foundation/logger.h"
#include "launcher/notify-adapter.h"
#include "localisation/str-table.h"
#include "platform/volume-flush.h"

namespace {

constexpr size_t kBlockSize = 10240;

/// Replace what is in the way, reject "..", restore the Mac metadata of the archive. Times, owners
/// and exact modes are left to the system: the tree is the user's own.
constexpr int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kWriteOptions == 8720);

constexpr int kLabel = 371;  // desc_lkmr_env_preparing

struct ReaderDeleter {
  void operator()(archive* reader) const { archive_read_free(reader); }
};
struct WriterDeleter {
  void operator()(archive* writer) const { archive_write_free(writer); }
};
using Reader = std::unique_ptr<archive, ReaderDeleter>;
using Writer = std::unique_ptr<archive, WriterDeleter>;

/// The text of the last error; libarchive has none if the failure wasn't in the archive.
char const* ErrorOf(archive* a) {
  char const* text = archive_error_string(a);
  return text != nullptr ? text : "(null)";
}

/// libarchive has renamed "compression" to "filter" and keeps the old name as an alias.
void SupportAllCompressions(archive* reader) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  archive_read_support_compression_all(reader);
#pragma GCC diagnostic pop
}

/// A reader positioned before the first entry, or null after logging the reason.
Reader OpenForListing(ustring const& package_path) {
  Reader reader(archive_read_new());
  if (!reader) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(),
            "[ERROR] extractor(%d): Allocate archive failed\n");
    return nullptr;
  }
  archive_read_support_filter_all(reader.get());
  archive_read_support_format_all(reader.get());
  if (archive_read_open_filename(reader.get(), package_path.c_str_utf8(), kBlockSize) != 0) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(),
            "[ERROR] extractor(%d): archive_read_open_filename failed: '%s'\n",
            ErrorOf(reader.get()));
    return nullptr;
  }
  return reader;
}

}  // namespace

int Extractor::Extract() {
  if (package_path.empty() || dest_path.empty()) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] extractor(%d): Invalid Argument\n");
    return -1;
  }
  LOG_MSG(LEVEL_DEBUG, log_component::extractor(),
          "[DEBUG] extractor(%d): decompress from '%s' to '%s'\n", package_path.c_str(),
          dest_path.c_str());
  Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(kLabel));

  int const total = Count();
  if (total <= 0) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(),
            "[ERROR] extractor(%d): Failed to calculate total file numbers, ret: %d\n", total);
    return -1;
  }
  Writer writer;  // must be freed after the reader
  Reader reader(archive_read_new());
  if (!reader) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(),
            "[ERROR] extractor(%d): Allocate extractor failed\n");
    return -1;
  }
  writer.reset(archive_write_disk_new());
  if (!writer) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(),
            "[ERROR] extractor(%d): Allocate extractor failed\n");
    return -1;
  }
  archive_write_disk_set_options(writer.get(), kWriteOptions);
  SupportAllCompressions(reader.get());
  archive_read_support_format_all(reader.get());
  if (archive_read_open_filename(reader.get(), package_path.c_str_utf8(), kBlockSize) != 0) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(),
            "[ERROR] extractor(%d): Failed to read file '%s' ('%s')\n", package_path.c_str(),
            ErrorOf(reader.get()));
    return -1;
  }
  return ExtractEntries(reader.get(), writer.get(), total);
}

int Extractor::ExtractEntries(archive* reader, archive* writer, int total) {
  // Any result but ARCHIVE_OK is a failure, warnings included: libarchive reports a full disk as a
  // warning.
  for (int count = 1;; ++count) {
    archive_entry* entry = nullptr;
    int const header = archive_read_next_header(reader, &entry);
    if (header == ARCHIVE_EOF) return 0;
    if (header != ARCHIVE_OK) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(),
              "[ERROR] extractor(%d): archive_read_next_header failed: '%s'\n", ErrorOf(reader));
      return -1;
    }
    char const* path = archive_entry_pathname(entry);
    if (path == nullptr) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(),
              "[ERROR] extractor(%d): archive_entry_pathname failed");
      return -1;
    }
    // The target of a hard link keeps the path it has in the archive.
    archive_entry_set_pathname(entry, (dest_path + "/" + path).c_str_utf8());
    // Write-back reorders writes, so flush everything the last entry vouches for before writing it:
    // a power loss then leaves a tree without that entry, or a complete one. If the flush fails,
    // there is just no such guarantee.
    if (count == total) platform::FlushVolume(dest_path.c_str_utf8());
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(),
              "[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", ErrorOf(writer));
      return -1;
    }
    Notify_Adapter::GetInstance()->UpdateProgress(total, count);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(),
              "[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", ErrorOf(writer));
      return -1;
    }
  }
}

int Extractor::Count() {
  if (dest_path.empty() || package_path.empty()) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] extractor(%d): Invalid argument\n");
    return -1;
  }
  Reader const reader = OpenForListing(package_path);
  if (!reader) return -1;
  int count = 0;
  archive_entry* entry = nullptr;
  while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
    ++count;
    archive_read_data_skip(reader.get());
  }
  return count;
}

int Extractor::List() {
  if (dest_path.empty() || package_path.empty()) {
    // Only logged: opening the archive shows whether there is anything to list.
    LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] extractor(%d): Invalid argument\n");
  }
  Reader const reader = OpenForListing(package_path);
  if (!reader) return -1;
  archive_entry* entry = nullptr;
  while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
    char const* path = archive_entry_pathname(entry);
    if (path != nullptr) {
      std::cout << path;
    } else {
      std::cout.setstate(std::ios_base::badbit);
    }
    std::cout << std::endl;
    archive_read_data_skip(reader.get());
  }
  archive_read_close(reader.get());
  return 0;
}

int Extractor::copy_data(archive* reader, archive* writer) {
  if (reader == nullptr || writer == nullptr) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] extractor(%d): Invalid Argument\n");
    return -1;
  }
  for (;;) {
    void const* buffer = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    int const block = archive_read_data_block(reader, &buffer, &size, &offset);
    if (block == ARCHIVE_EOF) return 0;
    if (block != ARCHIVE_OK) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(),
              "[ERROR] extractor(%d): archive_read_data_block failed: '%s'\n", ErrorOf(reader));
      return -1;
    }
    if (archive_write_data_block(writer, buffer, size, offset) != ARCHIVE_OK) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(),
              "[ERROR] extractor(%d): archive_write_data_block failed: '%s'\n", ErrorOf(writer));
      return -1;
    }
  }
}
