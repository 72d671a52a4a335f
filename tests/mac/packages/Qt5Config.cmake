# This system's Qt 5, its headers and programs, with stub libraries in place of its own and a Mac's
# plug-ins in place of Linux's.
file(GLOB larkmoor_qt /usr/lib/*/cmake/Qt5/Qt5Config.cmake)
include(${larkmoor_qt})
get_filename_component(sdk ${CMAKE_CURRENT_LIST_DIR}/../../../build/mac-sdk ABSOLUTE)
foreach(part Core Gui Widgets Test)
  if(TARGET Qt5::${part})
    set_target_properties(Qt5::${part} PROPERTIES
      IMPORTED_CONFIGURATIONS RELEASE
      IMPORTED_LOCATION_RELEASE ${sdk}/usr/lib/Qt${part}.tbd)
  endif()
endforeach()
foreach(plugin platforms/cocoa/QCocoaIntegrationPlugin platforms/offscreen/QOffscreenIntegrationPlugin
    styles/macstyle/QMacStylePlugin)
  string(REGEX MATCH "^([a-z]+)/([a-z]+)/(.+)$" plugin ${plugin})
  if(NOT TARGET Qt5::${CMAKE_MATCH_3})
    add_library(Qt5::${CMAKE_MATCH_3} MODULE IMPORTED)
  endif()
  set_target_properties(Qt5::${CMAKE_MATCH_3} PROPERTIES
    IMPORTED_CONFIGURATIONS RELEASE
    IMPORTED_LOCATION_RELEASE ${sdk}/plugins/${CMAKE_MATCH_1}/libq${CMAKE_MATCH_2}.dylib)
endforeach()
