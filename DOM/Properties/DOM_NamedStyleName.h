#pragma once

#include <boost/blank.hpp>
#include <boost/variant/variant.hpp>

#include <string>

#include "DOM/PredefinedStyles/DOM_PredefinedStyleName.h"

namespace QN::DOM {

/// The name of a named style: none, a predefined one, or a text of the user's.
using NamedStyleName = boost::variant<boost::blank, PredefinedStyleName, std::string>;

} // namespace QN::DOM
