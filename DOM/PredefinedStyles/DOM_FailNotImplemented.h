#pragma once

#include <string>

#include "Utils/Public/Assert.h"

/// Fails a contract with the full signature of the function that it stands in.
#define QN_FAIL_NOT_IMPLEMENTED()                                                                            \
    ::QN::doFailAssert(__FILE__, __LINE__, "false", std::string(__PRETTY_FUNCTION__) + " is not implemented")
