# What the example prints must be what stands beside it.
execute_process(COMMAND ${ORDERS} RESULT_VARIABLE result OUTPUT_VARIABLE output)
file(READ ${EXPECTED} expected)
if(NOT result EQUAL 0 OR NOT output STREQUAL expected)
  message(FATAL_ERROR "status ${result}:\n${output}\ninstead of\n${expected}")
endif()
