# Refuses a libarchive that can't read the packages of scripts/make-package.
if(NOT CMAKE_CROSSCOMPILING)
  include(CheckCXXSourceRuns)
  set(CMAKE_REQUIRED_LIBRARIES LibArchive::LibArchive)
  # Without the decoder, libarchive returns a warning: it would run the program zstd.
  check_cxx_source_runs("
    #include <archive.h>
    int main() { return archive_read_support_filter_zstd(archive_read_new()) == ARCHIVE_OK ? 0 : 1; }"
    LARKMOOR_ARCHIVE_READS_ZSTD)
  unset(CMAKE_REQUIRED_LIBRARIES)
  if(NOT LARKMOOR_ARCHIVE_READS_ZSTD)
    # Test again next time.
    unset(LARKMOOR_ARCHIVE_READS_ZSTD CACHE)
    message(FATAL_ERROR
      "libarchive ${LibArchive_VERSION} doesn't unpack zstd, the filter of scripts/make-package: "
      "install 3.3.3 or newer, built with libzstd.")
  endif()
endif()
