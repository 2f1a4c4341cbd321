#include "DOM/Properties/DOM_PropertiesResolveUtils.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "DOM/Properties/AlgebraSample.h"

namespace QN::DOM::AlgebraSample::PropertiesResolveUtilsTest {
namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
constexpr const char* Message =
    R"(DOM/Properties/DOM_PropertiesResolveUtils:403: areDeeplyEqual\(target, other\))";

// override

TEST(DOM_PropertiesResolveUtils, OverridingAlwaysTakesAPlainMember)
{
    expectCombined(Override, &Sample::plain, {{1, 2, 2}, {1, 0, 0}, {0, 2, 2}});
}

TEST(DOM_PropertiesResolveUtils, OverridingTakesWhatIsSaid)
{
    expectCombined(Override, &Sample::number,
                   {{1.0F, 2.0F, 2.0F}, {None, 2.0F, 2.0F}, {1.0F, None, 1.0F}, {None, None, None}});
    expectCombined(Override, &Sample::flag,
                   {{true, false, false}, {None, false, false}, {true, None, true}, {None, None, None}});
    expectCombined(
        Override, &Sample::choice,
        {{text("a"), text("b"), text("b")}, {text("a"), 2.0, 2.0}, {{}, 2.0, 2.0}, {2.0, {}, 2.0}});
}

TEST(DOM_PropertiesResolveUtils, OverridingMergesPropertySets)
{
    expectCombined(Override, &Sample::composite,
                   {{part(1.0F), nullptr, part(1.0F)},
                    {nullptr, part(2.0F), part(2.0F)},
                    {part(1.0F, true), part(2.0F), part(2.0F, true)},
                    {part(1.0F), part(), part(1.0F)},
                    {nullptr, nullptr, nullptr}});
}

TEST(DOM_PropertiesResolveUtils, OverridingReplacesOtherPointeesWhole)
{
    expectCombined(Override, &Sample::atomic,
                   {{label("a"), nullptr, label("a")},
                    {nullptr, label("b"), label("b")},
                    {label("a"), label("b"), label("b")}});
    expectCombined(Override, &Sample::underline,
                   {{line(1.0F, DashStyle::Dot), line(2.0F), line(2.0F)}, {line(1.0F), nullptr, line(1.0F)}});
    expectCombined(Override, &Sample::polymorphic,
                   {{line(1.0F, DashStyle::Dot), line(2.0F), line(2.0F)},
                    {line(1.0F), nullptr, line(1.0F)},
                    {line(1.0F), themeLine(), themeLine()},
                    {nullptr, themeLine(), themeLine()}});
}

TEST(DOM_PropertiesResolveUtils, OverridingANullPointerSharesThePointeeWithoutACopy)
{
    const Sample other = fullSample();
    Sample target;
    override(target, other);
    EXPECT_EQ(target.composite, other.composite);
    EXPECT_EQ(target.atomic, other.atomic);
    EXPECT_EQ(target.polymorphic, other.polymorphic);
    EXPECT_EQ(target.underline, other.underline);
}

TEST(DOM_PropertiesResolveUtils, OverridingMergesTabStopsByPosition)
{
    const TabStops one = tabs({{1.0F, Dot}, {2.0F, Dot}});
    expectCombined(
        Override, &Sample::tabs,
        {{one, None, one},
         {None, one, one},
         {one, tabs({{2.0F, Plain}, {3.0F, Dot}}), tabs({{1.0F, Dot}, {2.0F, Plain}, {3.0F, Dot}})},
         {one, TabStops(), one}});
}

TEST(DOM_PropertiesResolveUtils, OverridingWithAnEmptySetChangesPlainMembersAlone)
{
    Sample target = fullSample();
    override(target, Sample());
    EXPECT_TRUE(target == sampleOf(&Sample::plain, 0, fullSample()));
}

// exclude

TEST(DOM_PropertiesResolveUtils, ExcludingLeavesAPlainMember)
{
    expectCombined(Exclude, &Sample::plain, {{1, 1, 1}, {1, 2, 1}});
}

TEST(DOM_PropertiesResolveUtils, ExcludingRemovesWhatIsSaidAlike)
{
    expectCombined(Exclude, &Sample::number,
                   {{1.0F, 1.0F, None}, {1.0F, 2.0F, 1.0F}, {1.0F, None, 1.0F}, {None, 1.0F, None}});
    expectCombined(Exclude, &Sample::flag,
                   {{true, true, None},
                    {true, false, true},
                    {true, None, true},
                    {None, None, None},
                    {None, true, None}});
    expectCombined(Exclude, &Sample::choice,
                   {{text("a"), text("a"), {}},
                    {text("a"), text("b"), text("a")},
                    {2.0, text("a"), 2.0},
                    {2.0, {}, 2.0},
                    {{}, 2.0, {}},
                    {{}, {}, {}}});
}

TEST(DOM_PropertiesResolveUtils, ExcludingKeepsANaN)
{
    Sample target = sampleOf(&Sample::number, {NaN});
    exclude(target, sampleOf(&Sample::number, {NaN}));
    EXPECT_TRUE(target.number);
}

TEST(DOM_PropertiesResolveUtils, ExcludingLeavesAnEmptiedPropertySetPresent)
{
    expectCombined(Exclude, &Sample::composite,
                   {{part(1.0F, true), part(1.0F, true), nullptr},
                    {part(1.0F, true), part(1.0F, false), part(None, true)},
                    {part(1.0F), part(1.0F, true), part()},
                    {part(1.0F), nullptr, part(1.0F)},
                    {nullptr, part(1.0F), nullptr}});
}

TEST(DOM_PropertiesResolveUtils, ExcludingComparesOtherPointeesWhole)
{
    expectCombined(Exclude, &Sample::atomic,
                   {{label("a"), label("a"), nullptr},
                    {label("a"), label("b"), label("a")},
                    {label("a"), nullptr, label("a")},
                    {nullptr, label("a"), nullptr}});
    expectCombined(Exclude, &Sample::underline,
                   {{line(1.0F), line(1.0F), nullptr}, {line(1.0F), line(1.0F, DashStyle::Dot), line(1.0F)}});
    expectCombined(Exclude, &Sample::polymorphic,
                   {{line(1.0F), line(1.0F), nullptr},
                    {line(1.0F), line(2.0F), line(1.0F)},
                    {line(), themeLine(), line()},
                    {line(), nullptr, line()},
                    {nullptr, line(), nullptr}});
}

TEST(DOM_PropertiesResolveUtils, ExcludingComparesTabStopsAsAWhole)
{
    const TabStops one = tabs({{1.0F, Dot}, {2.0F, Dot}});
    expectCombined(Exclude, &Sample::tabs,
                   {{one, one, None},
                    {one, tabs({{1.0F, Dot}, {2.0F, Plain}}), one},
                    {one, None, one},
                    {None, one, None}});
}

TEST(DOM_PropertiesResolveUtils, ExcludingASetFromItselfLeavesPlainMembers)
{
    Sample target = fullSample();
    exclude(target, target);
    EXPECT_TRUE(target == sampleOf(&Sample::plain, 3));
}

// intersect

TEST(DOM_PropertiesResolveUtils, IntersectingKeepsWhatIsSaidAlike)
{
    expectCombined(Intersect, &Sample::plain, {{1, 1, 1}});
    expectCombined(Intersect, &Sample::number,
                   {{None, None, None},
                    {1.0F, None, None},
                    {None, 1.0F, None},
                    {1.0F, 1.0F, 1.0F},
                    {1.0F, 2.0F, None},
                    {NaN, NaN, None}});
    expectCombined(Intersect, &Sample::flag,
                   {{true, true, true}, {true, false, None}, {true, None, None}, {None, true, None}});
    expectCombined(Intersect, &Sample::choice,
                   {{text("a"), text("a"), text("a")},
                    {text("a"), text("b"), {}},
                    {text("a"), 2.0, {}},
                    {2.0, {}, {}},
                    {{}, 2.0, {}}});
}

TEST(DOM_PropertiesResolveUtils, IntersectingGoesIntoPropertySetsAndUnderlines)
{
    expectCombined(Intersect, &Sample::composite,
                   {{part(1.0F, true), part(1.0F, false), part(1.0F)},
                    {part(1.0F), part(2.0F), part()},
                    {part(1.0F), nullptr, nullptr},
                    {nullptr, part(1.0F), nullptr}});
    expectCombined(Intersect, &Sample::underline,
                   {{line(1.0F, DashStyle::Dot), line(2.0F, DashStyle::Dot), line(None, DashStyle::Dot)},
                    {line(1.0F), nullptr, nullptr},
                    {nullptr, line(1.0F), nullptr}});
}

TEST(DOM_PropertiesResolveUtils, IntersectingKeepsEqualObjectsOfAFamily)
{
    expectCombined(Intersect, &Sample::polymorphic,
                   {{line(1.0F), line(1.0F), line(1.0F)},
                    {line(1.0F), nullptr, nullptr},
                    {nullptr, line(1.0F), nullptr},
                    {nullptr, nullptr, nullptr}});
}

TEST(DOM_PropertiesResolveUtils, IntersectingKeepsAnObjectOfAFamilyAsAPrivateCopy)
{
    const Sample before = sampleOf(&Sample::polymorphic, line(1.0F));
    const Sample other = sampleOf(&Sample::polymorphic, line(1.0F));
    Sample target = before;
    intersect(target, other);
    EXPECT_NE(target.polymorphic, before.polymorphic);
    EXPECT_NE(target.polymorphic, other.polymorphic);
    EXPECT_TRUE(target == before);
}

TEST(DOM_PropertiesResolveUtils, IntersectingKeepsEqualTabStops)
{
    const TabStops one = tabs({{1.0F, Dot}, {2.0F, Dot}, {4.0F, Dot}});
    expectCombined(Intersect, &Sample::tabs,
                   {{one, tabs({{1.0F, Dot}, {2.0F, Plain}, {3.0F, Dot}}), tabs({{1.0F, Dot}})},
                    {one, TabStops(), TabStops()},
                    {one, None, None},
                    {None, one, None}});
}

TEST(DOM_PropertiesResolveUtilsDeathTest, IntersectingPlainMembersThatDifferFailsTheContract)
{
    Sample target;
    EXPECT_DEATH(intersect(target, sampleOf(&Sample::plain, 1)), Message);
}

TEST(DOM_PropertiesResolveUtilsDeathTest, IntersectingObjectsOfAFamilyThatDifferFailsTheContract)
{
    Sample target = sampleOf(&Sample::polymorphic, line());
    EXPECT_DEATH(intersect(target, sampleOf(&Sample::polymorphic, line(1.0F))), Message);
    EXPECT_DEATH(intersect(target, sampleOf(&Sample::polymorphic, themeLine())), Message);
}

// rebaseProperty

TEST(DOM_PropertiesResolveUtils, RebasingTakesTheReplacementWhereTheReferencesAreEqual)
{
    expectRebased(&Sample::plain, {{5, 7, 1, 1, 7}, {5, 7, 1, 2, 5}, {5, 0, 1, 1, 0}});
    expectRebased(&Sample::flag, {{true, false, None, None, false},
                                  {true, None, false, false, None},
                                  {true, false, None, false, true},
                                  {None, true, true, true, true}});
    expectRebased(&Sample::choice, {{text("a"), text("b"), {}, {}, text("b")},
                                    {text("a"), {}, 2.0, 2.0, {}},
                                    {text("a"), text("b"), {}, text(""), text("a")},
                                    {text("a"), 7.0, 2.0, 3.0, text("a")}});
}

TEST(DOM_PropertiesResolveUtils, RebasingAnOptionalTakesTheReplacementWhereTheReferencesAreEqual)
{
    expectRebased(&Sample::number, {{5.0F, 7.0F, 2.0F, 2.0F, 7.0F},
                                    {5.0F, 7.0F, 2.0F, 3.0F, 5.0F},
                                    {None, 7.0F, None, None, 7.0F},
                                    {5.0F, None, None, None, None},
                                    {5.0F, None, 2.0F, 2.0F, None},
                                    {5.0F, 7.0F, NaN, NaN, 5.0F}});
}

TEST(DOM_PropertiesResolveUtils, RebasingAPresentOptionalHoldsAbsentAndDefaultForEqual)
{
    expectRebased(&Sample::number, {{5.0F, 7.0F, None, 0.0F, 7.0F},
                                    {5.0F, 7.0F, 0.0F, None, 7.0F},
                                    {5.0F, 7.0F, None, 3.0F, 5.0F},
                                    {None, 7.0F, None, 0.0F, None},
                                    {5.0F, None, None, 0.0F, 5.0F}});
}

TEST(DOM_PropertiesResolveUtils, RebasingTreatsTabStopsAsOneOptional)
{
    const TabStops a = tabs({{1.0F, Dot}});
    const TabStops b = tabs({{2.0F, Dot}});
    const TabStops c = tabs({{3.0F, Dot}});
    expectRebased(&Sample::tabs, {{a, b, c, c, b},
                                  {a, b, b, c, a},
                                  {a, None, c, c, None},
                                  {a, b, None, TabStops(), b},
                                  {None, b, None, TabStops(), None}});
}

TEST(DOM_PropertiesResolveUtils, RebasingAPropertySetAlwaysLeavesAnObject)
{
    const auto nan = part(NaN); // equal to itself as a pointer alone
    expectRebased(&Sample::composite,
                  {{part(1.0F), part(2.0F, true), part(3.0F), part(3.0F), part(2.0F, true)},
                   {part(1.0F), nullptr, part(3.0F), part(3.0F), part()},
                   {nullptr, nullptr, nullptr, nullptr, part()},
                   {part(1.0F), part(2.0F), nan, nan, part(2.0F)},
                   {part(1.0F), part(2.0F), nan, part(NaN), part(1.0F)},
                   {nullptr, part(2.0F), part(3.0F), part(4.0F), part()}});
}

TEST(DOM_PropertiesResolveUtils, RebasingAPropertySetGoesByMemberWhereTheReferencesDiffer)
{
    expectRebased(&Sample::composite, {{part(1.0F, true), part(2.0F, false), part(3.0F, true),
                                        part(4.0F, true), part(1.0F, false)},
                                       {part(1.0F, true), nullptr, part(3.0F), part(4.0F), part(1.0F)},
                                       {part(1.0F), part(2.0F), nullptr, part(0.0F), part(2.0F)},
                                       {nullptr, part(2.0F), nullptr, part(), part(2.0F)}});
}

TEST(DOM_PropertiesResolveUtils, RebasingALineThatIsReplacedWholeAlwaysLeavesAnObject)
{
    expectRebased(&Sample::underline,
                  {{line(1.0F, DashStyle::Dot), line(2.0F), line(3.0F), line(3.0F), line(2.0F)},
                   {line(1.0F), line(2.0F), line(3.0F), line(4.0F), line(1.0F)},
                   {line(1.0F), nullptr, line(3.0F), line(3.0F), line()},
                   {line(1.0F), line(2.0F), nullptr, line(), line(2.0F)},
                   {line(1.0F), nullptr, nullptr, line(), line()},
                   {nullptr, line(2.0F), line(3.0F), line(4.0F), line()},
                   {nullptr, nullptr, nullptr, nullptr, line()}});
}

/// `make` gives objects that differ if their numbers do, that of zero being the default one.
template <class M, class Make>
void expectReplacedWholeOrNotAtAll(M Sample::*member, Make make)
{
    expectRebased(member, {{make(1), make(2), make(3), make(3), make(2)},
                           {make(1), make(2), nullptr, nullptr, make(2)},
                           {nullptr, make(2), make(3), make(3), make(2)},
                           {make(1), nullptr, make(3), make(3), nullptr},
                           {nullptr, nullptr, nullptr, nullptr, nullptr},
                           {make(1), make(2), make(3), make(4), make(1)},
                           {make(1), nullptr, make(3), make(4), make(1)},
                           {nullptr, make(2), make(3), make(4), nullptr},
                           {make(1), make(2), nullptr, make(0), make(1)},
                           {make(1), make(2), make(0), nullptr, make(1)}});
}

TEST(DOM_PropertiesResolveUtils,
     RebasingAnyOtherPointeeMakesNoDefaultObjectAndHoldsNullAndDefaultForDifferent)
{
    expectReplacedWholeOrNotAtAll(&Sample::atomic, [](int number) {
        return label(std::string(static_cast<std::size_t>(number), 'a'));
    });
    expectReplacedWholeOrNotAtAll(&Sample::polymorphic, [](int number) {
        return number == 0 ? line() : line(static_cast<float>(number));
    });
    const auto nan = line(NaN); // equal to itself as a pointer alone
    expectRebased(&Sample::polymorphic, {{line(1.0F), line(2.0F), nan, nan, line(2.0F)},
                                         {line(1.0F), line(2.0F), nan, line(NaN), line(1.0F)},
                                         {line(1.0F), themeLine(), nullptr, nullptr, themeLine()},
                                         {themeLine(), line(2.0F), line(3.0F), line(4.0F), themeLine()},
                                         {line(1.0F), line(2.0F), line(), themeLine(), line(1.0F)}});
}

TEST(DOM_PropertiesResolveUtils, RebasingCopiesAReplacementAndAnObjectOfAFamilyThatStays)
{
    const Sample before = fullSample();
    const Sample replacement = fullSample();
    Sample replaced = before;
    rebaseProperty(replaced, replacement, Sample(), Sample());
    EXPECT_TRUE(replaced == replacement);
    EXPECT_NE(replaced.atomic, replacement.atomic);
    EXPECT_NE(replaced.polymorphic, replacement.polymorphic);

    Sample kept = before;
    rebaseProperty(kept, Sample(), fullSample(), Sample());
    EXPECT_EQ(kept.atomic, before.atomic) << "no change";
    EXPECT_NE(kept.polymorphic, before.polymorphic);
    EXPECT_TRUE(arePointersDeeplyEqual(kept.polymorphic, before.polymorphic));
}

// Failures

/// Copying and comparing take a step each; the step after the last that is left throws.
class Fragile {
public:
    Fragile() = default;
    Fragile(const Fragile& other) : _value(other._value) { takeStep(); }
    Fragile& operator=(const Fragile& other)
    {
        takeStep();
        _value = other._value;
        return *this;
    }
    ~Fragile() = default;

