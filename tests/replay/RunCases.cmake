# Runs the collected scan cases through scan_replay; says so and passes over them where they are absent.
if(NOT EXISTS ${SCRIPT} OR NOT PYTHON)
    message("skipped: no cases or no Python here")
    return()
endif()
execute_process(COMMAND ${PYTHON} ${SCRIPT} ${REPLAY} --hooks RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "scan cases failed")
endif()
