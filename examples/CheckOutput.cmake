# Runs COMMAND (a list), with the file INPUT as standard input if there is one, and compares its exit status, 0 or
# STATUS, and all that it writes with the file EXPECTED.
if(INPUT)
    set(input INPUT_FILE ${INPUT})
endif()
execute_process(COMMAND ${COMMAND} ${input} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status TIMEOUT 60)
file(READ ${EXPECTED} expected)
if(NOT STATUS)
    set(STATUS 0)
endif()
if(NOT status STREQUAL STATUS OR NOT output STREQUAL expected)
    message(FATAL_ERROR "exit status ${status} (expected ${STATUS}), output:\n${output}\nexpected:\n${expected}")
endif()
