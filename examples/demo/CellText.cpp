#include "CellText.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

#include "Text.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using namespace QN::DOM::CellFormatModel;

std::string toShortestText(double number)
{
    // Ten digits hide what binary fractions add to decimal ones.
    constexpr int Digits = 10;
    std::array<char, 40> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::general, Digits);
    return {buffer.data(), result.ptr};
}

std::string insertGroups(std::string digits)
{
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    for (std::size_t i = std::min(digits.find('.'), digits.size()); i > first + 3; i -= 3) {
        digits.insert(i - 3, ",");
    }
    return digits;
}

bool isDate(const Rule& rule)
{
    for (const Rule::Item& item : rule.getItems()) {
        if (boost::get<DateTimeItem>(&item) != nullptr) {
            return true;
        }
    }
    return false;
}

bool hasPercentSign(const Rule& rule)
{
    for (const Rule::Item& item : rule.getItems()) {
        const auto* const extra = boost::get<ExtraItem>(&item);
        if (extra != nullptr && extra->getType() == ExtraItem::Type::PercentSign) {
            return true;
        }
    }
    return false;
}

/// Writes the items of a rule one after the other.
class ItemWriter : public boost::static_visitor<std::string> {
public:
    ItemWriter(const Rule& rule, double number) : _number(hasPercentSign(rule) ? number * 100.0 : number)
    {
        if (isDate(rule)) {
            using namespace std::chrono;
            constexpr sys_days DayZero(year(1899) / 12 / 30);
            _date = DayZero + days(static_cast<int>(std::floor(number)));
        }
    }

    std::string operator()(const NumberItem& item) const
    {
        const std::string& pattern = item.getPattern();
        const std::size_t point = pattern.find('.');
        const std::size_t decimals = point == pattern.npos ? 0 : pattern.size() - point - 1;
        const std::string digits = toFixed(_number, static_cast<int>(decimals));
        return item.hasGrouping() ? insertGroups(digits) : digits;
    }
    std::string operator()(const CurrencyItem& item) const { return item.getCurrencySymbol(); }
    std::string operator()(const TextItem& item) const { return item.getTextValue(); }
    std::string operator()(const ExtraItem& item) const
    {
        return item.getType() == ExtraItem::Type::PercentSign ? "%" : "";
    }
    std::string operator()(const DateTimeItem& item) const
    {
        constexpr std::array<const char*, 12> Months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
        switch (item.getType()) {
        case DateTimeItem::Type::Day:
            return std::to_string(static_cast<unsigned>(_date.day()));
        case DateTimeItem::Type::MonthShort:
            return Months[static_cast<unsigned>(_date.month()) - 1];
        case DateTimeItem::Type::Year:
            return std::to_string(static_cast<int>(_date.year()));
        default:
            return "?";
        }
    }

private:
    double _number;
    std::chrono::year_month_day _date{};
};

std::string toText(double number, const CellFormat* format)
{
    const auto* const expression = format != nullptr ? boost::get<Expression>(&format->getData()) : nullptr;
    if (expression == nullptr || !expression->getDefaultNumberRule()) {
        return toShortestText(number);
    }
    const Rule& rule = *expression->getDefaultNumberRule();
    std::string text;
    for (const Rule::Item& item : rule.getItems()) {
        text += boost::apply_visitor(ItemWriter(rule, number), item);
    }
    return text;
}

} // namespace

std::string toText(const Value& value, const CellFormat* format)
{
    if (const double* const number = std::get_if<double>(&value)) {
        return toText(*number, format);
    }
    if (const bool* const boolean = std::get_if<bool>(&value)) {
        return *boolean ? "TRUE" : "FALSE";
    }
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return *text;
    }
    const auto* const error = std::get_if<FormulaError>(&value);
    return error != nullptr ? error->text : "";
}

const CellFormat* findFormat(const Table& table, const QN::CellIndex& cell)
{
    const Cell* const stored = table.getCell(cell);
    if (stored != nullptr && stored->getStyle().getCellFormat()) {
        return stored->getStyle().getCellFormat().get();
    }
    return table.getStyle(cell.getColumn()).getDefaultCellStyle().getCellFormat().get();
}

} // namespace Demo
