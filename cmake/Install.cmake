# What `cmake --install` gives: headers, library, the CMake package zarvikrt::zarvikrt and zarvikrt.pc.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/zarvikrt)
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zarvikrt)
install(TARGETS zarvikrt EXPORT zarvikrtTargets)
install(EXPORT zarvikrtTargets NAMESPACE zarvikrt:: DESTINATION ${packageDir})

configure_package_config_file(cmake/zarvikrtConfig.cmake.in zarvikrtConfig.cmake INSTALL_DESTINATION ${packageDir})
write_basic_package_version_file(zarvikrtConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zarvikrtConfig.cmake ${PROJECT_BINARY_DIR}/zarvikrtConfigVersion.cmake
        DESTINATION ${packageDir})

# The package file finds the prefix from where it lies itself, so that an installed tree may be moved.
file(RELATIVE_PATH pcPrefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" pcPrefix ${pcPrefix})
set(pcLinkOptions "")
if(NOT BUILD_SHARED_LIBS)
  set(pcLinkOptions "-Wl,--undefined=zarvikrtVersionRecord")
endif()
configure_file(cmake/zarvikrt.pc.in zarvikrt.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zarvikrt.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
