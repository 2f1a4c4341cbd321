# Installs BUILD_DIR below an empty PREFIX: the library under its names, headers and nothing but headers.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE ${PREFIX})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
foreach(name libDOM.so libDOM.so.0 libDOM.so.${VERSION} pkgconfig/libDOM.pc
        cmake/DOM/DOMConfig.cmake cmake/DOM/DOMConfigVersion.cmake cmake/DOM/DOMTargets.cmake)
    if(NOT EXISTS ${PREFIX}/${LIBDIR}/${name})
        message(FATAL_ERROR "${LIBDIR}/${name} was not installed")
    endif()
endforeach()
if(NOT EXISTS ${PREFIX}/${INCLUDEDIR}/libDOM/DOM/DOM.h)
    message(FATAL_ERROR "the headers were not installed")
endif()
file(GLOB_RECURSE files ${PREFIX}/${INCLUDEDIR}/*)
list(FILTER files EXCLUDE REGEX "/libDOM/(Utils|CollaborationUtils|DOM)/.*\\.h$")
if(files)
    message(FATAL_ERROR "these are no headers of the library: ${files}")
endif()
