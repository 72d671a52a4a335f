# Copies the libraries of a Mac's bundle into it. Takes the paths "larkmoor_app" and "macdeployqt".
# macdeployqt doesn't select plug-ins: the installed ones are in the only folder where the launcher looks,
# and it only points them to the libraries.
if(NOT EXISTS "${macdeployqt}")
  message(FATAL_ERROR "macdeployqt is missing: run scripts/setup build, or set LARKMOOR_MACDEPLOYQT to its path")
endif()
file(GLOB_RECURSE plugins ${larkmoor_app}/Contents/Frameworks/plugins/*.dylib)
list(TRANSFORM plugins PREPEND -executable=)
execute_process(
  COMMAND ${macdeployqt} ${larkmoor_app} -no-plugins -always-overwrite ${plugins}
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "macdeployqt can't copy the libraries into ${larkmoor_app}, see its message above")
endif()
