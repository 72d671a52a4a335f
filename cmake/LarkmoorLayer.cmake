# larkmoor_layer(NAME SOURCES ... LINK ...): one folder of src/.
#
# Each layer is compiled separately against the libraries it names, so it can't include the headers of
# others. larkmoor_core combines the layers.
function(larkmoor_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINK" ${ARGN})
  add_library(larkmoor_${name} OBJECT ${LAYER_SOURCES})
  target_include_directories(larkmoor_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(larkmoor_${name} PRIVATE larkmoor_compile PUBLIC ${LAYER_LINK})
  # Hidden, so that the compiler may inline calls: with -fPIC, which Qt requires, it must assume that another
  # library interposes a visible function.
  set_target_properties(larkmoor_${name} PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  target_sources(larkmoor_core PRIVATE $<TARGET_OBJECTS:larkmoor_${name}>)
  target_link_libraries(larkmoor_core PUBLIC ${LAYER_LINK})
endfunction()
