#pragma once

#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

/// Parts of formats with every member set.

namespace QN::DOM::CellFormatModel {

using namespace QN::Test;

inline NumberItem makeNumberItem()
{
    NumberItem item;
    item.setRole(NumberItem::Role::Mantissa);
    item.setPattern("#,##0.00");
    item.setGrouping(true);
    item.setDisplayFactor(1000);
    item.setEmbeddedItems({{3, CurrencyItem("kr", 1030U)}, {5, TextItem(TextItem::Type::Literal, "-")}});
    return item;
}

/// An item of each kind and every property.
inline Rule makeFullRule()
{
    Rule rule({CurrencyItem("EUR"), DateTimeItem(DateTimeItem::Type::Second, 3),
               ExtraItem(ExtraItem::Type(9)), makeNumberItem(), TextItem(TextItem::Type::CellText, "@")},
              Rule::Color(1, 2, 3, 4));
    rule.setCondition(Condition(Condition::Type::Less, FloatNumber(-1.5)));
    rule.setCalendar(Calendar::Hijri);
    rule.setLanguage(1031U);
    rule.setTransliteration(Transliteration::Long);
    return rule;
}

inline DateTimeLocalizedExpression makeLocalized()
{
    return DateTimeLocalizedExpression(
        DateTimePatternItemSet{{DateTimePatternToken::Year, 1}, {DateTimePatternToken::Hour, 0}});
}

} // namespace QN::DOM::CellFormatModel
