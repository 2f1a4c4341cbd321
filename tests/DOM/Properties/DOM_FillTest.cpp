#include "DOM/Properties/DOM_Fill.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "DOM/Properties/DOM_BlipFill.h"
#include "DOM/Properties/DOM_GradientFill.h"
#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_PatternFill.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/Properties/DOM_ThemeFill.h"
#include "DOM/Properties/PaintSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FillTest {

using namespace Test;

namespace {

using Fills = std::vector<std::unique_ptr<Fill>>;

/// One of each class in the order of the family, with members that would order the other way round.
Fills makeFamily()
{
    Fills fills;
    fills.push_back(std::make_unique<NoFill>());
    auto solid = std::make_unique<SolidFill>();
    solid->setColor(makePlaceholder({Shade(0.5)}));
    fills.push_back(std::move(solid));
    auto gradient = std::make_unique<GradientFill>();
    gradient->getGradientStops().emplace_back().setPosition(7.0);
    fills.push_back(std::move(gradient));
    auto blip = std::make_unique<BlipFill>();
    blip->setContent(std::make_shared<const std::string>("bytes"));
    fills.push_back(std::move(blip));
    fills.push_back(std::make_unique<PatternFill>());
    fills.push_back(std::make_unique<ThemeFill>());
    return fills;
}

const std::vector<std::string> Names{"QN::DOM::NoFill",   "QN::DOM::SolidFill",   "QN::DOM::GradientFill",
                                     "QN::DOM::BlipFill", "QN::DOM::PatternFill", "QN::DOM::ThemeFill"};

} // namespace

TEST(FillTest, TheFamilyStandsInItsOrder)
{
    static_assert(
        std::is_same_v<Fill::Types,
                       TypeList<NoFill, SolidFill, GradientFill, BlipFill, PatternFill, ThemeFill>>);
    static_assert(std::is_abstract_v<Fill>);
    static_assert(std::has_virtual_destructor_v<Fill>);
}

TEST(FillTest, EachClassStandsInAFileUnderItsName)
{
    const Fills fills = makeFamily();
    ASSERT_EQ(fills.size(), Names.size());
    for (std::size_t index = 0; index < fills.size(); ++index) {
        const std::string json = toJson(fills[index]);
        const std::string start = R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":")" +
                                  Names[index] + R"(","ptr_wrapper":{"valid":1,"data":{"value0":{})";
        EXPECT_EQ(json.substr(0, start.size()), start);
        expectPersists(fills[index]);
    }
}

TEST(FillTest, FillsWithoutMembersHoldNothingButTheirEmptyBase)
{
    const std::unique_ptr<Fill> noFill = std::make_unique<NoFill>();
    EXPECT_EQ(toJson(noFill),
              R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::NoFill",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}}})");
    const std::unique_ptr<Fill> pattern = std::make_unique<PatternFill>();
    EXPECT_EQ(toJson(pattern),
              R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::PatternFill",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}}})");
}

TEST(FillTest, ANullPointerPersists)
{
    const std::unique_ptr<Fill> null;
    EXPECT_EQ(toJson(null), R"({"object":{"polymorphic_id":0}})");
    expectPersists(null);
}

TEST(FillTest, SharedPointersPersistAsOneObject)
{
    const std::vector<std::shared_ptr<const Fill>> fills(2, std::make_shared<NoFill>());
    EXPECT_EQ(toJson(fills),
              R"({"object":[{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::NoFill",)"
              R"("ptr_wrapper":{"id":2147483649,"data":{"value0":{}}}},)"
              R"({"polymorphic_id":1,"ptr_wrapper":{"id":1}}]})");
    const auto loaded = fromJson<std::vector<std::shared_ptr<const Fill>>>(toJson(fills));
    EXPECT_EQ(loaded[0], loaded[1]);
    EXPECT_TRUE(areDeeplyEqual(*loaded[0], NoFill()));
}

TEST(FillTest, AClassOfAnotherNameIsRefused)
{
    const auto loadNamed = [](const std::string& name) {
        return loadError<std::unique_ptr<Fill>>(
            R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":")" + name +
            R"(","ptr_wrapper":{"valid":1,"data":{"value0":{}}}}})");
    };
    EXPECT_THAT(loadNamed("QN::DOM::Fill"),
                testing::StartsWith("Trying to load an unregistered polymorphic type (QN::DOM::Fill)."));
    EXPECT_THAT(loadNamed("QN::DOM::ThemeLineProps"),
                testing::StartsWith("Trying to load a registered polymorphic type with an unregistered "
                                    "polymorphic cast."));
}

TEST(FillTest, FillsOfDifferentClassesAreUnequalAndOrderByTheFamily)
{
    const Fills fills = makeFamily();
    for (std::size_t left = 0; left < fills.size(); ++left) {
        for (std::size_t right = 0; right < fills.size(); ++right) {
            EXPECT_EQ(areDeeplyEqual(*fills[left], *fills[right]), left == right);
            EXPECT_EQ(areDeeplyLess(*fills[left], *fills[right]), left < right) << left << " " << right;
            EXPECT_TRUE(compareDeeply(*fills[left], *fills[right], NanOrder::Last) == (left <=> right));
        }
    }
}

TEST(FillTest, FillsOfOneClassCompareByTheirMembers)
{
    SolidFill dark;
    dark.setColor(makeSlotColor(ThemeColorId::Dark1));
    SolidFill light;
    light.setColor(makeSlotColor(ThemeColorId::Light1));
    EXPECT_TRUE(areDeeplyEqual(dark, SolidFill(dark)));
    EXPECT_FALSE(areDeeplyEqual(dark, light));
    EXPECT_TRUE(areDeeplyLess(dark, light));
    EXPECT_FALSE(areDeeplyLess(light, dark));
    EXPECT_FALSE(areDeeplyLess(dark, SolidFill(dark)));
}

TEST(FillTest, AClonedFillHasTheClassAndContentOfItsSource)
{
    for (const auto& fill : makeFamily()) {
        const std::unique_ptr<Fill> unique = cloneUnique(*fill);
        const std::shared_ptr<Fill> shared = cloneShared(*fill);
        EXPECT_NE(unique.get(), fill.get());
        EXPECT_TRUE(areDeeplyEqual(*unique, *fill));
        EXPECT_TRUE(areDeeplyEqual(*shared, *fill));
        const Fill& copy = *unique;
        const Fill& source = *fill;
        EXPECT_TRUE(typeid(copy) == typeid(source));
    }
}

TEST(FillTest, AVisitorGetsTheConcreteFill)
{
    const Fills fills = makeFamily();
    std::size_t index = 0;
    for (const auto& fill : fills) {
        const Fill& constFill = *fill;
        const auto isConstVisit = visit<bool>(constFill, [](auto& concrete) {
            return std::is_const_v<std::remove_reference_t<decltype(concrete)>>;
        });
        EXPECT_TRUE(isConstVisit);
        const auto name = visit<std::string>(*fill, [](auto& concrete) {
            using Concrete = std::remove_reference_t<decltype(concrete)>;
            static_assert(!std::is_const_v<Concrete>);
            return std::is_same_v<Concrete, NoFill>         ? Names[0]
                   : std::is_same_v<Concrete, SolidFill>    ? Names[1]
                   : std::is_same_v<Concrete, GradientFill> ? Names[2]
                   : std::is_same_v<Concrete, BlipFill>     ? Names[3]
                   : std::is_same_v<Concrete, PatternFill>  ? Names[4]
                                                            : Names[5];
        });
        EXPECT_EQ(name, Names[index++]);
    }
}

} // namespace QN::DOM::FillTest
