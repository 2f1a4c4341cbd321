#pragma once

#include <boost/optional/optional.hpp>
#include <boost/unordered/unordered_map.hpp>

#include "DOM/Properties/DOM_ThemeColorId.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Says for a slot that a colour names which slot of the theme's colour scheme is meant.
class DOM_API ColorMap {
public:
    /// Absent for a slot that has no mapping.
    boost::optional<ThemeColorId> getMapping(ThemeColorId id) const;
    /// Adds the mapping or overwrites it.
    void setMapping(ThemeColorId id, ThemeColorId target);

    /// Mappings are saved in the order of their numbers, so that equal ones give equal texts.
    QN_VALUE(ColorMap)

private:
    boost::unordered_map<ThemeColorId, ThemeColorId> _map;

    BOOST_DESCRIBE_CLASS(ColorMap, (), (), (), (_map))
};

} // namespace QN::DOM