    bool operator==(const Fragile& other) const
    {
        takeStep();
        return _value == other._value;
    }

    static void setStepsLeft(int steps) { _stepsLeft = steps; }

private:
    static void takeStep()
    {
        if (_stepsLeft-- == 0) {
            throw std::runtime_error("no steps left");
        }
    }

    static inline int _stepsLeft = -1;
    int _value = 0;
};

struct FragilePart {
    boost::optional<float> before;
    Fragile fragile;
    boost::optional<float> after;
};
BOOST_DESCRIBE_STRUCT(FragilePart, (), (before, fragile, after))
bool operator==(const FragilePart& left, const FragilePart& right)
{
    return areAllMembersEqual(left, right);
}
QN_DEFINE_ALGEBRA(FragilePart)

using FragilePointer = std::shared_ptr<const FragilePart>;

/// Lets the operation fail at its first step, then at its second, and so on until it succeeds.
template <class Operation>
void expectOldValueAfterEachFailure(Operation operation)
{
    const auto old = std::make_shared<const FragilePart>(FragilePart{1.0F, {}, 1.0F});
    const auto other = std::make_shared<const FragilePart>(FragilePart{2.0F, {}, 1.0F});
    int failures = 0;
    for (bool hasFailed = true; hasFailed;) {
        FragilePointer target = old;
        Fragile::setStepsLeft(failures);
        try {
            operation(target, other);
            hasFailed = false;
        } catch (const std::runtime_error&) {
            ++failures;
            EXPECT_EQ(target, old);
        }
        Fragile::setStepsLeft(-1);
        EXPECT_EQ(*old, (FragilePart{1.0F, {}, 1.0F}));
        EXPECT_TRUE(hasFailed || target != old);
    }
    EXPECT_GT(failures, 0);
}

TEST(DOM_PropertiesResolveUtils, APointerKeepsItsOldValueWhenAnOperationOnItsCopyFails)
{
    expectOldValueAfterEachFailure(
        [](FragilePointer& target, const FragilePointer& other) { DOM::override(target, other); });
    expectOldValueAfterEachFailure(
        [](FragilePointer& target, const FragilePointer& other) { DOM::exclude(target, other); });
    expectOldValueAfterEachFailure(
        [](FragilePointer& target, const FragilePointer& other) { DOM::intersect(target, other); });
    expectOldValueAfterEachFailure([](FragilePointer& target, const FragilePointer& other) {
        DOM::rebaseProperty(target, other, FragilePointer(), other);
    });
}

} // namespace
} // namespace QN::DOM::AlgebraSample::PropertiesResolveUtilsTest
