// libarchive as an installation calls it. Each call is handed on to the library, which is loaded
// for the first of them: a plain start unpacks nothing, and shall neither wait for the dozen
// libraries under libarchive nor fail where one of them is missing.

#include <archive.h>
#include <archive_entry.h>
#include <dlfcn.h>

#include "foundation/logger.h"

namespace {

void LogFailure(char const* call) {
  LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] archive-on-demand-posix(%d): %s: %s\n",
          call, dlerror());
}

void* Load() {
  void* const library = dlopen(LARKMOOR_ARCHIVE_SONAME, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) LogFailure("dlopen");
  return library;
}

/// The library's function of that name; null, and the reason is in the log, where there is none.
void* Find(char const* name) {
  static void* const library = Load();
  if (library == nullptr) return nullptr;
  void* const found = dlsym(library, name);
  if (found == nullptr) LogFailure("dlsym");
  return found;
}

}  // namespace

/// The body of a function of that name: calls the library's own, or fails without one.
#define HAND_ON(name, arguments, failure)                                     \
  static auto* const call = reinterpret_cast<decltype(&(name))>(Find(#name)); \
  return call != nullptr ? call arguments : (failure)

archive* archive_read_new() { HAND_ON(archive_read_new, (), nullptr); }

int archive_read_support_filter_all(archive* reader) {
  HAND_ON(archive_read_support_filter_all, (reader), ARCHIVE_FATAL);
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
int archive_read_support_compression_all(archive* reader) {
  HAND_ON(archive_read_support_compression_all, (reader), ARCHIVE_FATAL);
}
#pragma GCC diagnostic pop

int archive_read_support_format_all(archive* reader) {
  HAND_ON(archive_read_support_format_all, (reader), ARCHIVE_FATAL);
}

int archive_read_open_filename(archive* reader, char const* path, size_t block_size) {
  HAND_ON(archive_read_open_filename, (reader, path, block_size), ARCHIVE_FATAL);
}

int archive_read_next_header(archive* reader, archive_entry** entry) {
  HAND_ON(archive_read_next_header, (reader, entry), ARCHIVE_FATAL);
}

int archive_read_data_block(archive* reader, void const** block, size_t* size, la_int64_t* offset) {
  HAND_ON(archive_read_data_block, (reader, block, size, offset), ARCHIVE_FATAL);
}

int archive_read_data_skip(archive* reader) {
  HAND_ON(archive_read_data_skip, (reader), ARCHIVE_FATAL);
}

int archive_read_extract2(archive* reader, archive_entry* entry, archive* writer) {
  HAND_ON(archive_read_extract2, (reader, entry, writer), ARCHIVE_FATAL);
}

int archive_read_close(archive* reader) { HAND_ON(archive_read_close, (reader), ARCHIVE_FATAL); }

int archive_read_free(archive* reader) { HAND_ON(archive_read_free, (reader), ARCHIVE_FATAL); }

archive* archive_write_disk_new() { HAND_ON(archive_write_disk_new, (), nullptr); }

int archive_write_disk_set_options(archive* writer, int flags) {
  HAND_ON(archive_write_disk_set_options, (writer, flags), ARCHIVE_FATAL);
}

la_ssize_t archive_write_data_block(archive* writer, void const* block, size_t size,
                                    la_int64_t offset) {
  HAND_ON(archive_write_data_block, (writer, block, size, offset), ARCHIVE_FATAL);
}

int archive_write_finish_entry(archive* writer) {
  HAND_ON(archive_write_finish_entry, (writer), ARCHIVE_FATAL);
}

int archive_write_free(archive* writer) { HAND_ON(archive_write_free, (writer), ARCHIVE_FATAL); }

char const* archive_entry_pathname(archive_entry* entry) {
  HAND_ON(archive_entry_pathname, (entry), nullptr);
}

void archive_entry_set_pathname(archive_entry* entry, char const* path) {
  HAND_ON(archive_entry_set_pathname, (entry, path), void());
}

char const* archive_error_string(archive* a) { HAND_ON(archive_error_string, (a), nullptr); }
