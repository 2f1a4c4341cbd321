#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeLocalizedExpression.h"

#include <utility>

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

namespace {

DateTimeFormatType deriveFormatType(const DateTimePatternItemSet& items)
{
    bool hasDate = false;
    bool hasTime = false;
    for (const DateTimePatternItem& item : items) {
        if (item.token <= DateTimePatternToken::Year) {
            hasDate = true;
        } else if (item.token <= DateTimePatternToken::Second) {
            hasTime = true;
        }
    }
    QN_CONTRACT(hasDate || hasTime,
                "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/"
                "DOM_FormatModelDateTimeLocalizedExpression",
                __LINE__, "Neither date nor time is set");
    if (hasDate && hasTime) {
        return DateTimeFormatType::DateTime;
    }
    return hasDate ? DateTimeFormatType::Date : DateTimeFormatType::Time;
}

const DateTimePatternItemSet& getDefaultItems(DateTimeDefaultType type)
{
    using enum DateTimePatternToken;
    static const DateTimePatternItemSet DateItems{{Month, 0}, {Day, 0}, {Year, 0}};
    static const DateTimePatternItemSet TimeItems{{Hour, 0}, {Minute, 0}, {Second, 0}};
    static const DateTimePatternItemSet DateTimeItems{
        {Month, 0}, {Day, 0}, {Year, 0}, {Hour, 0}, {Minute, 0}};
    static const DateTimePatternItemSet NoItems;
    switch (type) {
    case DateTimeDefaultType::Date:
        return DateItems;
    case DateTimeDefaultType::Time:
        return TimeItems;
    case DateTimeDefaultType::DateTime:
        return DateTimeItems;
    }
    return NoItems;
}

} // namespace

DateTimeLocalizedExpression::DateTimeLocalizedExpression(DateTimePatternItemSet items)
    : _dateTimePatternItemSet(std::move(items)), _formatType(deriveFormatType(_dateTimePatternItemSet))
{
}

DateTimeLocalizedExpression::DateTimeLocalizedExpression(DateTimeDefaultType type)
    : DateTimeLocalizedExpression(DateTimePatternItemSet(getDefaultItems(type)))
{
}

QN_DEFINE_ORDERED_VALUE(DateTimeLocalizedExpression)

} // namespace QN::DOM::CellFormatModel
