#include "DOM/Charts/DOM_AreaSeries.h"

#include <gtest/gtest.h>

#include "DOM/Charts/SeriesSamples.h"

namespace QN::DOM::AreaSeriesTest {
namespace {

using namespace Test;

template <class T>
concept HasSmooth = requires(T& series)
{
    series.getSmooth();
}
|| requires(T& series)
{
    series.isSmooth();
}
|| requires(T& series)
{
    series.setSmooth(true);
};

TEST(AreaSeries, HasTheDefaultsOfASeries)
{
    expectDefaultSeries<AreaSeries>("AreaSeries", R"("_smooth":{"value":-1})");
}

TEST(AreaSeries, WritesBackTheSmoothingThatNoAccessorReaches)
{
    static_assert(!HasSmooth<AreaSeries>);
    const auto makeText = [](int smooth) {
        return std::string(R"({"value0":)") + DefaultSeriesJson + R"(,"_smooth":{"value":)" +
               std::to_string(smooth) + "}}";
    };
    for (const int smooth : {-1, 0, 1}) {
        const auto series = fromText<AreaSeries>(makeText(smooth));
        expectText(series, makeText(smooth));
        expectCopiesAndMoves(series);
        EXPECT_EQ(series == AreaSeries(), smooth == -1);
    }
}

} // namespace
} // namespace QN::DOM::AreaSeriesTest
