# Runs the example on its trades, on lines that it must refuse, and on files that it cannot read.
cmake_minimum_required(VERSION 3.25)

# expect(STATUS OUTPUT ERROR [argument...]): an empty OUTPUT stands for any.
function(expect status wantedOutput wantedError)
  execute_process(COMMAND ${VALUES} ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
  if(NOT result STREQUAL status OR NOT error STREQUAL wantedError
     OR NOT (wantedOutput STREQUAL "" OR output STREQUAL wantedOutput))
    message(FATAL_ERROR "values ${ARGN}: status ${result}\n${output}${error}\ninstead of ${status}\n"
                        "${wantedOutput}${wantedError}")
  endif()
endfunction()

expect(0 [[
02 Mar 2026, 09:30:00: bought 1500.0 ACME at 101.2375 for 151,856.25, key AKGyww==
02 Mar 2026, 09:30:01: sold 400.0 ACME at 101.25 for 40,500.00, key AKGyxA==
02 Mar 2026, 11:45:12: bought 250.0 GLOBE at 19.99 for 4,997.50, key fwD/
02 Mar 2026, 15:59:59: bought 12.5 ACME at 101.1 for 1,263.75, key AKGy2Q==
03 Mar 2026, 00:00:00: bought 12345678901234.567 COIN at 0.00000107 for 13,209,876.42, key 3q2+7w==
03 Mar 2026, 08:15:30: sold 0.1 COIN at 0.2 for 0.02, key 3q2+8A==
ACME: position 1112.5, paid exactly 112620.0 (in floating point 112620.0)
COIN: position 12345678901234.467, paid exactly 13209876.40432098669 (in floating point 13209876.40432099)
GLOBE: position 250.0, paid exactly 4997.5 (in floating point 4997.5)
]] "")

# refuses(LINE TEXT): the line, as the second of a file, ends the program with this text.
set(file ${OUTPUT}/refused.txt)
function(refuses line text)
  string(REPLACE "," ";" line "${line}")
  file(WRITE ${file} "# comment\n${line}\n")
  expect(1 "" "values: ${file}:2: ${text}\n" ${file})
endfunction()

set(time "2026-03-02 09:30:00.250")
refuses("${time}" "6 fields expected, found 1")
refuses("${time},A,BUY,1,2,FF," "6 fields expected, found 7")
refuses("2026-03-1x 09:30:00.250,A,BUY,1,2,FF" "'2026-03-1x 09:30:00.250' is no time")
refuses("2026-02-29 09:30:00.250,A,BUY,1,2,FF" "Illegal date 2026-02-29")
refuses("${time},A,HOLD,1,2,FF" "'HOLD' is neither BUY nor SELL")
refuses("${time},A,BUY,1.2.3,2,FF" "'1.2.3' is no decimal number")
refuses("${time},A,BUY,1,-2,FF" "'-2' is no decimal number")
refuses("${time},A,BUY,1,2,FFA" "'FFA' is no hex data")
expect(1 "" "values: ${OUTPUT}:0: cannot be read\n" ${OUTPUT})
expect(1 "" "values: ${OUTPUT}/missing:0: cannot be opened\n" ${OUTPUT}/missing)
if(EXISTS /dev/full)
  execute_process(COMMAND ${VALUES} OUTPUT_FILE /dev/full RESULT_VARIABLE result ERROR_QUIET)
  if(NOT result EQUAL 1)
    message(FATAL_ERROR "full disk: status ${result}")
  endif()
endif()
