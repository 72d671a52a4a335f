# larkmoor_archive: libarchive, to compile against and to link.
add_library(larkmoor_archive INTERFACE)
target_include_directories(larkmoor_archive SYSTEM INTERFACE ${LibArchive_INCLUDE_DIRS})
target_link_libraries(larkmoor_archive INTERFACE
  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:LARKMOOR_ARCHIVE_ON_DEMAND>>>:LibArchive::LibArchive>)

# larkmoor_load_archive_on_demand(TARGET): lets an executable load libarchive for the first call of it
# instead of at its start, and tells the library's soname in its property LARKMOOR_ARCHIVE_ON_DEMAND.
# On a Mac it is linked: macdeployqt finds only what is.
function(larkmoor_load_archive_on_demand target)
  list(GET LibArchive_LIBRARIES 0 library)
  if(LARKMOOR_PLATFORM STREQUAL "posix" AND CMAKE_READELF)
    execute_process(COMMAND ${CMAKE_READELF} -d ${library}
      OUTPUT_VARIABLE sections ERROR_QUIET)
  endif()
  if(NOT sections MATCHES "\\(SONAME\\)[^[]*\\[([^]]+)\\]")
    message(STATUS "${target} is linked with libarchive")
    return()
  endif()
  set(soname ${CMAKE_MATCH_1})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${library})
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src/platform/archive-on-demand-posix.cpp)
  target_compile_definitions(${target} PRIVATE LARKMOOR_ARCHIVE_SONAME="${soname}")
  target_link_libraries(${target} PRIVATE ${CMAKE_DL_LIBS})
  # Hidden, so that no library in the process takes these functions for libarchive's.
  set_target_properties(${target} PROPERTIES
    LARKMOOR_ARCHIVE_ON_DEMAND ${soname}
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  # As for a library that is linked: where it was found is where the build runs with it.
  get_filename_component(folder ${library} DIRECTORY)
  if(NOT folder IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
    set_property(TARGET ${target} APPEND PROPERTY BUILD_RPATH ${folder})
  endif()
endfunction()
