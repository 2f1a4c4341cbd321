#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How a value stands to the average of the range, or to so many standard deviations from it.
class DOM_API AboveAverageConditionalFormatOperator {
public:
    /// Any other number passes through unchanged.
    enum class Type : std::int32_t { Above = 0, Below = 1, EqualOrAbove = 2, EqualOrBelow = 3 };

    AboveAverageConditionalFormatOperator() = default;
    explicit AboveAverageConditionalFormatOperator(Type type,
                                                   const boost::optional<std::uint8_t>& stdDev = boost::none)
        : _type(type), _stdDev(stdDev)
    {
    }

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    const boost::optional<std::uint8_t>& getStdDev() const { return _stdDev; }
    void setStdDev(const boost::optional<std::uint8_t>& stdDev) { _stdDev = stdDev; }

    QN_VALUE(AboveAverageConditionalFormatOperator)

private:
    Type _type{};
    boost::optional<std::uint8_t> _stdDev;

    BOOST_DESCRIBE_CLASS(AboveAverageConditionalFormatOperator, (), (), (), (_type, _stdDev))
};

} // namespace QN::DOM
