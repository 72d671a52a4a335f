# What every target of the project is compiled with.
add_library(larkmoor_compile INTERFACE)
target_compile_features(larkmoor_compile INTERFACE cxx_std_17)
target_compile_options(larkmoor_compile INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
# Qt's container iterators and signals in strings are used on purpose; what must not come back is
# the implicit conversion between char arrays and QString.
target_compile_definitions(larkmoor_compile INTERFACE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
if(LARKMOOR_STRICT)
  target_compile_options(larkmoor_compile INTERFACE -Werror)
endif()
if(LARKMOOR_SANITIZER)
  add_compile_options(-fsanitize=${LARKMOOR_SANITIZER} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  # The instrumented code makes g++ see uninitialised uses inside the standard library.
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_link_options(-fsanitize=${LARKMOOR_SANITIZER})
endif()
if(LARKMOOR_COVERAGE)
  # Two threads count in the same places.
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
