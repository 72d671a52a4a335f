# Copies the libraries of a Mac's bundle into it. Takes "bundle", its path, and "macdeployqt", that
# program's. Its own choice of plug-ins is switched off: those that were installed stand in the one
# folder where the launcher looks for them, and only need to be pointed to the libraries.
if(NOT EXISTS "${macdeployqt}")
  message(FATAL_ERROR "macdeployqt is missing: run scripts/setup build, or name it with LARKMOOR_MACDEPLOYQT")
endif()
file(GLOB_RECURSE plugins ${bundle}/Contents/Frameworks/plugins/*.dylib)
list(TRANSFORM plugins PREPEND -executable=)
execute_process(
  COMMAND ${macdeployqt} ${bundle} -no-plugins -always-overwrite ${plugins}
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "macdeployqt can't copy the libraries into ${bundle}, see its message above")
endif()
