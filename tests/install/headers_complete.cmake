# Fails when the umbrella header lacks a public header. -DINCLUDE=<folder of the headers>
file(GLOB_RECURSE headers RELATIVE ${INCLUDE} ${INCLUDE}/*.h)
file(READ ${INCLUDE}/zarvikrt.h umbrella)
foreach(header ${headers})
  string(FIND "${umbrella}" "#include \"${header}\"" position)
  if(position EQUAL -1 AND NOT header STREQUAL "zarvikrt.h")
    message(SEND_ERROR "zarvikrt.h does not include ${header}")
  endif()
endforeach()
