#include "DOM/Tables/DOM_TextConditionalFormatOperator.h"

#include <boost/variant/get.hpp>

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(TextConditionalFormatOperator)
QN_DEFINE_COPY_ASSIGNMENT(TextConditionalFormatOperator)

TextConditionalFormatOperator::TextConditionalFormatOperator(const TextConditionalFormatOperator& other)
    : _type(other._type)
{
    if (const auto* const text = boost::get<std::string>(&other._argument)) {
        _argument = *text;
    } else {
        _argument = deepCopy(boost::get<ExprPtr>(other._argument));
    }
}

} // namespace QN::DOM
