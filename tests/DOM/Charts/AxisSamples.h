#pragma once

#include <boost/optional/optional_io.hpp>

#include <memory>
#include <string>

#include "DOM/Charts/ChartSamples.h"
#include "DOM/Charts/DOM_CategoryAxis.h"
#include "DOM/Charts/DOM_DateAxis.h"
#include "DOM/Charts/DOM_SeriesAxis.h"
#include "DOM/Charts/DOM_ValueAxis.h"

/// Axes for the tests of what holds them.

namespace QN::Test {

/// The text of the members of `ChartAxis`, with the given crossing and otherwise their defaults.
inline std::string makeAxisBaseJson(const std::string& crossing = R"({"which":0,"data":{}})")
{
    return R"({"_logBase":{"hasValue":false},"_orientation":{"hasValue":false},"_min":{"hasValue":false},)"
           R"("_max":{"hasValue":false},"_majorGridLines":{"ptr_wrapper":{"valid":0}},)"
           R"("_minorGridLines":{"ptr_wrapper":{"valid":0}},"_position":2,"_title":{"ptr_wrapper":{"valid":0}},)"
           R"("_labels":{"hasValue":false},"_crossingAxisIndex":0,"_crossing":)" +
           crossing +
           R"(,"_majorTickMark":0,"_minorTickMark":0,"_graphicProps":{"hasValue":false},"_visible":true,)"
           R"("_runProps":{"ptr_wrapper":{"id":0}}})";
}

/// The axis has the defaults of its family's root and `keys`, the text of what its own class adds, with its comma.
template <class T>
void expectDefaultAxis(const std::string& name, const std::string& keys)
{
    const T axis;
    EXPECT_EQ(axis.getLogBase(), boost::none);
    EXPECT_FALSE(axis.getOrientation());
    EXPECT_EQ(axis.getMin(), boost::none);
    EXPECT_EQ(axis.getMax(), boost::none);
    EXPECT_EQ(axis.getMajorGridLines(), nullptr);
    EXPECT_EQ(axis.getMinorGridLines(), nullptr);
    EXPECT_EQ(static_cast<int>(axis.getPosition()), 2);
    EXPECT_EQ(axis.getTitle(), nullptr);
    EXPECT_FALSE(axis.getLabels());
    EXPECT_EQ(axis.getCrossingAxisIndex(), 0U);
    EXPECT_EQ(axis.getCrossing().which(), 0);
    EXPECT_EQ(axis.getMajorTickMark(), DOM::ChartAxisTickMark{0});
    EXPECT_EQ(axis.getMinorTickMark(), DOM::ChartAxisTickMark{0});
    EXPECT_FALSE(axis.getGraphicProps());
    EXPECT_TRUE(axis.isVisible());
    EXPECT_EQ(axis.getRunProps(), nullptr);
    expectInFamily<DOM::ChartAxis>(axis, "QN::DOM::" + name,
                                   R"({"value0":)" + makeAxisBaseJson() + keys + "}");
}

} // namespace QN::Test
