# GoogleTest, compiled from Debian's source package.
set(source /usr/src/googletest)
if(NOT EXISTS ${source})
  message(FATAL_ERROR "${source} is missing: run scripts/setup mac")
endif()
add_library(gmock STATIC EXCLUDE_FROM_ALL
  ${source}/googletest/src/gtest-all.cc ${source}/googlemock/src/gmock-all.cc)
target_include_directories(gmock SYSTEM PUBLIC ${source}/googletest/include ${source}/googlemock/include)
target_include_directories(gmock PRIVATE ${source}/googletest ${source}/googlemock)
# It never runs, so it isn't optimised.
target_compile_options(gmock PRIVATE -O0)
add_library(gmock_main STATIC EXCLUDE_FROM_ALL ${source}/googlemock/src/gmock_main.cc)
target_link_libraries(gmock_main PUBLIC gmock)
add_library(GTest::gmock ALIAS gmock)
add_library(GTest::gmock_main ALIAS gmock_main)
