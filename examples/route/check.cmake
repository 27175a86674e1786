# Runs the example on its messages and on hostile input: counts, rejects, outputs and exit statuses must be as told.
cmake_minimum_required(VERSION 3.25)

set(messages ${CMAKE_CURRENT_LIST_DIR}/messages.txt)
set(rejects ${OUTPUT}/check.rejects)
set(out ${OUTPUT}/check.out)
file(REMOVE_RECURSE ${rejects} ${out})

# run(STATUS argument...): the output, but for the speed, and the error text land in `output` and `error`.
function(run status)
  execute_process(COMMAND ${ROUTE} --out ${out} ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
                  ERROR_VARIABLE error)
  if(NOT result STREQUAL status)
    message(FATAL_ERROR "route ${ARGN}: status ${result} instead of ${status}\n${output}${error}")
  endif()
  string(REGEX REPLACE "messages per second +[0-9]+\n" "" output "${output}")
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
messages                              85
routed                                52
  cancels and changes                  2
  executions 4.2                       5
  executions 4.4                       7
  market data                          5
  orders 4.2                           3
  orders 4.4                           4
  orders of the block desk             2
  session                             17
  trading over FIXT                    7
rejected                              33
  failed                              29
  unhandled                            2
  unrecognised                         2
written                               52
  block.fix                            2
  changes.fix                          2
  executions.fix                      12
  fixt.fix                             7
  marketdata.fix                       5
  orders.fix                           7
  session.fix                         17
]])
expect("summary" "${output}" "${summary}33 rejected messages appended to ${rejects}\n")

# Each refusal, word for word; and the refused messages as they were.
file(READ ${rejects} text)
string(REPLACE ";" "" text "${text}")
string(REGEX MATCHALL "<Message>[^<\n]*" reasons "${text}")
list(TRANSFORM reasons REPLACE "<Message>" "")
list(JOIN reasons "\n" reasons)
expect("reasons" "${reasons}" [[
CheckSum (10) is 191, counted 184
BodyLength (9) is 129, counted 126
Unrecognized message format
MsgType (35) is not the third field
CheckSum (10) of three digits is not the last field
Unrecognized message format
Cannot handle message &ltDataObject&gt
Cannot handle message &ltDataObject&gt
input.format property cannot be empty in the message configuration
Unable to lookup 'AllocationIn'
'Name or value' can't be empty. Unable to parse tag=value of form 55IBM
Field 'Side' cannot be null.
Cannot convert '5S' to int
Tag 'Symbol[55]' expected.
Tag 'HandlInst[21]' expected.
Duplicate Tag 'ClOrdID[11]'.
Cannot convert 'ten' to int
TimeInForce '6' is not supported
Illegal date 2026-13-01
Account 'PRIVATE' is not a number
Validation 'check digit' failed. Field 'Instrument.ISIN' is not valid
Validation 'positive' failed. Field 'Quantity' is not valid
Unexpected tag 453
Tag '78' counts 3 elements, but there are 2
Tag '78' counts 1 elements, but there are 0
Duplicate section Tag '78'.
Unexpected end of input while looking for data
Blob type tag value pair has incorrect data length, character after the specified length is not the SOH character
Unexpected tag 1461
Cannot convert FF to char
Cannot convert '2x6' to double
Tag '555' counts 1 elements, but there are 0
Validation 'positive' failed. Field 'Quantity' is not valid]])
file(STRINGS ${rejects} refused REGEX "^[^#]")
list(LENGTH refused count)
expect("refused messages" "${count}" "33")
file(STRINGS ${messages} all)
foreach(message IN LISTS refused)
  if(NOT message IN_LIST all)
    message(FATAL_ERROR "not a message of ours: ${message}")
  endif()
endforeach()

# What was written is routed in its turn, without a single refusal.
run(0 --quiet --reject ${OUTPUT}/again.rejects --out ${OUTPUT}/again.out ${out}/orders.fix ${out}/executions.fix)
if(NOT output MATCHES "rejected +0\n")
  message(FATAL_ERROR "What was written is refused:\n${output}")
endif()

# All errors of a message that has many.
file(REMOVE ${rejects})
execute_process(COMMAND tail -n 1 ${messages} COMMAND ${ROUTE} --collect --quiet --reject ${rejects} --out ${out}
                OUTPUT_QUIET)
file(STRINGS ${rejects} fields REGEX "<FieldName>")
list(TRANSFORM fields REPLACE "^.*<FieldName>(.*)</FieldName>$" "\\1")
expect("fields with errors" "${fields}"
       "TargetCompID;OrderQty;Allocs;Quantity;Price;Instrument.ISIN")

# Carriage returns, empty lines and a missing last line end; the reject file is appended to.
file(WRITE ${OUTPUT}/check.txt "\r\n\n8=FIX.4.4|9=57|35=0|49=A|56=B|34=1|52=20260310-08:30:00.000|10=\r\n\nx")
run(0 --reject ${rejects} ${OUTPUT}/check.txt)
file(STRINGS ${rejects} reasons REGEX "^# check.txt:[35], ")
list(LENGTH reasons count)
expect("refused lines of check.txt" "${count}" "2")
file(STRINGS ${rejects} refused REGEX "^[^#]")
list(LENGTH refused count)
expect("refused messages in all" "${count}" "3")

run(0 --reject ${rejects} ${messages})
if(NOT output MATCHES ":49: unhandled, Cannot handle message <DataObject> <MessageFormat>FIX</MessageFormat> ")
  message(FATAL_ERROR "An error of several lines is not told on one:\n${output}")
endif()

run(0 --show --reject ${rejects} ${CMAKE_CURRENT_LIST_DIR}/demo.txt)
foreach(part "Normalised:\n<Order>" "Written to orders.fix as NewOrderSingle44Out:\n8=FIX.4.4|" "Rejected, failed:\n<Tr")
  string(FIND "${output}" "${part}" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "--show does not tell '${part}':\n${output}")
  endif()
endforeach()

run(1 --reject ${rejects} ${messages} ${OUTPUT}/no-such-file)
expect("missing file" "${output}${error}" "route: cannot read '${OUTPUT}/no-such-file': No such file or directory\n")
run(1 --reject ${OUTPUT}/check.txt ${OUTPUT}/check.txt)
run(1 --reject ${OUTPUT}/no-such-folder/rejects ${messages})
run(1 --reject ${rejects} --out ${OUTPUT}/check.txt ${messages})
run(2 --nonsense)
if(EXISTS /dev/full)
  run(1 --quiet --reject /dev/full ${messages})
  expect("full disk" "${output}${error}" "route: cannot write the reject file '/dev/full': No space left on device\n")
endif()
