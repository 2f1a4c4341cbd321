#pragma once

#include <cstdint>

#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimePatternItem.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// The standard formats: the day, month and year; the hour, minute and second; the date with the hour and minute
/// and without the second.
enum class DateTimeDefaultType : std::int32_t { Date = 0, Time = 1, DateTime = 2 };

/// Whether a format shows a date, a time or both.
enum class DateTimeFormatType : std::int32_t { Date = 4, Time = 5, DateTime = 6 };

/// A date or time format that says which fields are shown, and leaves their order and separators to the locale.
class DOM_API DateTimeLocalizedExpression {
public:
    /// Nothing to show and the type 0: a value to load into.
    DateTimeLocalizedExpression() = default;
    /// Derives the type from the fields. A set without a field of a date or a time fails the contract "Neither date nor
    /// time is set".
    explicit DateTimeLocalizedExpression(DateTimePatternItemSet items);
    /// An unknown type fails the same contract.
    explicit DateTimeLocalizedExpression(DateTimeDefaultType type);

    const DateTimePatternItemSet& getDateTimePatternTokenSet() const { return _dateTimePatternItemSet; }
    /// As derived, or as a file states it.
    DateTimeFormatType getFormatType() const { return _formatType; }

    QN_ORDERED_VALUE(DateTimeLocalizedExpression)

private:
    DateTimePatternItemSet _dateTimePatternItemSet;
    DateTimeFormatType _formatType{};

    BOOST_DESCRIBE_CLASS(DateTimeLocalizedExpression, (), (), (), (_dateTimePatternItemSet, _formatType))
};

} // namespace QN::DOM::CellFormatModel
