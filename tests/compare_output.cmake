# Runs EXE and compares its standard output with the file EXPECTED. The
# program must exit with status 0 (a hard failure of the library is a plain
# stop, status 0, too). On a difference both texts are shown and the test fails.
get_filename_component(name ${EXPECTED} NAME_WE)
set(got ${CMAKE_CURRENT_BINARY_DIR}/${name}.got)
execute_process(COMMAND ${EXE} OUTPUT_FILE ${got} ERROR_VARIABLE err RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "${EXE} exited with status ${rc}\n${err}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${got} ${EXPECTED}
                RESULT_VARIABLE differ)
if(differ)
  file(READ ${got} out)
  file(READ ${EXPECTED} want)
  message(FATAL_ERROR "output differs from ${EXPECTED}\n--- expected\n${want}--- got\n${out}---")
endif()
