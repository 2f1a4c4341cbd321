# A unit that includes the stock JSON archives beside the library's is refused, and the first error says why.
execute_process(
    COMMAND ${COMPILER} -std=c++20 -fsyntax-only -fno-diagnostics-show-caret -I${ROOT} ${SOURCE_DIR}/stock_archives.cpp
    RESULT_VARIABLE result ERROR_VARIABLE output)
if(result EQUAL 0)
    message(FATAL_ERROR "the unit compiled")
endif()
string(REGEX MATCH "error: [^\n]*" first "${output}")
string(REGEX MATCHALL "error: [^\n]*do not include <cereal/archives/json.hpp>" guards "${output}")
list(LENGTH guards count)
if(NOT count EQUAL 1 OR NOT first MATCHES "do not include <cereal/archives/json.hpp>")
    message(FATAL_ERROR "expected one #error before any other error, got:\n${output}")
endif()
