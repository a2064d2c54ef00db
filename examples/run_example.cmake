# Runs PROGRAM and compares its output with the file EXPECTED.
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE printed ERROR_VARIABLE complaint RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}: ${complaint}")
endif()
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "${PROGRAM} printed\n${printed}\ninstead of\n${expected}")
endif()
