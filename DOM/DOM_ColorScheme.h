#pragma once

#include <boost/unordered/unordered_map.hpp>

#include <string>
#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The named colours of a theme. A scheme has just the slots that were set.
class DOM_API ColorScheme {
public:
    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

    /// The slot must be set, or the contract "iter != _colors.end()" fails. Valid until the slot is set again.
    const Color& getColor(ThemeColorId id) const;
    /// Adds the slot or overwrites it.
    void setColor(ThemeColorId id, Color color);

    /// Slots are saved in the order of their numbers, so that equal ones give equal texts.
    QN_VALUE(ColorScheme)

private:
    std::string _name;
    boost::unordered_map<ThemeColorId, Color> _colors;

    BOOST_DESCRIBE_CLASS(ColorScheme, (), (), (), (_name, _colors))
};

} // namespace QN::DOM
