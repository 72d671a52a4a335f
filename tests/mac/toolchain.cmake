# Cross-compiles on Linux for a Mac: Zig's clang with Apple's C headers and the symbols of the system
# library, and stub libraries for the rest (make-sdk). The output is compiled and linked as on a Mac, but
# can't run here.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)

get_filename_component(project ${CMAKE_CURRENT_LIST_DIR}/../.. ABSOLUTE)
set(sdk ${project}/build/mac-sdk)

set(CMAKE_C_COMPILER ${sdk}/bin/c++)
set(CMAKE_CXX_COMPILER ${sdk}/bin/c++)
foreach(tool AR RANLIB INSTALL_NAME_TOOL)
  string(TOLOWER ${tool} name)
  string(REPLACE _ - name ${name})
  set(CMAKE_${tool} ${sdk}/bin/${name})
endforeach()
# ar can't make a universal static library.
set(CMAKE_CXX_CREATE_STATIC_LIBRARY "${sdk}/bin/libtool -static -o <TARGET> <OBJECTS>")
set(CMAKE_C_CREATE_STATIC_LIBRARY ${CMAKE_CXX_CREATE_STATIC_LIBRARY})
# CMake sets this only if sw_vers reports the version of macOS; without it, it leaves out every rpath.
set(CMAKE_SHARED_LIBRARY_RUNTIME_CXX_FLAG "-Wl,-rpath,")

set(ENV{SDKROOT} ${sdk})

set(CMAKE_FIND_ROOT_PATH ${sdk})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE NEVER)
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG ON)
foreach(package QT Qt5 GTest benchmark spdlog)
  set(${package}_DIR ${CMAKE_CURRENT_LIST_DIR}/packages)
endforeach()

# The test programs can't run to list their tests.
set(CMAKE_CROSSCOMPILING_EMULATOR true)
