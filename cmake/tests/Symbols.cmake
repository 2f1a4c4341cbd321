# What LIBRARY shows: its own names, its SONAME, nothing of the libraries inside it, no place of the machine it was
# built on.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

run(${NM} -D --defined-only -C ${LIBRARY})
expect("${RUN_OUTPUT}" " QN::doFailAssert\\(")
string(REPLACE ";" " " symbols "${RUN_OUTPUT}")
string(REPLACE "\n" ";" symbols "${symbols}")
list(FILTER symbols INCLUDE REGEX "(^|[^A-Za-z0-9_:])(rapidjson|fmt|utf8)::")
if(symbols)
    list(JOIN symbols "\n" symbols)
    message(FATAL_ERROR "symbols that are to stay inside are exported:\n${symbols}")
endif()

run(${READELF} -d ${LIBRARY})
expect("${RUN_OUTPUT}" "SONAME[^\n]*\\[libDOM\\.so\\.${SOVERSION}\\]")

file(STRINGS ${LIBRARY} paths REGEX "${SOURCE_DIR}/")
if(paths)
    message(FATAL_ERROR "the library names the folder it was built in:\n${paths}")
endif()
