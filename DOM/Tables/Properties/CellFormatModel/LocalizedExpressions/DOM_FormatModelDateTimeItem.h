#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// A field of a date or a time, as it stands in a format that is written out.
class DOM_API DateTimeItem {
public:
    /// Any other number passes through unchanged.
    enum class Type : std::uint8_t {
        AmPm = 0,
        AP = 1,
        Day = 2,
        DayTwoDigits = 3,
        WeekdayShort = 4,
        WeekdayLong = 5,
        Hour = 6,
        HourTwoDigits = 7,
        ElapsedHours = 8,
        ElapsedHoursTwoDigits = 9,
        Minute = 10,
        MinuteTwoDigits = 11,
        ElapsedMinutes = 12,
        ElapsedMinutesTwoDigits = 13,
        Second = 14,
        SecondTwoDigits = 15,
        ElapsedSeconds = 16,
        ElapsedSecondsTwoDigits = 17,
        Month = 18,
        MonthTwoDigits = 19,
        MonthShort = 20,
        MonthLong = 21,
        MonthInitial = 22,
        YearTwoDigits = 23,
        Year = 24,
    };

    DateTimeItem() = default;
    DateTimeItem(Type type, boost::optional<unsigned char> decimalPlaces)
        : _type(type), _decimalPlaces(decimalPlaces)
    {
    }

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    /// Of a fraction of a second.
    const boost::optional<unsigned char>& getDecimalPlaces() const { return _decimalPlaces; }
    void setDecimalPlaces(boost::optional<unsigned char> decimalPlaces) { _decimalPlaces = decimalPlaces; }

    /// Whether the field is of a time of day or of a duration: types 0, 1 and 6 to 17.
    bool isTime() const;

    QN_ORDERED_VALUE(DateTimeItem)

private:
    Type _type{};
    boost::optional<unsigned char> _decimalPlaces;

    BOOST_DESCRIBE_CLASS(DateTimeItem, (), (), (), (_type, _decimalPlaces))
};

} // namespace QN::DOM::CellFormatModel
