#pragma once

#include <string>

#include "Utils/Public/Export.h"

/// What the name of a worksheet may hold: anything but ":\/?*[]", and an apostrophe only between other characters. The
/// empty name is that of a table that has none, and legal. Names are not compared here, nor limited in length.
namespace QN::DOM {

DOM_API bool validateTableName(const std::string& name);

/// A legal name as it stands, otherwise one that has a "_" for each run of characters that may not stand where they do.
DOM_API std::string fixTableNameIfNeed(const std::string& name);

} // namespace QN::DOM
