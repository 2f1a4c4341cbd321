#pragma once

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// A part of a format that its kind alone tells.
class DOM_API ExtraItem {
public:
    /// Any other number passes through unchanged.
    enum class Type : std::int32_t { General = 0, PercentSign = 1, FractionBar = 2 };

    ExtraItem() = default;
    explicit ExtraItem(Type type) : _type(type) {}

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    QN_ORDERED_VALUE(ExtraItem)

private:
    Type _type{};

    BOOST_DESCRIBE_CLASS(ExtraItem, (), (), (), (_type))
};

} // namespace QN::DOM::CellFormatModel
