#pragma once

#include <string>

namespace QN::Test {

/// A pattern for what a function prints that is not implemented. The signature is a pattern too, since compilers differ in
/// how they qualify parameters.
inline std::string makeNotImplementedPattern(const std::string& signature)
{
    return "false: " + signature + " is not implemented\n$";
}

} // namespace QN::Test
