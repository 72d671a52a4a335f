// libarchive as an installation calls it. Each call is handed on to the library, which is loaded
// for the first of them: a plain start unpacks nothing, and shall neither wait for the dozen
// libraries under libarchive nor fail where one of them is missing.

#include <archive.h>
#include <archive_entry.h>
#include <dlfcn.h>

#include "foundation/logger.h"

namespace {

/// Null after logging why it can't be loaded.
void* Load() {
  void* const library = dlopen(LARKMOOR_ARCHIVE_SONAME, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] extractor(%d): dlopen: %s\n",
            dlerror());
  }
  return library;
}

/// Null where the library can't be loaded. Otherwise it has every call below: its soname tells the
/// version of its interface.
void* Find(char const* name) {
  static void* const library = Load();
  return library != nullptr ? dlsym(library, name) : nullptr;
}

}  // namespace

/// The library's own function of that name, looked up once.
#define LOADED(name)                                                             \
  [] {                                                                           \
    static auto* const found = reinterpret_cast<decltype(&(name))>(Find(#name)); \
    return found;                                                                \
  }()

// Without the library there is neither a reader nor a writer, just as when memory runs out.

archive* archive_read_new() {
  auto* const make = LOADED(archive_read_new);
  return make != nullptr ? make() : nullptr;
}

archive* archive_write_disk_new() {
  auto* const make = LOADED(archive_write_disk_new);
  return make != nullptr ? make() : nullptr;
}

// Whoever has one of them has the library.

int archive_read_support_filter_all(archive* reader) {
  return LOADED(archive_read_support_filter_all)(reader);
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
int archive_read_support_compression_all(archive* reader) {
  return LOADED(archive_read_support_compression_all)(reader);
}
#pragma GCC diagnostic pop

int archive_read_support_format_all(archive* reader) {
  return LOADED(archive_read_support_format_all)(reader);
}

int archive_read_open_filename(archive* reader, char const* path, size_t block_size) {
  return LOADED(archive_read_open_filename)(reader, path, block_size);
}

int archive_read_next_header(archive* reader, archive_entry** entry) {
  return LOADED(archive_read_next_header)(reader, entry);
}

int archive_read_data_block(archive* reader, void const** block, size_t* size, la_int64_t* offset) {
  return LOADED(archive_read_data_block)(reader, block, size, offset);
}

int archive_read_data_skip(archive* reader) { return LOADED(archive_read_data_skip)(reader); }

int archive_read_extract2(archive* reader, archive_entry* entry, archive* writer) {
  return LOADED(archive_read_extract2)(reader, entry, writer);
}

int archive_read_close(archive* reader) { return LOADED(archive_read_close)(reader); }

int archive_read_free(archive* reader) { return LOADED(archive_read_free)(reader); }

int archive_write_disk_set_options(archive* writer, int flags) {
  return LOADED(archive_write_disk_set_options)(writer, flags);
}

la_ssize_t archive_write_data_block(archive* writer, void const* block, size_t size,
                                    la_int64_t offset) {
  return LOADED(archive_write_data_block)(writer, block, size, offset);
}

int archive_write_finish_entry(archive* writer) {
  return LOADED(archive_write_finish_entry)(writer);
}

int archive_write_free(archive* writer) { return LOADED(archive_write_free)(writer); }

char const* archive_entry_pathname(archive_entry* entry) {
  return LOADED(archive_entry_pathname)(entry);
}

void archive_entry_set_pathname(archive_entry* entry, char const* path) {
  LOADED(archive_entry_set_pathname)(entry, path);
}

char const* archive_error_string(archive* a) { return LOADED(archive_error_string)(a); }
