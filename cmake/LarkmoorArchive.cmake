# larkmoor_archive: libarchive, to compile against and to link.
#
# Loading libarchive and the libraries under it takes a twentieth of a plain start, though only an
# installation calls them. An executable with the property LARKMOOR_ARCHIVE_INSIDE has those in it
# that come as static libraries. That is so where all of them are found; otherwise everything is
# loaded, as is usual.
include(CheckCXXSourceCompiles)

# From the caller to the called. What Qt loads in any case, and what may not be linked in for its
# licence, stays outside.
set(static_names archive xml2 lzma lz4 bz2)
set(shared_names nettle acl zstd z m)

set(inside)
foreach(name IN LISTS static_names)
  find_library(LARKMOOR_STATIC_${name} lib${name}.a)
  mark_as_advanced(LARKMOOR_STATIC_${name})
  list(APPEND inside ${LARKMOOR_STATIC_${name}})
endforeach()
list(APPEND inside ${shared_names} ICU::uc)

# Another build of libarchive may stand on other libraries.
list(APPEND CMAKE_REQUIRED_INCLUDES ${LibArchive_INCLUDE_DIRS})
list(APPEND CMAKE_REQUIRED_LIBRARIES ${inside})
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

add_library(larkmoor_archive INTERFACE)
target_include_directories(larkmoor_archive SYSTEM INTERFACE ${LibArchive_INCLUDE_DIRS})
if(LARKMOOR_ARCHIVE_LINKS_STATICALLY)
  set(wants_inside $<BOOL:$<TARGET_PROPERTY:LARKMOOR_ARCHIVE_INSIDE>>)
  target_link_libraries(larkmoor_archive INTERFACE
    "$<IF:${wants_inside},${inside},LibArchive::LibArchive>")
else()
  target_link_libraries(larkmoor_archive INTERFACE LibArchive::LibArchive)
endif()
