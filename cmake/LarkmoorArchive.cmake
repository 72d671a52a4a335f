# larkmoor_archive: libarchive, to compile against and to link.
#
# Loading libarchive and the libraries under it takes a twentieth of a plain start, though only an
# installation calls them. An executable with the property LARKMOOR_ARCHIVE_INSIDE has most of them
# in it instead, where they come as static libraries and suffice to link. Otherwise all are loaded.
include(CheckCXXSourceCompiles)

# From the caller to the called. What Qt loads in any case, and what may not be linked in for its
# licence, stays outside.
set(static_names archive xml2 lzma lz4 bz2)
set(shared_names nettle acl zstd z m)

# Beside the libarchive that was found, so that it isn't taken from elsewhere.
list(GET LibArchive_LIBRARIES 0 found)
get_filename_component(folder ${found} DIRECTORY)
set(inside)
foreach(name IN LISTS static_names)
  find_library(library lib${name}.a PATHS ${folder} NO_DEFAULT_PATH NO_CACHE)
  list(APPEND inside ${library})
  unset(library)
endforeach()

if(inside MATCHES NOTFOUND)
  set(LARKMOOR_ARCHIVE_LINKS_STATICALLY OFF)
else()
  # Another build of libarchive may stand on other libraries.
  list(APPEND inside ${shared_names} ICU::uc)
  set(CMAKE_REQUIRED_INCLUDES ${LibArchive_INCLUDE_DIRS})
  set(CMAKE_REQUIRED_LIBRARIES ${inside})
  check_cxx_source_compiles([[
    #include <archive.h>
    int main() {
      archive* reader = archive_read_new();
      archive_read_support_filter_all(reader);
      archive_read_support_format_all(reader);
      return archive_write_free(archive_write_disk_new());
    }]] LARKMOOR_ARCHIVE_LINKS_STATICALLY)
  unset(CMAKE_REQUIRED_INCLUDES)
  unset(CMAKE_REQUIRED_LIBRARIES)
endif()

add_library(larkmoor_archive INTERFACE)
target_include_directories(larkmoor_archive SYSTEM INTERFACE ${LibArchive_INCLUDE_DIRS})
if(LARKMOOR_ARCHIVE_LINKS_STATICALLY)
  set(wants_inside $<BOOL:$<TARGET_PROPERTY:LARKMOOR_ARCHIVE_INSIDE>>)
  target_link_libraries(larkmoor_archive INTERFACE
    "$<IF:${wants_inside},${inside},LibArchive::LibArchive>")
else()
  message(STATUS "libarchive and the libraries under it are loaded at the launcher's start")
  target_link_libraries(larkmoor_archive INTERFACE LibArchive::LibArchive)
endif()
