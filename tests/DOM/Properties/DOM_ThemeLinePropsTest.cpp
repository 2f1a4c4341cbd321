#include "DOM/Properties/DOM_ThemeLineProps.h"

#include <gtest/gtest.h>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ThemeLinePropsTest {

using namespace Test;

namespace {

ThemeLineProps makeLine(boost::optional<std::uint64_t> index, boost::optional<Color> color = boost::none)
{
    ThemeLineProps line;
    line.setIndex(index);
    line.setColor(std::move(color));
    return line;
}

} // namespace

TEST(ThemeLinePropsTest, RefersToNothingByDefault)
{
    EXPECT_FALSE(ThemeLineProps().getIndex());
    EXPECT_FALSE(ThemeLineProps().getColor());
}

TEST(ThemeLinePropsTest, ItsKeysEndInOpt)
{
    EXPECT_EQ(toJson(makeLine(2, makePlaceholder())),
              R"({"value0":{},"_indexOpt":{"hasValue":true,"value":2},"_colorOpt":{"hasValue":true,)"
              R"("value":{"_value":{"which":2,"data":{}},"_transforms":[]}}})");
    expectPersists(makeLine(2, makePlaceholder()));
    expectPersists(ThemeLineProps());
}

TEST(ThemeLinePropsTest, SettersSetAndClear)
{
    ThemeLineProps line = makeLine(2, makePlaceholder());
    EXPECT_EQ(*line.getIndex(), 2U);
    EXPECT_EQ(*line.getColor(), makePlaceholder());
    line.setIndex(boost::none);
    line.setColor(boost::none);
    EXPECT_EQ(line, ThemeLineProps());
}

TEST(ThemeLinePropsTest, OrdersByIndexThenByColor)
{
    expectAscending<ThemeLineProps>({ThemeLineProps(), makeLine(boost::none, Color()), makeLine(0),
                                     makeLine(0, Color()), makeLine(0, makePlaceholder()), makeLine(1)});
}

TEST(ThemeLinePropsTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeLine(2, makePlaceholder({Shade(0.5)})));
}

} // namespace QN::DOM::ThemeLinePropsTest
