# The library: every source below cpp/ and mapm/, nothing but the compiler needed.
file(GLOB_RECURSE sources CONFIGURE_DEPENDS cpp/*.cpp mapm/*.cpp)
list(APPEND sources ${PROJECT_BINARY_DIR}/Version.cpp)

string(TIMESTAMP buildDate "%Y-%m-%d" UTC)  # SOURCE_DATE_EPOCH makes builds repeatable
configure_file(cmake/Version.cpp.in Version.cpp @ONLY)

add_library(zarvikrt ${sources})
add_library(zarvikrt::zarvikrt ALIAS zarvikrt)
target_compile_features(zarvikrt PUBLIC cxx_std_20)
target_include_directories(zarvikrt PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
  $<INSTALL_INTERFACE:include/zarvikrt>)
target_link_libraries(zarvikrt PRIVATE $<BUILD_INTERFACE:zarvikrt_house_rules>)
set_target_properties(zarvikrt PROPERTIES
  POSITION_INDEPENDENT_CODE ON
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR})
if(NOT BUILD_SHARED_LIBS)
  # Nothing names the version record, so a program takes it from the archive only when asked to.
  target_link_options(zarvikrt INTERFACE LINKER:--undefined=zarvikrtVersionRecord)
endif()
