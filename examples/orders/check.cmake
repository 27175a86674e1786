# What the example prints must be what stands beside it, and the files that it writes must be there.
set(folder ${OUTPUT}/files)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})
execute_process(COMMAND ${ORDERS} ${CMAKE_CURRENT_LIST_DIR}/messages.txt ${folder}
                RESULT_VARIABLE result OUTPUT_VARIABLE output)
file(GLOB files RELATIVE ${folder} ${folder}/*)
list(SORT files)
string(APPEND output "files: ${files}\n")
file(READ ${CMAKE_CURRENT_LIST_DIR}/expected.txt expected)
if(NOT result EQUAL 0 OR NOT output STREQUAL expected)
  message(FATAL_ERROR "status ${result}:\n${output}\ninstead of\n${expected}")
endif()
