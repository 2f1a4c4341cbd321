#pragma once

#include "DOM/Properties/DOM_Fill.h"

namespace QN::DOM {

/// Records only that an area is filled with a pattern: neither the pattern nor its colours are kept.
class DOM_API PatternFill final : public Reflectable<Fill> {
public:
    QN_ORDERED_VALUE(PatternFill)
    QN_CONCRETE(Fill)

    BOOST_DESCRIBE_CLASS(PatternFill, (Fill), (), (), ())
};

} // namespace QN::DOM
