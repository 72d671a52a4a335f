# Selects the platform sources, src/platform/*-mac.cpp or src/platform/*-posix.cpp, and the linker option
# that binds all functions before main().
if(APPLE)
  set(LARKMOOR_PLATFORM mac)
  set(LARKMOOR_BIND_AT_START LINKER:-bind_at_load)
elseif(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(LARKMOOR_PLATFORM posix)
  set(LARKMOOR_BIND_AT_START LINKER:-z,now)
else()
  message(FATAL_ERROR
    "No platform layer for ${CMAKE_SYSTEM_NAME}. src/platform/README.md says what a port supplies.")
endif()
