#pragma once

#include <vector>

#include "DOM/DOM_NumberedList.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

class SharedObjectFactory;

/// The fifteen lists that new documents receive, of nine levels each: seven bulleted, seven numbered, one outline. Their
/// UUIDs are new at each call. Levels that look alike share their style, which comes from the given pools.
///
/// The order is fixed and not that of the names: hyphens come before diamonds. On purpose, `DecimalWithParenthesis` closes
/// with parentheses down to level 6 only and with full stops from level 7 on.
DOM_API std::vector<NumberedList> createPredefinedNumLists(const SharedObjectFactory& factory);

/// Appends those predefined lists of whose levels no list of `lists` has equal ones, whatever its name.
DOM_API void appendPredefinedNumLists(const SharedObjectFactory& factory, std::vector<NumberedList>& lists);

} // namespace QN::DOM
