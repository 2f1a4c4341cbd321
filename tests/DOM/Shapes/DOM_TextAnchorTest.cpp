#include "DOM/Shapes/DOM_TextAnchor.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TextAnchorTest {

using namespace Test;

namespace {

using Polygon = cinder::PolyLine<cinder::Vec2<float>>;
using WrapAround = TextAnchor::WrapAround;

template <class Change>
TextAnchor makeAnchor(Change change)
{
    TextAnchor anchor;
    change(anchor);
    return anchor;
}

Polygon makeTriangle()
{
    return Polygon({{0.0F, 0.0F}, {1.0F, 0.0F}, {0.0F, 2.5F}}, true);
}

TextAnchor makeFullAnchor()
{
    return makeAnchor([](TextAnchor& anchor) {
        anchor.setType(AnchorWrapType::Tight);
        anchor.setHorizontalPosition(AnchorHorizontalPosition(AnchorHorizontalAlignment::Center));
        anchor.setVerticalPosition(AnchorVerticalPosition(-2.0F));
        anchor.getDistance().setLeft(1.0F);
        anchor.getDistance().setTop(2.0F);
        anchor.setWrapAround(WrapAround::Largest);
        anchor.getPolygon() = makeTriangle();
        anchor.setAllowOverlap(false);
        anchor.setBehindDoc(true);
    });
}

} // namespace

TEST(TextAnchorTest, SaysNothingByDefault)
{
    const TextAnchor anchor;
    EXPECT_FALSE(anchor.getType());
    EXPECT_FALSE(anchor.getHorizontalPosition());
    EXPECT_FALSE(anchor.getVerticalPosition());
    EXPECT_EQ(anchor.getDistance(), Insets());
    EXPECT_FALSE(anchor.getWrapAround());
    EXPECT_TRUE(anchor.getPolygon().getPoints().empty());
    EXPECT_FALSE(anchor.getAllowOverlap());
    EXPECT_FALSE(anchor.getBehindDoc());
}

TEST(TextAnchorTest, TheConstructorFromATypeSetsIt)
{
    const TextAnchor anchor(AnchorWrapType::Square);
    ASSERT_TRUE(anchor.getType());
    EXPECT_EQ(*anchor.getType(), AnchorWrapType::Square);
    TextAnchor changed;
    changed.setType(AnchorWrapType::Square);
    EXPECT_EQ(anchor, changed);
    EXPECT_NE(TextAnchor(static_cast<AnchorWrapType>(0)), TextAnchor());
}

TEST(TextAnchorTest, PersistsItsMembersInOrder)
{
    EXPECT_EQ(toJson(TextAnchor()),
              R"({"_type":{"hasValue":false},"_horizontalPosition":{"hasValue":false},)"
              R"("_verticalPosition":{"hasValue":false},)"
              R"("_distance":{"_left":{"hasValue":false},"_right":{"hasValue":false},)"
              R"("_top":{"hasValue":false},"_bottom":{"hasValue":false}},)"
              R"("_wrapAround":{"hasValue":false},"_polygon":{"_points":[],"_closed":false},)"
              R"("_allowOverlap":{"value":-1},"_behindDoc":{"value":-1}})");
    EXPECT_EQ(
        toJson(makeFullAnchor()),
        R"({"_type":{"hasValue":true,"value":2},)"
        R"("_horizontalPosition":{"hasValue":true,"value":{"_value":{"which":1,"data":2},"_relativeTo":0}},)"
        R"("_verticalPosition":{"hasValue":true,"value":{"_value":{"which":0,"data":-2.0},"_relativeTo":0}},)"
        R"("_distance":{"_left":{"hasValue":true,"value":1.0},"_right":{"hasValue":false},)"
        R"("_top":{"hasValue":true,"value":2.0},"_bottom":{"hasValue":false}},)"
        R"("_wrapAround":{"hasValue":true,"value":3},)"
        R"("_polygon":{"_points":[{"x":0.0,"y":0.0},{"x":1.0,"y":0.0},{"x":0.0,"y":2.5}],"_closed":true},)"
        R"("_allowOverlap":{"value":0},"_behindDoc":{"value":1}})");
    expectPersists(TextAnchor());
    expectPersists(makeFullAnchor());
}

