#pragma once

#include <boost/optional/optional.hpp>

#include <string>
#include <vector>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::DrawingFormulas {

/// The named numbers of a shape that its user can change. Formulas reach them by position or by name. There are as many
/// names as values, also after a failed assignment; a name need not be unique. A load takes both lists as they stand, and
/// `add` is what checks them.
class DOM_API AdjustValues {
public:
    AdjustValues() = default;
    QN_DEEP_COPY(AdjustValues)

    /// Appends.
    /// @return the position of the new value.
    unsigned long add(std::string name, double value);

    /// Absent when out of range.
    boost::optional<double> get(unsigned long index) const;
    /// Null when out of range. Invalidated by `add`.
    const std::string* getName(unsigned long index) const;
    /// The value of the last entry of the name; absent when there is none, or when that entry has no value, as a file can
    /// have it: no earlier one is tried. Linear.
    boost::optional<double> find(const std::string& name) const;
    bool isEmpty() const { return _values.empty(); }

    QN_VALUE(AdjustValues)

private:
    std::vector<double> _values;
    std::vector<std::string> _valueNames;

    BOOST_DESCRIBE_CLASS(AdjustValues, (), (), (), (_values, _valueNames))
};

} // namespace QN::DOM::DrawingFormulas
