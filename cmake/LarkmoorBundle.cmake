# The layout of Larkmoor.app for "cmake --install" and CPack. It is the same on every system, because the
# launcher finds its files relative to its executable.
#
#   LARKMOOR_PACKAGE   the client's package
#   LARKMOOR_INFO      the INFO beside it (default: the one in the package)
#
# Both are read at installation, from the environment first, so that one build serves many packages.
set(LARKMOOR_PACKAGE "" CACHE FILEPATH "The client's package")
set(LARKMOOR_INFO "" CACHE FILEPATH "INFO of the bundle; empty for the one inside the package")

set(LARKMOOR_BUNDLE Larkmoor.app)
set(contents ${LARKMOOR_BUNDLE}/Contents)
set(resources ${PROJECT_SOURCE_DIR}/resources)

# The launcher's architectures, which scripts/check-bundle requires of all programs in the bundle.
set(LARKMOOR_ARCHITECTURES)
if(APPLE)
  set(architectures ${CMAKE_OSX_ARCHITECTURES})
  if(NOT architectures)
    set(architectures ${CMAKE_SYSTEM_PROCESSOR})
  endif()
  list(TRANSFORM architectures PREPEND "    <string>")
  list(TRANSFORM architectures APPEND "</string>\n")
  list(JOIN architectures "" architectures)
  string(CONCAT LARKMOOR_ARCHITECTURES "  <key>LSArchitecturePriority</key>\n"
    "  <array>\n${architectures}  </array>\n")
endif()
configure_file(${resources}/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)

if(APPLE)
  set_target_properties(launcher PROPERTIES INSTALL_RPATH "@executable_path/../Frameworks")
endif()
install(TARGETS launcher RUNTIME DESTINATION ${contents}/MacOS COMPONENT bundle)
install(FILES ${PROJECT_BINARY_DIR}/Info.plist DESTINATION ${contents} COMPONENT bundle)
install(FILES ${resources}/larkmoor.icns DESTINATION ${contents}/Resources COMPONENT bundle)
install(FILES ${resources}/images/ico_72_larkmoor.png
  DESTINATION ${contents}/Resources/images COMPONENT bundle)

# The launcher looks for plug-ins only here. PNG is built into Qt; without xcb's GL integrations the dialog
# takes a third of the memory.
if(APPLE)
  set(plugins platforms/libqcocoa platforms/libqoffscreen styles/libqmacstyle)
else()
  set(plugins platforms/libqxcb platforms/libqoffscreen platforms/libqminimal)
endif()
foreach(plugin IN LISTS plugins)
  set(file ${larkmoor_qt_plugins}/${plugin}${CMAKE_SHARED_LIBRARY_SUFFIX})
  if(EXISTS ${file})
    get_filename_component(folder ${plugin} DIRECTORY)
    install(FILES ${file} DESTINATION ${contents}/Frameworks/plugins/${folder} COMPONENT bundle)
  else()
    message(WARNING "Qt comes without ${file}: the bundle lacks it")
  endif()
endforeach()

if(APPLE)
  get_filename_component(qt_programs ${larkmoor_qmake} DIRECTORY)
  # Not cached: another Qt has another one.
  set(macdeployqt ${LARKMOOR_MACDEPLOYQT})
  find_program(macdeployqt macdeployqt HINTS ${qt_programs} NO_CACHE)
  # No variable may have the name of a component: the generated script compares with "bundle".
  install(CODE "
    set(macdeployqt \"${macdeployqt}\")
    set(larkmoor_app \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${LARKMOOR_BUNDLE}\")
    include(\"${CMAKE_CURRENT_LIST_DIR}/CopyLibraries.cmake\")"
    COMPONENT bundle)
endif()

# After everything that installs a library.
install(CODE "
  set(larkmoor_app \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${LARKMOOR_BUNDLE}\")
  set(larkmoor_scripts \"${PROJECT_SOURCE_DIR}/scripts\")
  include(\"${CMAKE_CURRENT_LIST_DIR}/CopyLicences.cmake\")"
  COMPONENT bundle)

configure_file(${CMAKE_CURRENT_LIST_DIR}/InstallPackage.cmake.in
  ${PROJECT_BINARY_DIR}/InstallPackage.cmake @ONLY)
install(SCRIPT ${PROJECT_BINARY_DIR}/InstallPackage.cmake COMPONENT bundle)

set(CPACK_PACKAGE_NAME Larkmoor)
set(CPACK_PACKAGE_VENDOR Larkmoor)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Launcher and self-upgrader of Larkmoor Drive")
set(CPACK_PACKAGE_FILE_NAME Larkmoor-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME})
set(CPACK_GENERATOR TGZ)
if(APPLE)
  list(APPEND CPACK_GENERATOR DragNDrop)
endif()
set(CPACK_COMPONENTS_ALL bundle)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
