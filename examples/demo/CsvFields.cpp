#include "CsvFields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <string_view>

namespace Demo {

namespace {

/// Digits alone, as a number; -1 for anything else.
int readDigits(std::string_view text)
{
    int value = -1;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() && result.ptr == text.data() + text.size() ? value : -1;
}

bool readDate(std::string_view text, CsvField& field)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') {
        return false;
    }
    using namespace std::chrono;
    const int month = readDigits(text.substr(5, 2));
    const int day = readDigits(text.substr(8, 2));
    const int year = readDigits(text.substr(0, 4));
    const year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day))};
    if (year < 1901 || month < 1 || day < 1 || !date.ok()) {
        return false;
    }
    // Counting so, days after February 1900 have the numbers that all spreadsheets agree on.
    constexpr sys_days DayZero(std::chrono::year(1899) / 12 / 30);
    field.number = static_cast<double>((sys_days(date) - DayZero).count());
    field.kind = CsvField::Kind::Date;
    return true;
}

bool readNumber(std::string_view text, CsvField& field)
{
    const std::string_view sign = text.starts_with('-') ? text.substr(0, 1) : text.substr(0, 0);
    text.remove_prefix(sign.size());
    for (const std::string_view symbol : {"£", "$", "€"}) {
        if (text.starts_with(symbol)) {
            field.currency = symbol;
            text.remove_prefix(symbol.size());
        }
    }
    field.isPercentage = text.ends_with('%');
    text.remove_suffix(field.isPercentage ? 1 : 0);

    constexpr std::size_t MaxDigits = 15;
    const std::size_t point = std::min(text.find('.'), text.size());
    const bool hasLeadingZeros = point > 1 && text.front() == '0';
    if (point == 0 || text.size() > MaxDigits || hasLeadingZeros || text.ends_with('.') ||
        text.find_first_not_of("0123456789.") != text.npos) {
        return false;
    }
    const auto result = std::from_chars(text.data(), text.data() + text.size(), field.number);
    if (result.ptr != text.data() + text.size()) {
        return false;
    }
    field.decimals = point == text.size() ? 0 : static_cast<int>(text.size() - point - 1);
    field.number = (sign.empty() ? field.number : -field.number) / (field.isPercentage ? 100.0 : 1.0);
    field.kind = CsvField::Kind::Number;
    return true;
}

} // namespace

CsvField readField(const std::string& text)
{
    CsvField field;
    if (text == "TRUE" || text == "FALSE") {
        field.kind = CsvField::Kind::Bool;
        field.boolean = text == "TRUE";
    } else if (text.size() > 1 && text.front() == '=') {
        field.kind = CsvField::Kind::Formula;
    } else if (!text.empty() && !readDate(text, field) && !readNumber(text, field)) {
        field = {};
        field.kind = CsvField::Kind::Text;
    }
    return field;
}

void CsvColumn::add(const CsvField& field, const std::string& text)
{
    texts += field.kind == CsvField::Kind::Text ? 1 : 0;
    bools += field.kind == CsvField::Kind::Bool ? 1 : 0;
    numbers += field.kind == CsvField::Kind::Number ? 1 : 0;
    dates += field.kind == CsvField::Kind::Date ? 1 : 0;
    formulas += field.kind == CsvField::Kind::Formula ? 1 : 0;
    decimals = std::max(decimals, field.decimals);
    isPercentage = isPercentage || field.isPercentage;
    currency = field.currency.empty() ? currency : field.currency;
    width = std::max(width, text.size());
}

} // namespace Demo
