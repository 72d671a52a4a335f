# Copies the licences of the bundle's libraries into it. Takes the paths "larkmoor_app" and
# "larkmoor_scripts"; the environment variable LARKMOOR_LICENSES may name a folder with more licences.
find_program(larkmoor_python python3 NO_CACHE)
if(NOT larkmoor_python)
  message(FATAL_ERROR "python3 is missing: run scripts/setup build")
endif()
execute_process(
  COMMAND ${larkmoor_python} ${larkmoor_scripts}/lib/licences.py copy ${larkmoor_app} $ENV{LARKMOOR_LICENSES}
  OUTPUT_VARIABLE missing
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "Can't copy the licences into ${larkmoor_app}, see the message above")
endif()
if(missing)
  string(STRIP "${missing}" missing)
  message(WARNING "The bundle can't ship without its licences: add them with make-bundle --licenses\n${missing}")
endif()
