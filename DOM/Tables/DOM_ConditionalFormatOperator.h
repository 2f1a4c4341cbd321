#pragma once

#include <boost/variant/variant.hpp>

#include "DOM/Tables/DOM_AboveAverageConditionalFormatOperator.h"
#include "DOM/Tables/DOM_BinaryConditionalFormatOperator.h"
#include "DOM/Tables/DOM_NullaryConditionalFormatOperator.h"
#include "DOM/Tables/DOM_TextConditionalFormatOperator.h"
#include "DOM/Tables/DOM_TopBottomConditionalFormatOperator.h"
#include "DOM/Tables/DOM_UnaryConditionalFormatOperator.h"
#include "DOM/Tables/DOM_UniquenessConditionalFormatOperator.h"

namespace QN::DOM {

/// The condition of a conditional format. The order of the alternatives is part of the file format.
using ConditionalFormatOperator =
    boost::variant<NullaryConditionalFormatOperator, UnaryConditionalFormatOperator,
                   BinaryConditionalFormatOperator, TextConditionalFormatOperator,
                   TopBottomConditionalFormatOperator, AboveAverageConditionalFormatOperator,
                   UniquenessConditionalFormatOperator>;

} // namespace QN::DOM
