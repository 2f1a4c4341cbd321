#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeConversion.h"

#include <boost/container/flat_map.hpp>
#include <boost/variant/apply_visitor.hpp>

namespace QN::DOM::CellFormatModel {

namespace {

using Table = boost::container::flat_map<DateTimeItem::Type, DateTimePatternItem>;

const Table& getTable()
{
    using Type = DateTimeItem::Type;
    using Token = DateTimePatternToken;
    static const Table Localized{
        {Type::Day, {Token::Day, 0}},
        {Type::DayTwoDigits, {Token::Day, 0}},
        {Type::WeekdayShort, {Token::Weekday, 0}},
        {Type::WeekdayLong, {Token::Weekday, 0}},
        {Type::Hour, {Token::Hour, 0}},
        {Type::HourTwoDigits, {Token::Hour, 0}},
        {Type::Minute, {Token::Minute, 0}},
        {Type::MinuteTwoDigits, {Token::Minute, 0}},
        {Type::Second, {Token::Second, 0}},
        {Type::SecondTwoDigits, {Token::Second, 0}},
        {Type::Month, {Token::Month, 0}},
        {Type::MonthTwoDigits, {Token::Month, 0}},
        {Type::MonthShort, {Token::Month, 2}},
        {Type::MonthLong, {Token::Month, 1}},
        {Type::MonthInitial, {Token::Month, 2}},
        {Type::YearTwoDigits, {Token::Year, 1}},
        {Type::Year, {Token::Year, 0}},
    };
    return Localized;
}

/// Collects the fields of a rule item by item.
struct Converter {
    using result_type = void;

    void operator()(const TextItem& /*item*/) {}

    void operator()(const DateTimeItem& item)
    {
        const auto localized = getTable().find(item.getType());
        if (localized != getTable().end()) {
            items.insert(localized->second);
        } else {
            unconvertible = item.getType() > DateTimeItem::Type::AP;
        }
    }

    template <class OtherItem>
    void operator()(const OtherItem& /*item*/)
    {
        unconvertible = true;
    }

    DateTimePatternItemSet items;
    bool unconvertible = false;
};

} // namespace

DateTimePatternItemSet convertDateTimeRuleToItemSet(const Rule& rule, bool lenient)
{
    Converter converter;
    for (const Rule::Item& item : rule.getItems()) {
        boost::apply_visitor(converter, item);
    }
    if (converter.unconvertible && !lenient) {
        return {};
    }
    return std::move(converter.items);
}

} // namespace QN::DOM::CellFormatModel
