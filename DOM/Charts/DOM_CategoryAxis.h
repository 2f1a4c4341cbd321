#pragma once

#include "DOM/Charts/DOM_ChartAxis.h"

namespace QN::DOM {

/// The axis of the categories.
class DOM_API CategoryAxis final : public Reflectable<ChartAxis> {
public:
    CategoryAxis() = default;
    QN_DEEP_COPY(CategoryAxis)

    QN_CONCRETE(ChartAxis)
    QN_VALUE(CategoryAxis)

private:
    BOOST_DESCRIBE_CLASS(CategoryAxis, (ChartAxis), (), (), ())
};

} // namespace QN::DOM
