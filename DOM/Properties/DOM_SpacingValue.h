#pragma once

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The distance before or after a paragraph: a length, or automatic spacing, which layout chooses.
///
/// Automatic spacing is the stored number -1.0 and no flag of its own, so that storing -1.0 sets it. Saving, comparing and
/// ordering read the stored number, automatic included: automatic orders below every spacing of 0 or more, and a NaN is
/// unequal to everything.
class DOM_API SpacingValue {
public:
    SpacingValue() = default;
    explicit SpacingValue(float value) : _value(value) {}

    static SpacingValue createAutoValue() { return SpacingValue(AutoValue); }

    bool isAuto() const { return _value == AutoValue; }
    void setAuto() { _value = AutoValue; }

    /// Fails the contract "!isAuto()" on automatic spacing: ask `isAuto()` first.
    float getValue() const
    {
        QN_CONTRACT(!isAuto(), "DOM/Properties/DOM_SpacingValue", 46, "!isAuto()");
        return _value;
    }
    void setValue(float value) { _value = value; }

    QN_ORDERED_VALUE(SpacingValue)

private:
    static constexpr float AutoValue = -1.0F;

    float _value = 0.0F;

    BOOST_DESCRIBE_CLASS(SpacingValue, (), (), (), (_value))
};

} // namespace QN::DOM
