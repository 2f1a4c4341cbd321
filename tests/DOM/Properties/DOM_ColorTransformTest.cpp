#include "DOM/Properties/DOM_ColorTransform.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "Support/RoundTrip.h"

namespace QN::DOM::ColorTransformTest {

using namespace Test;

namespace {

struct Row {
    ColorTransform transform;
    std::string data;
};

/// All kinds in their order, each with its payload in a file.
const std::vector<Row>& getRows()
{
    static const std::vector<Row> Rows{
        {Alpha(0.5), R"({"_value":0.5})"},
        {AlphaModulation(0.5), R"({"_value":0.5})"},
        {AlphaOffset(-0.5), R"({"_value":-0.5})"},
        {Blue(0.5), R"({"_value":0.5})"},
        {BlueModulation(0.5), R"({"_value":0.5})"},
        {BlueOffset(0.5), R"({"_value":0.5})"},
        {Complement(), "{}"},
        {Gamma(), "{}"},
        {Gray(), "{}"},
        {Green(0.5), R"({"_value":0.5})"},
        {GreenModulation(0.5), R"({"_value":0.5})"},
        {GreenOffset(0.5), R"({"_value":0.5})"},
        {Hue(2.0), R"({"_value":2.0})"},
        {HueModulation(2.0), R"({"_value":2.0})"},
        {HueOffset(-2), R"({"_value":-2})"},
        {Inverse(), "{}"},
        {InverseGamma(), "{}"},
        {Luminance(0.5), R"({"_value":0.5})"},
        {LuminanceModulation(0.5), R"({"_value":0.5})"},
        {LuminanceOffset(0.5), R"({"_value":0.5})"},
        {Red(0.5), R"({"_value":0.5})"},
        {RedModulation(0.5), R"({"_value":0.5})"},
        {RedOffset(0.5), R"({"_value":0.5})"},
        {Saturation(0.5), R"({"_value":0.5})"},
        {SaturationModulation(3.0), R"({"_value":3.0})"},
        {SaturationOffset(0.5), R"({"_value":0.5})"},
        {Tint(0.5), R"({"_value":0.5})"},
        {Shade(0.5), R"({"_value":0.5})"},
    };
    return Rows;
}

} // namespace

TEST(ColorTransformTest, HasTwentyEightKindsWhosePlaceIsTheirNumberInAFile)
{
    ASSERT_EQ(getRows().size(), 28U);
    int which = 0;
    for (const Row& row : getRows()) {
        EXPECT_EQ(toJson(row.transform),
                  R"({"object":{"which":)" + std::to_string(which) + R"(,"data":)" + row.data + "}}");
        expectPersists(row.transform);
        ++which;
    }
}

TEST(ColorTransformTest, HueOffsetIsTheOneIntegerAmount)
{
    static_assert(std::is_same_v<HueOffset::ValueType, int>);
    static_assert(std::is_same_v<HueModulation::ValueType, double>);
    static_assert(std::is_same_v<Hue::ValueType, double>);
}

TEST(ColorTransformTest, KindsWithTheSameAmountAreDifferent)
{
    for (const Row& left : getRows()) {
        for (const Row& right : getRows()) {
            EXPECT_EQ(left.transform == right.transform, &left == &right);
        }
    }
}

TEST(ColorTransformTest, AKindPastTheLastIsRefused)
{
    EXPECT_EQ(loadError<ColorTransform>(R"({"object":{"which":28,"data":{}}})"),
              "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(loadError<ColorTransform>(R"({"object":{"which":-1,"data":{}}})"),
              "Error traversing variant during load");
}

TEST(ColorTransformTest, AListKeepsItsOrderAndItsRepetitions)
{
    const ColorTransforms list{Shade(0.5), Tint(0.5), Shade(0.5), Alpha(1.0)};
    expectPersists(list);
    EXPECT_EQ(toJson(list),
              R"({"object":[{"which":27,"data":{"_value":0.5}},{"which":26,"data":{"_value":0.5}},)"
              R"({"which":27,"data":{"_value":0.5}},{"which":0,"data":{"_value":1.0}}]})");
}

} // namespace QN::DOM::ColorTransformTest
