#include "DOM/Tables/Properties/DOM_RowProps.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::RowPropsTest {
namespace {

using namespace QN::Test;
using ResolvedRowProps = RowPropsImpl<MemberTrait::RequiredMembers>;

RowProps makeFull()
{
    RowProps props;
    props.setHidden(true);
    props.setHeight(RowHeight(20.0F, RowHeightRule::Exact));
    props.setGroupingLevel(std::uint8_t{3});
    props.setPageBreakBefore(false);
    return props;
}

TEST(DOM_RowProps, SayNothingByDefault)
{
    expectText(RowProps(), R"({"_isHidden":{"value":-1},"_height":{"hasValue":false},)"
                           R"("_groupingLevel":{"hasValue":false},"_hasPageBreakBefore":{"value":-1}})");
}

TEST(DOM_RowProps, WriteAllThatTheySay)
{
    expectText(
        makeFull(),
        R"({"_isHidden":{"value":1},"_height":{"hasValue":true,"value":{"_value":{"hasValue":true,)"
        R"("value":20.0},"_rule":{"hasValue":true,"value":1}}},"_groupingLevel":{"hasValue":true,"value":3},)"
        R"("_hasPageBreakBefore":{"value":0}})");
    expectCopiesAndMoves(makeFull());
}

TEST(DOM_RowProps, AnswerWhatWasSet)
{
    const RowProps props = makeFull();
    EXPECT_EQ(props.isHidden(), BoolOpt(true));
    EXPECT_EQ(props.getHeight(), RowHeight(20.0F, RowHeightRule::Exact));
    EXPECT_EQ(props.getGroupingLevel(), std::uint8_t{3});
    EXPECT_EQ(props.hasPageBreakBefore(), BoolOpt(false));
}

TEST(DOM_RowProps, OrderByTheirMembersInTurn)
{
    expectAscending({RowProps(), with<RowProps>([](auto& props) { props.setPageBreakBefore(false); }),
                     with<RowProps>([](auto& props) { props.setGroupingLevel(std::uint8_t{0}); }),
                     with<RowProps>([](auto& props) { props.setHeight(RowHeight()); }),
                     with<RowProps>([](auto& props) { props.setHeight(RowHeight(1.0F, boost::none)); }),
                     with<RowProps>([](auto& props) { props.setHidden(false); }),
                     with<RowProps>([](auto& props) { props.setHidden(true); })});
}

TEST(DOM_RowProps, HoldPlainValuesWhenTheyAreResolved)
{
    ResolvedRowProps props;
    EXPECT_FALSE(props.isHidden());
    EXPECT_EQ(props.getHeight().getValue(), 0.0F);
    EXPECT_EQ(props.getGroupingLevel(), 0);
    EXPECT_FALSE(props.hasPageBreakBefore());
    props.setHidden(true);
    EXPECT_NE(props, ResolvedRowProps());
    EXPECT_LT(ResolvedRowProps(), props);
}

TEST(DOM_RowProps, AreOverriddenByWhatTheOtherSays)
{
    RowProps target = makeFull();
    RowProps other;
    override(target, other);
    EXPECT_EQ(target, makeFull());
    other.setHidden(false);
    other.setGroupingLevel(std::uint8_t{7});
    override(target, other);
    EXPECT_EQ(target.isHidden(), BoolOpt(false));
    EXPECT_EQ(target.getGroupingLevel(), std::uint8_t{7});
    EXPECT_EQ(target.hasPageBreakBefore(), BoolOpt(false));
}

TEST(DOM_RowProps, TakeTheHeightWholeWhenTheyAreOverridden)
{
    RowProps target = makeFull();
    override(target, with<RowProps>([](auto& props) { props.setHeight(RowHeight(1.0F, boost::none)); }));
    EXPECT_EQ(target.getHeight(), RowHeight(1.0F, boost::none));
}

TEST(DOM_RowProps, AreEmptyWithoutThemselves)
{
    RowProps target = makeFull();
    exclude(target, makeFull());
    EXPECT_EQ(target, RowProps());
}

TEST(DOM_RowProps, KeepWhatTheOtherSaysDifferentlyWhenItIsExcluded)
{
    RowProps target = makeFull();
    exclude(target, with<RowProps>([](auto& props) {
                props.setHidden(true);
                props.setHeight(RowHeight(20.0F, RowHeightRule::AtLeast));
            }));
    EXPECT_FALSE(target.isHidden());
    EXPECT_EQ(target.getHeight(), RowHeight(20.0F, RowHeightRule::Exact));
}

TEST(DOM_RowProps, KeepWhatBothSayAlike)
{
    RowProps target = makeFull();
    RowProps other = makeFull();
    other.setGroupingLevel(boost::none);
    other.setPageBreakBefore(true);
    intersect(target, other);
    EXPECT_EQ(target, with<RowProps>([](auto& props) {
                  props.setHidden(true);
                  props.setHeight(RowHeight(20.0F, RowHeightRule::Exact));
              }));
}

TEST(DOM_RowProps, AreRebasedWhereTheReferencesAgree)
{
    const auto withLevel = [](boost::optional<std::uint8_t> level) {
        return with<RowProps>([&](auto& props) { props.setGroupingLevel(level); });
    };
    RowProps target = withLevel(5);
    rebaseProperty(target, withLevel(7), withLevel(boost::none), withLevel(3));
    EXPECT_EQ(target, withLevel(5));
    rebaseProperty(target, withLevel(7), withLevel(boost::none), withLevel(0));
    EXPECT_EQ(target, withLevel(7));
    rebaseProperty(target, RowProps(), withLevel(2), withLevel(2));
    EXPECT_EQ(target, RowProps());
    rebaseProperty(target, withLevel(7), withLevel(boost::none), withLevel(0));
    EXPECT_EQ(target, RowProps());
}

template <class T>
concept Persisted = requires(const T& value, cereal::JSONOutputArchive& archive)
{
    value.serialize(archive);
};

TEST(DOM_RowProps, ArePersistedInTheirPartialFormAlone)
{
    EXPECT_TRUE(Persisted<RowProps>);
    EXPECT_FALSE(Persisted<ResolvedRowProps>);
}

} // namespace
} // namespace QN::DOM::RowPropsTest
