# Copies the libraries of a Mac's bundle into it. Takes "larkmoor_app", its path, and "macdeployqt", that
# program's. Its own choice of plug-ins is switched off: those that were installed stand in the one
# folder where the launcher looks for them, and only need to be pointed to the libraries.
if(NOT EXISTS "${macdeployqt}")
  message(FATAL_ERROR "macdeployqt is missing: run scripts/setup build, or name it with LARKMOOR_MACDEPLOYQT")
endif()
file(GLOB_RECURSE plugins ${larkmoor_app}/Contents/Frameworks/plugins/*.dylib)
list(TRANSFORM plugins PREPEND -executable=)
execute_process(
  COMMAND ${macdeployqt} ${larkmoor_app} -no-plugins -always-overwrite ${plugins}
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "macdeployqt can't copy the libraries into ${larkmoor_app}, see its message above")
endif()
