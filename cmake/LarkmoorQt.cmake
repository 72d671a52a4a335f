# Finds Qt, 5 or 6. Its libraries and programs go by their names without a version, Qt::Core and
# Qt::rcc; its plug-ins lie in larkmoor_qt_plugins.
set(LARKMOOR_QT "" CACHE STRING "Major version of Qt, 5 or 6; empty for the one that is there, 5 before 6")
set_property(CACHE LARKMOOR_QT PROPERTY STRINGS "" 5 6)
if(NOT LARKMOOR_QT MATCHES "^[56]?$")
  message(FATAL_ERROR "LARKMOOR_QT is '${LARKMOOR_QT}': set it to 5 or 6, or leave it empty")
endif()
set(versions ${LARKMOOR_QT})
if(NOT versions)
  set(versions 5 6)
endif()
# The oldest with names without a version, and the oldest that is tested.
set(oldest_5 5.15)
set(oldest_6 6.4)
# A single call with both names takes the one that the file system lists first.
foreach(version IN LISTS versions)
  find_package(QT ${oldest_${version}} NAMES Qt${version} QUIET COMPONENTS Core)
  if(QT_FOUND)
    break()
  endif()
endforeach()
if(NOT QT_FOUND)
  list(JOIN versions " or " versions)
  message(FATAL_ERROR "There is no Qt ${versions} (from ${oldest_5} or ${oldest_6} on): run scripts/setup, or name its folder in CMAKE_PREFIX_PATH")
endif()
find_package(Qt${QT_VERSION_MAJOR} ${oldest_${QT_VERSION_MAJOR}} REQUIRED
  COMPONENTS Core Gui Widgets LinguistTools)
message(STATUS "Qt ${QT_VERSION}")

# What Qt 6 itself is compiled for; Info.plist must not promise an older system.
if(APPLE)
  set(oldest_macos 10.13)
  foreach(each 6.0=10.14 6.5=11.0 6.8=12.0 6.10=13.0)
    string(REPLACE "=" ";" each ${each})
    list(POP_FRONT each version)
    if(QT_VERSION VERSION_GREATER_EQUAL version)
      set(oldest_macos ${each})
    endif()
  endforeach()
  if(CMAKE_OSX_DEPLOYMENT_TARGET VERSION_LESS oldest_macos)
    message(STATUS "Qt ${QT_VERSION} needs macOS ${oldest_macos}")
    set(CMAKE_OSX_DEPLOYMENT_TARGET ${oldest_macos})
  endif()
endif()

# Qt 6 has no targets of its plug-ins: they are found by their files.
get_target_property(larkmoor_qmake Qt${QT_VERSION_MAJOR}::qmake LOCATION)
set(LARKMOOR_QT_PLUGINS "" CACHE PATH "Folder of Qt's plug-ins; empty for the one that qmake tells")
set(folder ${LARKMOOR_QT_PLUGINS})
if(NOT folder)
  execute_process(COMMAND ${larkmoor_qmake} -query QT_INSTALL_PLUGINS
    OUTPUT_VARIABLE folder OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()
# In the cache for the benchmark's driver.
set(larkmoor_qt_plugins ${folder} CACHE INTERNAL "")
