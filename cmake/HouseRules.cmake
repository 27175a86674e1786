# How our own code is compiled: the language, the warnings, and warnings as errors where the preset says so. Where it is
# optimised, each function begins a cache line: how fast one is must not hang on the length of those before it (a tenth
# of the time of parsing did).
add_library(zarvikrt_house_rules INTERFACE)
target_compile_features(zarvikrt_house_rules INTERFACE cxx_std_20)
target_compile_options(zarvikrt_house_rules INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion
  $<IF:$<CXX_COMPILER_ID:Clang>,-Wshadow,-Wshadow=local>
  $<$<CONFIG:Release,RelWithDebInfo>:-falign-functions=64>)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
