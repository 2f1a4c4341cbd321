#pragma once

#include <boost/variant/variant.hpp>

#include <string>

#include "Utils/Public/UUID.h"

namespace QN::DOM::FormulaSyntaxTree {

/// The sheet that a reference goes to, by its name or by its table's identity. By default an empty name. A name and an
/// identity are different even where they denote one table.
using TableAddress = boost::variant<std::string, UUID>;

} // namespace QN::DOM::FormulaSyntaxTree
