# This system's Qt 5: its headers and tools, with stub libraries.
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
