# The compile options of every target.
add_library(larkmoor_compile INTERFACE)
target_compile_features(larkmoor_compile INTERFACE cxx_std_17)
target_compile_options(larkmoor_compile INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
# Rules out implicit conversions from QString to char arrays and from strings to QUrl.
target_compile_definitions(larkmoor_compile INTERFACE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
if(LARKMOOR_STRICT)
  target_compile_options(larkmoor_compile INTERFACE -Werror)
endif()
if(LARKMOOR_SANITIZER)
  add_compile_options(-fsanitize=${LARKMOOR_SANITIZER} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  # In instrumented code g++ reports false uninitialised uses in the standard library.
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_link_options(-fsanitize=${LARKMOOR_SANITIZER})
endif()
if(LARKMOOR_COVERAGE)
  # Both threads increment the same counters.
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
