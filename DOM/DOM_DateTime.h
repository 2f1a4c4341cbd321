#pragma once

#include <cstdint>

#include "DOM/DOM_TimeZone.h"
#include "Utils/Public/TaggedValue.h"

namespace QN::DOM {

/// A date and a time of day as somebody wrote it. The parts are not checked, and comparison is part by part: one
/// instant written in two time zones is unequal.
class DOM_API DateTime {
public:
    struct YearTag;
    struct MonthTag;
    struct DayTag;
    struct HourTag;
    struct MinuteTag;
    struct SecondTag;
    using Year = TaggedValue<std::uint16_t, YearTag>;
    using Month = TaggedValue<std::uint8_t, MonthTag>;
    using Day = TaggedValue<std::uint8_t, DayTag>;
    using Hour = TaggedValue<std::uint8_t, HourTag>;
    using Minute = TaggedValue<std::uint8_t, MinuteTag>;
    using Second = TaggedValue<std::uint8_t, SecondTag>;

    /// All parts 0, which is no date.
    DateTime() = default;
    DateTime(Year year, Month month, Day day, Hour hours, Minute minutes, Second seconds, TimeZone timeZone)
        : _year(year), _month(month), _day(day), _hours(hours), _minutes(minutes), _seconds(seconds),
          _timeZone(timeZone)
    {
    }

    Year getYear() const { return _year; }
    Month getMonth() const { return _month; }
    Day getDay() const { return _day; }
    Hour getHours() const { return _hours; }
    Minute getMinutes() const { return _minutes; }
    Second getSeconds() const { return _seconds; }
    TimeZone getTimeZone() const { return _timeZone; }

    QN_ORDERED_VALUE(DateTime)

private:
    Year _year;
    Month _month;
    Day _day;
    Hour _hours;
    Minute _minutes;
    Second _seconds;
    TimeZone _timeZone;

    BOOST_DESCRIBE_CLASS(DateTime, (), (), (), (_year, _month, _day, _hours, _minutes, _seconds, _timeZone))
};

} // namespace QN::DOM
