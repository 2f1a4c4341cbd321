#include "DOM/Properties/DOM_DeclareAlgebra.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <type_traits>

#include "DOM/Properties/AlgebraExamples.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RunStyle.h"
#include "DOM/Properties/DOM_TableStyle.h"

namespace QN::DOM::AlgebraExamples::PropertyAlgebraTest {
namespace {

constexpr const char* Message =
    R"(DOM/Properties/DOM_PropertiesResolveUtils:403: areDeeplyEqual\(target, other\))";

// Which class has which operations

enum Operations : unsigned { Nothing = 0, Override = 1, Exclude = 2, Intersect = 4, Rebase = 8, All = 15 };

template <class T>
constexpr unsigned operationsOf()
{
    return (HasOverride<T> ? Override : 0U) | (HasExclude<T> ? Exclude : 0U) |
           (HasIntersect<T> ? Intersect : 0U) | (HasRebase<T> ? Rebase : 0U);
}

template <class... Ts>
constexpr bool allHave(unsigned operations)
{
    return ((operationsOf<Ts>() == operations) && ...);
}

static_assert(allHave<RunProps, FontProps, ParaProps, NumberingRef, PageProps>(All));
static_assert(allHave<BordersProps, CellProps, TableProps, RowProps, ColumnProps>(All));
static_assert(allHave<Crop, Insets, LineEndingProps, TrackedRunProps, TrackedParaProps>(All));
static_assert(allHave<TextAnchor, TrackedAction, TrackedParent>(Override | Exclude | Intersect));
static_assert(allHave<CellStyle>(Override | Exclude | Rebase));
static_assert(allHave<ParagraphStyle, NumberingLevelStyle>(Override | Exclude));
static_assert(allHave<RegularLineProps>(Intersect));
static_assert(HasRebase<std::shared_ptr<TrackedAction>> && HasRebase<std::shared_ptr<const TrackedAction>>);
static_assert(HasRebase<std::shared_ptr<TrackedParent>> && HasRebase<std::shared_ptr<const TrackedParent>>);

static_assert(allHave<RunStyle, TableStyle, LineProps, ThemeLineProps, Fill, CellFormat>(Nothing));
static_assert(allHave<TabStopProps, LineSpacing, SpacingValue, Color>(Nothing));
static_assert(allHave<RowPropsImpl<MemberTrait::RequiredMembers>>(Nothing));

// What holds for each class

template <class T>
T saidPlain()
{
    return with<T>(Example<T>::sayPlain);
}

template <class T>
T saidAll()
{
    T value = Example<T>::said();
    Example<T>::sayPlain(value);
    return value;
}

template <class T>
class PropertyAlgebra : public testing::Test {
};

using Classes = testing::Types<RunProps, FontProps, ParaProps, NumberingRef, PageProps, BordersProps,
                               CellProps, TableProps, RowProps, ColumnProps, Crop, Insets, LineEndingProps,
                               TextAnchor, CellStyle, ParagraphStyle, NumberingLevelStyle, TrackedAction,
                               TrackedParent, TrackedRunProps, TrackedParaProps>;
TYPED_TEST_SUITE(PropertyAlgebra, Classes);

TYPED_TEST(PropertyAlgebra, TheExampleSaysAllThatTakesPart)
{
    const TypeParam all = saidAll<TypeParam>();
    const TypeParam nothing;
    forEachMember<TypeParam>([&](auto member) {
        EXPECT_NE(areMembersDeeplyEqual(all.*member.pointer, nothing.*member.pointer),
                  Example<TypeParam>::takesPart(member.name))
            << member.name;
    });
}

TYPED_TEST(PropertyAlgebra, OverridingNothingTakesAll)
{
    TypeParam target;
    override(target, saidAll<TypeParam>());
    EXPECT_TRUE(target == saidAll<TypeParam>());
}

TYPED_TEST(PropertyAlgebra, OverridingWithNothingResetsPlainMembersAlone)
{
    TypeParam target = saidAll<TypeParam>();
    override(target, TypeParam());
    EXPECT_TRUE(target == Example<TypeParam>::said());
}

TYPED_TEST(PropertyAlgebra, ExcludingItselfLeavesPlainMembersAlone)
{
    TypeParam target = saidAll<TypeParam>();
    exclude(target, saidAll<TypeParam>());
    EXPECT_TRUE(target == saidPlain<TypeParam>());

    target = saidAll<TypeParam>();
    exclude(target, target);
    EXPECT_TRUE(target == saidPlain<TypeParam>());
}

TYPED_TEST(PropertyAlgebra, ExcludingNothingLeavesAll)
{
    TypeParam target = saidAll<TypeParam>();
    exclude(target, TypeParam());
    EXPECT_TRUE(target == saidAll<TypeParam>());
}

TYPED_TEST(PropertyAlgebra, IntersectingKeepsAllOfItselfAndNothingElse)
{
    if constexpr (HasIntersect<TypeParam>) {
        TypeParam target = saidAll<TypeParam>();
        intersect(target, saidAll<TypeParam>());
        EXPECT_TRUE(target == saidAll<TypeParam>());
        intersect(target, saidPlain<TypeParam>());
        EXPECT_TRUE(target == saidPlain<TypeParam>());
        intersect(target, saidAll<TypeParam>());
        EXPECT_TRUE(target == saidPlain<TypeParam>());
    }
}

TYPED_TEST(PropertyAlgebra, RebasingTakesAllOfTheReplacementWhereTheReferencesAreEqual)
{
    if constexpr (HasRebase<TypeParam>) {
        TypeParam target;
        rebaseProperty(target, saidAll<TypeParam>(), TypeParam(), TypeParam());
        EXPECT_TRUE(target == saidAll<TypeParam>());
        rebaseProperty(target, TypeParam(), saidAll<TypeParam>(), saidAll<TypeParam>());
        EXPECT_TRUE(target == Example<TypeParam>::cleared());
    }
}

TYPED_TEST(PropertyAlgebra, RebasingLeavesTheTargetWhereTheReferencesDiffer)
{
    if constexpr (HasRebase<TypeParam>) {
        TypeParam target = saidAll<TypeParam>();
        rebaseProperty(target, TypeParam(), TypeParam(), saidAll<TypeParam>());
        EXPECT_TRUE(target == saidAll<TypeParam>());
        target = TypeParam();
        rebaseProperty(target, saidAll<TypeParam>(), saidAll<TypeParam>(), TypeParam());
        EXPECT_TRUE(target == Example<TypeParam>::cleared());
    }
}

// What is particular to a class

TEST(DOM_PropertyAlgebra, ANilParentWipesOneThatIsSet)
{
    CellStyle cell = withParent<CellStyle>(SomeUUID);
    override(cell, CellStyle());
    EXPECT_FALSE(cell.getParentUUID());
    ParagraphStyle paragraph = withParent<ParagraphStyle>(SomeUUID);
    override(paragraph, ParagraphStyle());
    EXPECT_FALSE(paragraph.getParentUUID());
}

TEST(DOM_PropertyAlgebra, TrackedMembersOfAStyleTakeNoPart)
{
    const auto tracked = [](char which) {
        return with<ParagraphStyle>([&](ParagraphStyle& style) {
            style.setTrackedParaProps(makeTracked(makeParaProps(static_cast<float>(which))));
            style.setTrackedParent(makeTracked(which == 'a' ? SomeUUID : OtherUUID));
        });
    };
    ParagraphStyle target = tracked('a');
    override(target, tracked('b'));
    EXPECT_TRUE(target == tracked('a'));
    exclude(target, tracked('a'));
    EXPECT_TRUE(target == tracked('a'));
    target = ParagraphStyle();
    override(target, tracked('b'));
    EXPECT_TRUE(target == ParagraphStyle());
}

TEST(DOM_PropertyAlgebra, TheRecordOfATrackedObjectTakesNoPart)
{
    const auto left = makeInfo("Ada");
    const auto right = makeInfo("Ben");
    TrackedRunProps target(left, makeRunProps(1.0F));
    override(target, TrackedRunProps(right, makeRunProps(2.0F)));
    EXPECT_TRUE(target == TrackedRunProps(left, makeRunProps(2.0F)));
    intersect(target, TrackedRunProps(right, makeRunProps(2.0F)));
    EXPECT_TRUE(target == TrackedRunProps(left, makeRunProps(2.0F)));
    rebaseProperty(target, TrackedRunProps(right, makeRunProps(3.0F)), TrackedRunProps(left, nullptr),
                   TrackedRunProps(right, nullptr));
    const auto rebased = with<RunProps>([](RunProps& props) {
        props = Example<RunProps>::cleared();
        props.setSpacing(3.0F);
    });
    EXPECT_TRUE(target == TrackedRunProps(left, std::make_shared<const RunProps>(rebased)));
    exclude(target, TrackedRunProps(right, std::make_shared<const RunProps>(rebased)));
    EXPECT_TRUE(target == TrackedRunProps(left, nullptr));
}

template <class Pointer>
class TrackedPointer : public testing::Test {
};

using TrackedPointers = testing::Types<std::shared_ptr<TrackedAction>, std::shared_ptr<const TrackedAction>,
                                       std::shared_ptr<TrackedParent>, std::shared_ptr<const TrackedParent>>;
TYPED_TEST_SUITE(TrackedPointer, TrackedPointers);

TYPED_TEST(TrackedPointer, IsRebasedWholeToANewCopyWhereRecordAndValueAreEqual)
{
    using Tracked = std::remove_const_t<typename TypeParam::element_type>;
    const auto make = [](const char* author, bool isPlainSaid) {
        Tracked tracked = isPlainSaid ? saidPlain<Tracked>() : Tracked();
        tracked.setInfo(makeInfo(author));
        return std::make_shared<typename TypeParam::element_type>(tracked);
    };
    const TypeParam before = make("Ada", false);
    const TypeParam replacement = make("Ben", true);

    TypeParam target = before;
    const auto expectRebase = [&](const TypeParam& left, const TypeParam& right, bool isTaken) {
        target = before;
        rebaseProperty(target, replacement, left, right);
        ASSERT_NE(target, nullptr);
        EXPECT_EQ(*target, isTaken ? *replacement : *before);
        EXPECT_EQ(target == before, !isTaken);
        EXPECT_NE(target, replacement);
    };
    expectRebase(nullptr, nullptr, true);
    expectRebase(make("Cat", true), make("Cat", true), true);
    expectRebase(make("Cat", true), make("Cat", false), false);
    expectRebase(make("Cat", true), make("Dan", true), false);
    expectRebase(make("Cat", true), nullptr, false);
    expectRebase(nullptr, make("Cat", true), false);
    EXPECT_EQ(*before, *make("Ada", false));

    const TypeParam null;
    rebaseProperty(target, null, null, null);
    EXPECT_EQ(target, nullptr);
}

TEST(DOM_PropertyAlgebra, AHeightIsReplacedWhole)
{
    const auto row = [](RowHeight height) {
        return with<RowProps>([&](RowProps& props) { props.setHeight(height); });
    };
    RowProps target = row(RowHeight(12.0F, RowHeightRule::Exact));
    override(target, row(RowHeight(boost::none, RowHeightRule::AtLeast)));
    EXPECT_TRUE(target == row(RowHeight(boost::none, RowHeightRule::AtLeast)));
}

TEST(DOM_PropertyAlgebra, TheDistanceOfAnAnchorIsMergedBySide)
{
    TextAnchor target;
    target.getDistance().setLeft(1.0F);
    TextAnchor other;
    other.getDistance().setTop(2.0F);
    override(target, other);
    other.getDistance().setLeft(1.0F);
    EXPECT_TRUE(target == other);
}

TEST(DOM_PropertyAlgebra, BordersThatAgreeAreKeptAndThoseOfOneSideDropped)
{
    BordersProps target = Example<BordersProps>::said();
    BordersProps expected = target;
    expected.setTop(nullptr);
    intersect(target, expected);
    EXPECT_TRUE(target == expected);
}

TEST(DOM_PropertyAlgebraDeathTest, IntersectingWhatMustAgreeFailsTheContract)
{
    BordersProps borders = *makeBorders(1.0F);
    EXPECT_DEATH(intersect(borders, *makeBorders(2.0F)), Message);
    TableProps table;
    EXPECT_DEATH(intersect(table, saidPlain<TableProps>()), Message);
    TextAnchor anchor;
    EXPECT_DEATH(intersect(anchor, saidPlain<TextAnchor>()), Message);
    TrackedAction action;
    EXPECT_DEATH(intersect(action, saidPlain<TrackedAction>()), Message);
    TrackedParent parent;
    EXPECT_DEATH(intersect(parent, saidPlain<TrackedParent>()), Message);
}

TEST(DOM_PropertyAlgebra, AnUnderlineIsIntersectedByMemberAndReplacedWholeOtherwise)
{
    const auto underlined = [](boost::optional<float> width, boost::optional<DashStyle> dash) {
        return with<RunProps>([&](RunProps& props) {
            props.setUnderline(sharedWith<RegularLineProps>([&](RegularLineProps& line) {
                line.setWidth(width);
                line.setDashStyle(dash);
            }));
        });
    };
    RunProps target = underlined(1.0F, DashStyle::Dot);
    intersect(target, underlined(1.0F, DashStyle::Dash));
    EXPECT_TRUE(target == underlined(1.0F, boost::none));
    override(target, underlined(boost::none, DashStyle::Dash));
    EXPECT_TRUE(target == underlined(boost::none, DashStyle::Dash));
    exclude(target, underlined(2.0F, DashStyle::Dash));
    EXPECT_TRUE(target == underlined(boost::none, DashStyle::Dash));
}

TEST(DOM_PropertyAlgebra, NaNReferencesNeverAgree)
{
    const auto left = [](float value) {
        return with<Insets>([&](Insets& insets) { insets.setLeft(value); });
    };
    const Insets nan = left(std::numeric_limits<float>::quiet_NaN());
    Insets target = left(5.0F);
    rebaseProperty(target, left(7.0F), nan, nan);
    EXPECT_TRUE(target == left(5.0F));
}

// Sharing and failures

template <class Operation>
void expectCopyOnWrite(Operation operation)
{
    const auto held = sharedSaid<FontProps>();
    const auto others = sharedWith<FontProps>([](FontProps& props) { props.setBold(false); });
    RunProps target = with<RunProps>([&](RunProps& props) { props.setFontProps(held); });
    operation(target, with<RunProps>([&](RunProps& props) { props.setFontProps(others); }));
    ASSERT_NE(target.getFontProps(), nullptr);
    EXPECT_NE(target.getFontProps(), held);
    EXPECT_NE(target.getFontProps(), others);
    EXPECT_EQ(*held, Example<FontProps>::said());
    EXPECT_EQ(others->getBold(), BoolOpt(false));
    EXPECT_EQ(others->getItalic(), BoolOpt());
}

TEST(DOM_PropertyAlgebra, OtherHoldersOfAPointeeSeeNoChange)
{
    expectCopyOnWrite([](RunProps& target, const RunProps& other) { override(target, other); });
    expectCopyOnWrite([](RunProps& target, const RunProps& other) { exclude(target, other); });
    expectCopyOnWrite([](RunProps& target, const RunProps& other) { intersect(target, other); });
    expectCopyOnWrite([](RunProps& target, const RunProps& other) {
        rebaseProperty(target, other, RunProps(), RunProps());
    });
}

TEST(DOM_PropertyAlgebra, OverridingANullPointerSharesWithoutACopy)
{
    const CellStyle other = Example<CellStyle>::said();
    CellStyle target;
    override(target, other);
    EXPECT_EQ(target.getCellProps(), other.getCellProps());
    EXPECT_EQ(target.getCellFormat(), other.getCellFormat());
    EXPECT_EQ(target.getParaProps(), other.getParaProps());
    EXPECT_EQ(target.getRunProps(), other.getRunProps());
}

} // namespace
} // namespace QN::DOM::AlgebraExamples::PropertyAlgebraTest
