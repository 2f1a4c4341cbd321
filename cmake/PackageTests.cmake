# Tests of what leaves the project: the installed tree, its packages and the symbols of the library.

find_program(DOM_PKG_CONFIG NAMES pkg-config pkgconf)
mark_as_advanced(DOM_PKG_CONFIG)

set(scripts ${PROJECT_SOURCE_DIR}/cmake/tests)
set(consumer ${PROJECT_SOURCE_DIR}/tests/consumer)
set(prefix ${CMAKE_CURRENT_BINARY_DIR}/prefix)

add_test(NAME archives.stock_ones_are_refused
    COMMAND ${CMAKE_COMMAND} -DCOMPILER=${CMAKE_CXX_COMPILER} -DROOT=${PROJECT_SOURCE_DIR} -DSOURCE_DIR=${consumer}
        -P ${scripts}/StockArchives.cmake)
add_test(NAME library.symbols
    COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} -DREADELF=${CMAKE_READELF} -DLIBRARY=$<TARGET_FILE:DOM>
        -DSOVERSION=${PROJECT_VERSION_MAJOR} -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
        -P ${scripts}/Symbols.cmake)
set_tests_properties(archives.stock_ones_are_refused library.symbols PROPERTIES LABELS install)

# The consumer starts with the one header that has everything.
if(EXISTS ${PROJECT_SOURCE_DIR}/DOM/DOM.h)
    add_test(NAME install.prefix
        COMMAND ${CMAKE_COMMAND} -DBUILD_DIR=${PROJECT_BINARY_DIR} -DPREFIX=${prefix} -DVERSION=${PROJECT_VERSION}
            -DLIBDIR=${CMAKE_INSTALL_LIBDIR} -DINCLUDEDIR=${CMAKE_INSTALL_INCLUDEDIR}
            -P ${scripts}/InstallPrefix.cmake)
    add_test(NAME install.find_package
        COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${consumer} -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/consumer
            -DPREFIX=${prefix} -DCOMPILER=${CMAKE_CXX_COMPILER} -DBUILD_TYPE=${CMAKE_BUILD_TYPE}
            -P ${scripts}/FindPackage.cmake)
    add_test(NAME install.pkg_config
        COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${consumer} -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/consumer-pkg-config
            -DPREFIX=${prefix} -DLIBDIR=${CMAKE_INSTALL_LIBDIR} -DVERSION=${PROJECT_VERSION}
            -DCOMPILER=${CMAKE_CXX_COMPILER} -DPKG_CONFIG=${DOM_PKG_CONFIG}
            -P ${scripts}/PkgConfig.cmake)
    set_tests_properties(install.prefix PROPERTIES FIXTURES_SETUP installed LABELS install)
    set_tests_properties(install.find_package install.pkg_config PROPERTIES
        FIXTURES_REQUIRED installed LABELS install TIMEOUT 300)
endif()
