#pragma once

#include "DOM/Properties/DOM_Fill.h"

namespace QN::DOM {

/// Leaves an area unpainted, which is not the same as an area that says nothing of its fill.
class DOM_API NoFill final : public Reflectable<Fill> {
public:
    QN_ORDERED_VALUE(NoFill)
    QN_CONCRETE(Fill)

    BOOST_DESCRIBE_CLASS(NoFill, (Fill), (), (), ())
};

} // namespace QN::DOM
