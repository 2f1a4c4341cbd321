#pragma once

#include <boost/utility/string_ref.hpp>

#include "Utils/Public/Export.h"

/// Contracts: what the calling code must keep to. The checks stand in every build, and a broken one ends the process.

namespace QN {

/// Writes "file:line: expression" to standard error and aborts.
[[noreturn]] DOM_API void doFailAssert(const char* file, int line, const char* expression);

/// Writes "file:line: expression: message" to standard error and aborts.
[[noreturn]] DOM_API void doFailAssert(const char* file, int line, const char* expression,
                                       boost::string_ref message);

} // namespace QN

/// A contract whose place and text are fixed, whatever the source looks like. `file` is given without a suffix.
#define QN_CONTRACT(condition, file, line, text)                                                             \
    (static_cast<bool>(condition) ? static_cast<void>(0) : ::QN::doFailAssert(file, line, text))

#define QN_CONTRACT_MESSAGE(condition, file, line, text, message)                                            \
    (static_cast<bool>(condition) ? static_cast<void>(0) : ::QN::doFailAssert(file, line, text, message))

/// A contract that reports where it stands in the source.
#define QN_ASSERT(condition) QN_CONTRACT(condition, __FILE__, __LINE__, #condition)

#define QN_ASSERT_MESSAGE(condition, text, message)                                                          \
    QN_CONTRACT_MESSAGE(condition, __FILE__, __LINE__, text, message)
