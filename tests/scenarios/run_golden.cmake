# Runs one golden scenario on a fresh bank and compares its output with the
# expected file beside it. Set OBSDESK_UPDATE_GOLDEN=1 to write the expected file.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
# The bank starts as a copy of one made bank (making one syncs every database);
# a scenario whose first line speaks of a first start begins on an empty folder.
file(STRINGS ${SCENARIO} first_line LIMIT_COUNT 1)
if(DEFINED MADE_BANK AND EXISTS ${MADE_BANK} AND NOT first_line MATCHES "first start")
  file(COPY ${MADE_BANK}/ DESTINATION ${WORK}/bank)
endif()
string(REGEX REPLACE "\\.scenario$" ".out" expected ${SCENARIO})
get_filename_component(scenario_dir ${SCENARIO} DIRECTORY)
execute_process(
  COMMAND ${CLI} --bank ${WORK}/bank run ${SCENARIO}
  WORKING_DIRECTORY ${scenario_dir}
  OUTPUT_FILE ${WORK}/actual.out
  ERROR_FILE ${WORK}/actual.err
  RESULT_VARIABLE status)
file(READ ${WORK}/actual.err err)
file(APPEND ${WORK}/actual.out "${err}")
file(APPEND ${WORK}/actual.out "exit status ${status}\n")
if(DEFINED ENV{OBSDESK_UPDATE_GOLDEN})
  file(COPY_FILE ${WORK}/actual.out ${expected})
  return()
endif()
if(NOT EXISTS ${expected})
  message(FATAL_ERROR "no expected output ${expected}; run with OBSDESK_UPDATE_GOLDEN=1 to create it")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${expected} ${WORK}/actual.out RESULT_VARIABLE differs)
if(differs)
  execute_process(COMMAND diff -u ${expected} ${WORK}/actual.out)
  message(FATAL_ERROR "scenario output differs from ${expected}")
endif()
