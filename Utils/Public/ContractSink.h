#pragma once

#include "Utils/Public/Assert.h"
#include "Utils/Public/CallableRef.h"

namespace QN {

/// Takes the place and the text of a contract that was found broken, as `doFailAssert` does. Invariants that are checked
/// through a sink can be asked for without stopping the process.
using ContractSink = CallableRef<void(const char* file, int line, const char* expression)>;

/// The sink that stops the process.
inline void stopAtContract(const char* file, int line, const char* expression)
{
    doFailAssert(file, line, expression);
}

} // namespace QN

/// Reports where it stands in the source to the sink when the condition does not hold, and goes on after it.
#define QN_REPORT_UNLESS(condition, sink)                                                                    \
    (static_cast<bool>(condition) ? static_cast<void>(0) : (sink)(__FILE__, __LINE__, #condition))