TEST(TextAnchorTest, AnyNumberPassesThrough)
{
    const auto expectPasses = [](int type, int wrapAround) {
        const TextAnchor anchor = makeAnchor([&](TextAnchor& changed) {
            changed.setType(static_cast<AnchorWrapType>(type));
            changed.setWrapAround(static_cast<WrapAround>(wrapAround));
        });
        expectRoundTrip(anchor);
        const std::string json = toJson(anchor);
        const auto holds = [&json](const std::string& key, int number) {
            return json.find(key + R"(":{"hasValue":true,"value":)" + std::to_string(number) + "}") !=
                   std::string::npos;
        };
        EXPECT_TRUE(holds("_type", type)) << json;
        EXPECT_TRUE(holds("_wrapAround", wrapAround)) << json;
    };
    expectPasses(300, -1);
    expectPasses(-1, 300);
}

TEST(TextAnchorTest, AccessorsGiveWhatWasSet)
{
    const TextAnchor anchor = makeFullAnchor();
    EXPECT_EQ(*anchor.getType(), AnchorWrapType::Tight);
    EXPECT_EQ(*anchor.getHorizontalPosition(), AnchorHorizontalPosition(AnchorHorizontalAlignment::Center));
    EXPECT_EQ(*anchor.getVerticalPosition(), AnchorVerticalPosition(-2.0F));
    EXPECT_EQ(*anchor.getDistance().getTop(), 2.0F);
    EXPECT_EQ(*anchor.getWrapAround(), WrapAround::Largest);
    EXPECT_EQ(anchor.getPolygon(), makeTriangle());
    EXPECT_EQ(anchor.getAllowOverlap(), BoolOpt(false));
    EXPECT_EQ(anchor.getBehindDoc(), BoolOpt(true));
    TextAnchor changed = makeFullAnchor();
    changed.setHorizontalPosition(boost::none);
    changed.setVerticalPosition(boost::none);
    changed.setWrapAround(boost::none);
    EXPECT_FALSE(changed.getHorizontalPosition());
    EXPECT_FALSE(changed.getVerticalPosition());
    EXPECT_FALSE(changed.getWrapAround());
}

TEST(TextAnchorTest, OrdersByItsMembersInTheOrderOfTheKeys)
{
    expectAscending<TextAnchor>({
        TextAnchor(),
        makeAnchor([](TextAnchor& anchor) { anchor.setBehindDoc(false); }),
        makeAnchor([](TextAnchor& anchor) { anchor.setBehindDoc(true); }),
        makeAnchor([](TextAnchor& anchor) { anchor.setAllowOverlap(false); }),
        makeAnchor([](TextAnchor& anchor) { anchor.setAllowOverlap(true); }),
        makeAnchor([](TextAnchor& anchor) {
            anchor.getPolygon() = Polygon({{0.0F, 0.0F}});
        }),
        makeAnchor([](TextAnchor& anchor) { anchor.getPolygon() = makeTriangle(); }),
        makeAnchor([](TextAnchor& anchor) { anchor.setWrapAround(WrapAround::BothSides); }),
        makeAnchor([](TextAnchor& anchor) { anchor.getDistance().setBottom(0.0F); }),
        makeAnchor([](TextAnchor& anchor) { anchor.getDistance().setLeft(0.0F); }),
        makeAnchor([](TextAnchor& anchor) { anchor.setVerticalPosition(AnchorVerticalPosition()); }),
        makeAnchor([](TextAnchor& anchor) { anchor.setHorizontalPosition(AnchorHorizontalPosition()); }),
        TextAnchor(AnchorWrapType::Inline),
        TextAnchor(AnchorWrapType::Square),
        makeFullAnchor(),
    });
}

TEST(TextAnchorTest, ANanInThePolygonIsNotLessAndLastInPools)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const auto makeDot = [](float x) {
        return makeAnchor([&](TextAnchor& anchor) { anchor.getPolygon() = Polygon({{x, 0.0F}}); });
    };
    EXPECT_FALSE(makeDot(nan) < makeDot(1.0F));
    EXPECT_FALSE(makeDot(1.0F) < makeDot(nan));
    EXPECT_TRUE(makeDot(1.0F).compare(makeDot(nan), NanOrder::Last) < 0);
    EXPECT_TRUE(makeDot(nan).compare(makeDot(nan), NanOrder::Last) == 0);
}

