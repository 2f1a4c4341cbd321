#pragma once

#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelRule.h"
#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimePatternItem.h"
#include "Utils/Public/Export.h"

namespace QN::DOM::CellFormatModel {

/// The fields that a literal date or time format shows, in the form that leaves their order to the locale. Text between
/// them does not matter, and of two items of one field the first decides its form.
///
/// An item without a localized form (an elapsed time, a number, a currency) makes the result empty, unless `lenient`
/// is true: then such items are left out. A type 0 or 1 (before or after noon) adds nothing and, surprising as it is,
/// forgives every such item that stands before it.
///
/// @return an empty set when the rule has no localized form; `DateTimeLocalizedExpression` does not take it.
DOM_API DateTimePatternItemSet convertDateTimeRuleToItemSet(const Rule& rule, bool lenient);

} // namespace QN::DOM::CellFormatModel
