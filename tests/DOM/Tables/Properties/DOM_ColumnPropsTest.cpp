#include "DOM/Tables/Properties/DOM_ColumnProps.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::ColumnPropsTest {
namespace {

using namespace QN::Test;
using ResolvedColumnProps = ColumnPropsImpl<MemberTrait::RequiredMembers>;

ColumnProps makeFull()
{
    ColumnProps props;
    props.setHidden(false);
    props.setBestFit(true);
    props.setWidth(64.5F);
    props.setGroupingLevel(std::uint8_t{255});
    props.setPageBreakBefore(true);
    return props;
}

TEST(DOM_ColumnProps, SayNothingByDefault)
{
    expectText(ColumnProps(),
               R"({"_isHidden":{"value":-1},"_isBestFit":{"value":-1},"_width":{"hasValue":false},)"
               R"("_groupingLevel":{"hasValue":false},"_hasPageBreakBefore":{"value":-1}})");
}

TEST(DOM_ColumnProps, WriteAllThatTheySay)
{
    expectText(makeFull(), R"({"_isHidden":{"value":0},"_isBestFit":{"value":1},"_width":{"hasValue":true,)"
                           R"("value":64.5},"_groupingLevel":{"hasValue":true,"value":255},)"
                           R"("_hasPageBreakBefore":{"value":1}})");
    expectCopiesAndMoves(makeFull());
}

TEST(DOM_ColumnProps, AnswerWhatWasSet)
{
    const ColumnProps props = makeFull();
    EXPECT_EQ(props.isHidden(), BoolOpt(false));
    EXPECT_EQ(props.isBestFit(), BoolOpt(true));
    EXPECT_EQ(props.getWidth(), 64.5F);
    EXPECT_EQ(props.getGroupingLevel(), std::uint8_t{255});
    EXPECT_EQ(props.hasPageBreakBefore(), BoolOpt(true));
}

TEST(DOM_ColumnProps, RefuseALevelPastOneByte)
{
    EXPECT_EQ(
        typeError<ColumnProps>(R"({"_isHidden":{"value":0},"_isBestFit":{"value":1},"_width":{"hasValue":)"
                               R"(false},"_groupingLevel":{"hasValue":true,"value":300},)"
                               R"("_hasPageBreakBefore":{"value":1}})"),
        "value is within the range of its type");
}

TEST(DOM_ColumnProps, OrderByTheirMembersInTurn)
{
    expectAscending({ColumnProps(), with<ColumnProps>([](auto& props) { props.setPageBreakBefore(false); }),
                     with<ColumnProps>([](auto& props) { props.setGroupingLevel(std::uint8_t{1}); }),
                     with<ColumnProps>([](auto& props) { props.setWidth(-1.0F); }),
                     with<ColumnProps>([](auto& props) { props.setWidth(1.0F); }),
                     with<ColumnProps>([](auto& props) { props.setBestFit(false); }),
                     with<ColumnProps>([](auto& props) { props.setHidden(false); })});
}

TEST(DOM_ColumnProps, HoldPlainValuesWhenTheyAreResolved)
{
    const ResolvedColumnProps props;
    EXPECT_FALSE(props.isHidden());
    EXPECT_FALSE(props.isBestFit());
    EXPECT_EQ(props.getWidth(), 0.0F);
    EXPECT_EQ(props.getGroupingLevel(), 0);
    EXPECT_FALSE(props.hasPageBreakBefore());
}

TEST(DOM_ColumnProps, AreCombinedMemberByMember)
{
    ColumnProps target = with<ColumnProps>([](auto& props) { props.setWidth(1.0F); });
    override(target, makeFull());
    EXPECT_EQ(target, makeFull());
    override(target, ColumnProps());
    EXPECT_EQ(target, makeFull());

    const auto withWidth = with<ColumnProps>([](auto& props) { props.setWidth(64.5F); });
    intersect(target, withWidth);
    EXPECT_EQ(target, withWidth);
    exclude(target, withWidth);
    EXPECT_EQ(target, ColumnProps());
}

TEST(DOM_ColumnProps, AreNotRebasedWhereTheReferencesAreNotANumber)
{
    const auto notANumber =
        with<ColumnProps>([](auto& props) { props.setWidth(std::numeric_limits<float>::quiet_NaN()); });
    ColumnProps target = with<ColumnProps>([](auto& props) { props.setWidth(1.0F); });
    rebaseProperty(target, makeFull(), notANumber, notANumber);
    EXPECT_EQ(target.getWidth(), 1.0F);
    EXPECT_EQ(target.isBestFit(), BoolOpt(true));
}

template <class T>
concept Persisted = requires(const T& value, cereal::JSONOutputArchive& archive)
{
    value.serialize(archive);
};

TEST(DOM_ColumnProps, ArePersistedInTheirPartialFormAlone)
{
    EXPECT_TRUE(Persisted<ColumnProps>);
    EXPECT_FALSE(Persisted<ResolvedColumnProps>);
}

} // namespace
} // namespace QN::DOM::ColumnPropsTest
