#include "DOM/Properties/DOM_Color.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ColorTest {

using namespace Test;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

TEST(ColorTest, IsTransparentBlackByDefault)
{
    const Color color;
    ASSERT_EQ(color.getValue().which(), 0);
    EXPECT_EQ(boost::get<cinder::ColorAT<unsigned char>>(color.getValue()),
              cinder::ColorAT<unsigned char>(0, 0, 0, 0));
    EXPECT_TRUE(color.getTransforms().empty());
    EXPECT_NE(color, makeColor(0, 0, 0, 255));
}

TEST(ColorTest, ADefaultColorPersistsAsFourZerosAndNoTransforms)
{
    EXPECT_EQ(toJson(Color()), DefaultColorJson);
}

TEST(ColorTest, ChannelsPersistAsUnnamedNumbersFromRedToAlpha)
{
    EXPECT_EQ(toJson(makeColor(1, 2, 3, 255)),
              R"({"_value":{"which":0,"data":{"value0":1,"value1":2,"value2":3,"value3":255}},)"
              R"("_transforms":[]})");
}

TEST(ColorTest, ASlotPersistsAsABareNumber)
{
    EXPECT_EQ(toJson(makeSlotColor(ThemeColorId::Accent6)),
              R"({"_value":{"which":1,"data":13},"_transforms":[]})");
}

TEST(ColorTest, ThePlaceholderPersistsAsAnEmptyObject)
{
    EXPECT_EQ(toJson(makePlaceholder()), R"({"_value":{"which":2,"data":{}},"_transforms":[]})");
}

TEST(ColorTest, ComplementHasAnEmptyObjectForDataAndReloadsEqual)
{
    const Color color(ThemeColorId::Dark1, {Complement()});
    EXPECT_EQ(toJson(color), R"({"_value":{"which":1,"data":4},"_transforms":[{"which":6,"data":{}}]})");
    expectPersists(color);
}

TEST(ColorTest, HueOffsetPersistsAsAnIntegerAndTheOtherHuesAsDoubles)
{
    EXPECT_EQ(toJson(makePlaceholder({Hue(1.0), HueModulation(2.0), HueOffset(3)})),
              R"({"_value":{"which":2,"data":{}},"_transforms":[{"which":12,"data":{"_value":1.0}},)"
              R"({"which":13,"data":{"_value":2.0}},{"which":14,"data":{"_value":3}}]})");
    EXPECT_EQ(loadError<Color>(
                  R"({"_value":{"which":2,"data":{}},"_transforms":[{"which":14,"data":{"_value":3.5}}]})"),
              "rapidjson internal assertion failure: data_.f.flags & kIntFlag");
}

TEST(ColorTest, AColorOfEachKindPersists)
{
    expectPersists(Color());
    expectPersists(Color(cinder::ColorAT<unsigned char>(255, 1, 128, 7), {Alpha(0.25), Inverse()}));
    expectPersists(Color(static_cast<ThemeColorId>(255), {Shade(0.95), Shade(0.95), HueOffset(-60)}));
    expectPersists(makePlaceholder({Tint(0.1), SaturationModulation(1e300)}));
}

TEST(ColorTest, AKindOfValueThatDoesNotExistIsRefused)
{
    EXPECT_EQ(loadError<Color>(R"({"_value":{"which":3,"data":{}},"_transforms":[]})"),
              "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(loadError<Color>(
                  R"({"_value":{"which":2,"data":{}},"_transforms":[{"which":28,"data":{"_value":1.0}}]})"),
              "Invalid 'which' selector when deserializing boost::variant");
}

TEST(ColorTest, AChannelBeyondAByteIsRefused)
{
    EXPECT_THROW(
        fromJson<Color>(R"({"_value":{"which":0,"data":{"value0":256,"value1":0,"value2":0,"value3":0}},)"
                        R"("_transforms":[]})"),
        cereal::RapidJSONException);
}

TEST(ColorTest, LoadingReplacesWhatWasThere)
{
    Color color(ThemeColorId::Dark1, {Shade(0.5)});
    loadJson(DefaultColorJson, color);
    EXPECT_EQ(color, Color());
}

TEST(ColorTest, TheConstructorFromAValueHasNoTransforms)
{
    const Color color(ThemeColorId::Light2);
    EXPECT_TRUE(color.getValue() == ColorValue(ThemeColorId::Light2));
    EXPECT_TRUE(color.getTransforms().empty());
}

