# larkmoor_layer(NAME SOURCES ... LINK ...): one folder of src/.
#
# Each layer is compiled by itself, against the libraries it names and no others, so that a layer
# that must not know of a library can't include its headers. larkmoor_core gathers the layers.
function(larkmoor_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINK" ${ARGN})
  add_library(larkmoor_${name} OBJECT ${LAYER_SOURCES})
  target_include_directories(larkmoor_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(larkmoor_${name} PRIVATE larkmoor_compile PUBLIC ${LAYER_LINK})
  # Hidden, so that calls within a file may be inlined: Qt asks for -fPIC, and under it the compiler
  # has to expect that a visible function is replaced by another library's.
  set_target_properties(larkmoor_${name} PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  target_sources(larkmoor_core PRIVATE $<TARGET_OBJECTS:larkmoor_${name}>)
  target_link_libraries(larkmoor_core PUBLIC ${LAYER_LINK})
endfunction()
