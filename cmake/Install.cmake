# Installs the library, its headers, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

install(TARGETS DOM EXPORT DOMTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY Utils CollaborationUtils DOM
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/libDOM
    FILES_MATCHING PATTERN "*.h")

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/DOM)
install(EXPORT DOMTargets NAMESPACE DOM:: DESTINATION ${packageDir})
configure_package_config_file(cmake/DOMConfig.cmake.in ${PROJECT_BINARY_DIR}/DOMConfig.cmake
    INSTALL_DESTINATION ${packageDir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/DOMConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/DOMConfig.cmake ${PROJECT_BINARY_DIR}/DOMConfigVersion.cmake
    DESTINATION ${packageDir})

# The file finds its prefix by its own place, so that an installed tree can be moved.
cmake_path(SET pkgConfigDir NORMALIZE "/${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH DOM_PREFIX_FROM_PKGCONFIG ${pkgConfigDir} /)
string(REGEX REPLACE "/$" "" DOM_PREFIX_FROM_PKGCONFIG ${DOM_PREFIX_FROM_PKGCONFIG})
configure_file(cmake/libDOM.pc.in ${PROJECT_BINARY_DIR}/libDOM.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/libDOM.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
