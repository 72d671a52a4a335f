# Names the family of platform sources to build: src/platform/*-mac.cpp or src/platform/*-posix.cpp.
if(APPLE)
  set(LARKMOOR_PLATFORM mac)
elseif(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(LARKMOOR_PLATFORM posix)
else()
  message(FATAL_ERROR
    "No platform layer for ${CMAKE_SYSTEM_NAME}. src/platform/README.md says what a port supplies.")
endif()