TEST(TextAnchorTest, OverrideTakesWhatTheOtherSaysAndAlwaysThePolygon)
{
    TextAnchor target = makeFullAnchor();
    override(target, makeAnchor([](TextAnchor& anchor) {
                 anchor.setType(AnchorWrapType::None);
                 anchor.getDistance().setTop(9.0F);
                 anchor.getDistance().setBottom(8.0F);
                 anchor.setBehindDoc(false);
             }));
    TextAnchor expected = makeFullAnchor();
    expected.setType(AnchorWrapType::None);
    expected.getDistance().setTop(9.0F);
    expected.getDistance().setBottom(8.0F);
    expected.getPolygon() = Polygon();
    expected.setBehindDoc(false);
    EXPECT_EQ(target, expected) << "the left distance stays, the empty polygon replaces the triangle";
}

TEST(TextAnchorTest, OverrideOfAnEmptyAnchorGivesTheOther)
{
    TextAnchor target;
    override(target, makeFullAnchor());
    EXPECT_EQ(target, makeFullAnchor());
}

TEST(TextAnchorTest, ExcludeRemovesWhatTheOtherSaysAlikeButNeverThePolygon)
{
    TextAnchor target = makeFullAnchor();
    exclude(target, makeAnchor([](TextAnchor& anchor) {
                anchor.setType(AnchorWrapType::Tight);
                anchor.setHorizontalPosition(AnchorHorizontalPosition(1.0F));
                anchor.getDistance().setLeft(1.0F);
                anchor.getDistance().setTop(7.0F);
                anchor.getPolygon() = makeTriangle();
                anchor.setAllowOverlap(false);
                anchor.setBehindDoc(false);
            }));
    EXPECT_EQ(target, makeAnchor([](TextAnchor& anchor) {
                  anchor.setHorizontalPosition(AnchorHorizontalPosition(AnchorHorizontalAlignment::Center));
                  anchor.setVerticalPosition(AnchorVerticalPosition(-2.0F));
                  anchor.getDistance().setTop(2.0F);
                  anchor.setWrapAround(WrapAround::Largest);
                  anchor.getPolygon() = makeTriangle();
                  anchor.setBehindDoc(true);
              }));
    exclude(target, TextAnchor(target));
    EXPECT_EQ(target, makeAnchor([](TextAnchor& anchor) { anchor.getPolygon() = makeTriangle(); }));
}

TEST(TextAnchorTest, IntersectKeepsWhatBothSayAlike)
{
    TextAnchor target = makeFullAnchor();
    intersect(target, makeAnchor([](TextAnchor& anchor) {
                  anchor.setType(AnchorWrapType::Tight);
                  anchor.getDistance().setLeft(1.0F);
                  anchor.getDistance().setTop(7.0F);
                  anchor.getPolygon() = makeTriangle();
                  anchor.setAllowOverlap(true);
                  anchor.setBehindDoc(true);
              }));
    EXPECT_EQ(target, makeAnchor([](TextAnchor& anchor) {
                  anchor.setType(AnchorWrapType::Tight);
                  anchor.getDistance().setLeft(1.0F);
                  anchor.getPolygon() = makeTriangle();
                  anchor.setBehindDoc(true);
              }));
}

TEST(TextAnchorDeathTest, IntersectOfDifferentPolygonsBreaksItsContract)
{
    TextAnchor target = makeFullAnchor();
    EXPECT_DEATH(intersect(target, TextAnchor()),
                 R"(DOM/Properties/DOM_PropertiesResolveUtils:403: areDeeplyEqual\(target, other\))");
}

TEST(TextAnchorTest, HasNoRebase)
{
    static_assert(HasOverride<TextAnchor>);
    static_assert(HasExclude<TextAnchor>);
    static_assert(HasIntersect<TextAnchor>);
    static_assert(!HasRebase<TextAnchor>);
}

TEST(TextAnchorTest, ACopySharesNoPolygon)
{
    static_assert(!std::is_polymorphic_v<TextAnchor>);
    const TextAnchor source = makeFullAnchor();
    expectCopiesAndMoves(source);
    TextAnchor copy(source);
    copy.getPolygon().getPoints().clear();
    copy.getDistance().setLeft(boost::none);
    EXPECT_EQ(source, makeFullAnchor());
}

} // namespace QN::DOM::TextAnchorTest
