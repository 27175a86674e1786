# Runs the example on its messages and on hostile input: counts, rejects and exit statuses must be as told.
cmake_minimum_required(VERSION 3.25)

set(messages ${CMAKE_CURRENT_LIST_DIR}/messages.txt)
set(rejects ${OUTPUT}/check.rejects)
file(REMOVE ${rejects})

# run(STATUS argument...): the output and the error text land in `output` and `error`.
function(run status)
  execute_process(COMMAND ${ROUTE} ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
  if(NOT result STREQUAL status)
    message(FATAL_ERROR "route ${ARGN}: status ${result} instead of ${status}\n${output}${error}")
  endif()
  set(output "${output}" PARENT_SCOPE)
  set(error "${error}" PARENT_SCOPE)
endfunction()

function(expect what text wanted)
  if(NOT text STREQUAL wanted)
    message(FATAL_ERROR "${what}:\n${text}\ninstead of\n${wanted}")
  endif()
endfunction()

run(0 --quiet --reject ${rejects} ${messages})
set(summary [[
messages                          59
routed                            45
  cancels and changes              2
  executions                      12
  market data                      5
  orders 4.2                       2
  orders 4.4                       2
  orders 5.0 SP2                   2
  orders as logged on              1
  orders of the block desk         2
  session                         17
unrecognised                       6
unhandled                          3
failed                             5
]])
expect("summary" "${output}" "${summary}14 rejected messages appended to ${rejects}\n")

# Each class of refusal, word for word; and the refused messages as they were.
file(STRINGS ${rejects} reasons REGEX "^# messages.txt")
list(TRANSFORM reasons REPLACE "^# messages.txt:[0-9]+: zarvik::" "")
list(JOIN reasons "\n" reasons)
expect("reasons" "${reasons}" [[
UnrecognizedMessageException: Unrecognized message format (CheckSum (10) is 191, counted 184)
UnrecognizedMessageException: Unrecognized message format (BodyLength (9) is 129, counted 126)
UnrecognizedMessageException: Unrecognized message format (BeginString (8) is not the first field)
UnrecognizedMessageException: Unrecognized message format (MsgType (35) is not the third field)
UnrecognizedMessageException: Unrecognized message format (CheckSum (10) of three digits is not the last field)
UnrecognizedMessageException: Unrecognized message format (BeginString (8) is not the first field)
UnhandledMessageException: Cannot handle message <FixHeader>
UnhandledMessageException: Cannot handle message <FixHeader>
UnhandledMessageException: Cannot handle message <FixHeader>
TransformException: input.format property cannot be empty in the message configuration
NamingException: Unable to lookup 'FixAllocations' (row allocations)
FieldParsingException: Field 9 '55IBM' has no '=' (row orders 4.4)
FieldParsingException: Field 10 '54=' has no value (row orders 4.4)
FieldParsingException: Field 9 '5S=IBM' has no number as its tag (row orders 4.4)]])
file(STRINGS ${rejects} refused REGEX "^[^#]")
list(LENGTH refused count)
expect("refused messages" "${count}" "14")
file(STRINGS ${messages} all)
foreach(message IN LISTS refused)
  if(NOT message IN_LIST all)
    message(FATAL_ERROR "not a message of ours: ${message}")
  endif()
endforeach()

# Carriage returns, empty lines and a missing last line end; the reject file is appended to.
file(WRITE ${OUTPUT}/check.txt "\r\n\n8=FIX.4.4|9=57|35=0|49=A|56=B|34=1|52=20260310-08:30:00.000|10=\r\n\nx")
run(0 --reject ${rejects} ${OUTPUT}/check.txt)
file(STRINGS ${rejects} reasons REGEX "^# check.txt:[35]: ")
list(LENGTH reasons count)
expect("refused lines of check.txt" "${count}" "2")
file(STRINGS ${rejects} refused REGEX "^[^#]")
list(LENGTH refused count)
expect("refused messages in all" "${count}" "16")

run(1 --reject ${rejects} ${messages} ${OUTPUT}/no-such-file)
expect("missing file" "${output}${error}" "route: cannot read '${OUTPUT}/no-such-file': No such file or directory\n")
run(1 --reject ${OUTPUT}/check.txt ${OUTPUT}/check.txt)
run(1 --reject ${OUTPUT}/no-such-folder/rejects ${messages})
run(2 --nonsense)
if(EXISTS /dev/full)
  run(1 --quiet --reject /dev/full ${messages})
  expect("full disk" "${output}${error}" "route: cannot write the reject file '/dev/full': No space left on device\n")
endif()
