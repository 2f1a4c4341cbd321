#pragma once

#include <boost/container/set.hpp>

#include <cstddef>
#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// A field of a date or a time that a locale puts in its place. Numbers from 7 up stand for neither, and pass through
/// unchanged.
enum class DateTimePatternToken : std::uint8_t {
    Weekday = 0,
    Month = 1,
    Day = 2,
    Year = 3,
    Hour = 4,
    Minute = 5,
    Second = 6,
};

/// A field and how it is shown. Ordered by the field, then by the form.
struct DOM_API DateTimePatternItem {
    DateTimePatternToken token{};
    /// 0 is the plain form. Of a month 1 is its name and 2 a shorter one, of a year 1 is two digits.
    std::uint8_t props = 0;

    friend constexpr bool operator==(const DateTimePatternItem&, const DateTimePatternItem&) = default;
    friend constexpr auto operator<=>(const DateTimePatternItem&, const DateTimePatternItem&) = default;
};

BOOST_DESCRIBE_STRUCT(DateTimePatternItem, (), (token, props))

DOM_API std::size_t hash_value(const DateTimePatternItem& item);

/// The order by the field alone.
struct DateTimePatternItemTokenLess {
    bool operator()(const DateTimePatternItem& left, const DateTimePatternItem& right) const
    {
        return left.token < right.token;
    }
};

/// Holds each field once: the first form that is entered stays.
using DateTimePatternItemSet = boost::container::set<DateTimePatternItem, DateTimePatternItemTokenLess>;

} // namespace QN::DOM::CellFormatModel