TEST(ColorTest, SettersReplaceValueAndTransforms)
{
    Color color;
    color.setValue(ThemeColorId::Accent1);
    color.setTransforms({Tint(0.5), SaturationModulation(3.0)});
    EXPECT_EQ(color, Color(ThemeColorId::Accent1, {Tint(0.5), SaturationModulation(3.0)}));
    EXPECT_EQ(color.getTransforms().size(), 2U);
}

TEST(ColorTest, TheSameTransformsInAnotherOrderMakeAnotherColor)
{
    const Color tintFirst = makePlaceholder({Tint(0.5), Shade(0.5)});
    const Color shadeFirst = makePlaceholder({Shade(0.5), Tint(0.5)});
    EXPECT_NE(tintFirst, shadeFirst);
    EXPECT_LT(tintFirst, shadeFirst) << "Tint has the lower number";
    EXPECT_GT(shadeFirst, tintFirst);
}

TEST(ColorTest, OrdersByKindOfValueThenByValueThenByTransforms)
{
    expectAscending<Color>({
        Color(),
        Color(cinder::ColorAT<unsigned char>(0, 0, 0, 0), {Shade(0.1)}),
        makeColor(0, 0, 0, 255),
        makeColor(0, 0, 1, 0),
        makeColor(0, 1, 0, 0),
        makeColor(1, 0, 0, 0),
        makeColor(255, 255, 255, 255),
        makeSlotColor(ThemeColorId::Dark1),
        Color(ThemeColorId::Dark1, {Alpha(0.1)}),
        Color(ThemeColorId::Dark1, {Alpha(0.1), Alpha(0.1)}),
        Color(ThemeColorId::Dark1, {Alpha(0.2)}),
        Color(ThemeColorId::Dark1, {Complement()}),
        Color(ThemeColorId::Dark1, {Complement(), Complement()}),
        Color(ThemeColorId::Dark1, {HueOffset(-1)}),
        Color(ThemeColorId::Dark1, {HueOffset(1)}),
        Color(ThemeColorId::Dark1, {Tint(0.0)}),
        Color(ThemeColorId::Dark1, {Shade(0.0)}),
        makeSlotColor(ThemeColorId::FollowedHyperlink),
        makePlaceholder(),
        makePlaceholder({Alpha(-1.0)}),
    });
}

TEST(ColorTest, ThePlaceholderIsGreaterThanAnyOtherColorWhateverTheTransforms)
{
    EXPECT_GT(makePlaceholder(), Color(cinder::ColorAT<unsigned char>(255, 255, 255, 255), {Shade(9.0)}));
    EXPECT_GT(makePlaceholder(), Color(static_cast<ThemeColorId>(255), {Shade(9.0)}));
}

TEST(ColorTest, ANanAmountMakesAColorDifferFromItself)
{
    const Color color = makePlaceholder({Tint(NaN)});
    const Color& itself = color;
    EXPECT_FALSE(color == itself);
    EXPECT_TRUE(color != itself);
    EXPECT_FALSE(color < itself);
    EXPECT_FALSE(color >= itself);
}

TEST(ColorTest, ANanAmountEndsAComparisonAsNotLess)
{
    const Color nan = makePlaceholder({Tint(NaN), Alpha(1.0)});
    const Color number = makePlaceholder({Tint(1.0), Alpha(2.0)});
    EXPECT_FALSE(nan < number);
    EXPECT_FALSE(number < nan);
}

TEST(ColorTest, ANanAmountIsLastInTheOrderOfPools)
{
    const Color nan = makePlaceholder({Tint(NaN)});
    const Color number = makePlaceholder({Tint(1e300)});
    EXPECT_TRUE(nan.compare(number, NanOrder::Last) > 0);
    EXPECT_TRUE(number.compare(nan, NanOrder::Last) < 0);
    EXPECT_TRUE(nan.compare(makePlaceholder({Tint(-NaN)}), NanOrder::Last) == 0);
}

TEST(ColorTest, ANanAmountSurvivesAFile)
{
    const auto loaded = fromJson<Color>(toJson(makePlaceholder({Tint(NaN), Complement()})));
    ASSERT_EQ(loaded.getTransforms().size(), 2U);
    EXPECT_TRUE(std::isnan(boost::get<Tint>(loaded.getTransforms().front()).get()));
}

TEST(ColorTest, SwappingItWithItselfChangesNothing)
{
    Color color(ThemeColorId::Accent2, {Tint(0.5), Gray()});
    Color& itself = color;
    std::swap(color, itself);
    EXPECT_EQ(color, Color(ThemeColorId::Accent2, {Tint(0.5), Gray()}));
}

TEST(ColorTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<Color>);
    expectCopiesAndMoves(Color(ThemeColorId::Accent2, {Tint(0.5), Gray()}));
}

} // namespace QN::DOM::ColorTest
