#include "DOM/Tables/Properties/DOM_RowHeight.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::RowHeightTest {
namespace {

using namespace QN::Test;
using ResolvedRowHeight = RowHeightImpl<MemberTrait::RequiredMembers>;

TEST(DOM_RowHeight, SaysNothingByDefault)
{
    expectText(RowHeight(), R"({"_value":{"hasValue":false},"_rule":{"hasValue":false}})");
    EXPECT_FALSE(RowHeight().getValue());
    EXPECT_FALSE(RowHeight().getRule());
}

TEST(DOM_RowHeight, WritesItsValueAndItsRule)
{
    expectText(RowHeight(12.5F, RowHeightRule::AtLeast),
               R"({"_value":{"hasValue":true,"value":12.5},"_rule":{"hasValue":true,"value":2}})");
}

TEST(DOM_RowHeight, PassesUnknownRulesThrough)
{
    expectText(RowHeight(boost::none, static_cast<RowHeightRule>(300)),
               R"({"_value":{"hasValue":false},"_rule":{"hasValue":true,"value":300}})");
    expectText(RowHeight(boost::none, static_cast<RowHeightRule>(-1)),
               R"({"_value":{"hasValue":false},"_rule":{"hasValue":true,"value":-1}})");
}

TEST(DOM_RowHeight, TakesWhatItIsGiven)
{
    RowHeight height;
    height.setValue(3.0F);
    height.setRule(RowHeightRule::Exact);
    EXPECT_EQ(height, RowHeight(3.0F, RowHeightRule::Exact));
    expectCopiesAndMoves(height);
}

TEST(DOM_RowHeight, OrdersByValueAndThenByRuleWithAbsentFirst)
{
    expectAscending({RowHeight(), RowHeight(boost::none, RowHeightRule::Auto), RowHeight(1.0F, boost::none),
                     RowHeight(1.0F, RowHeightRule::Auto), RowHeight(1.0F, RowHeightRule::Exact),
                     RowHeight(2.0F, boost::none)});
}

TEST(DOM_RowHeight, HoldsPlainValuesWhenItIsResolved)
{
    ResolvedRowHeight height;
    EXPECT_EQ(height.getValue(), 0.0F);
    EXPECT_EQ(height.getRule(), RowHeightRule::Auto);
    height.setValue(4.0F);
    EXPECT_NE(height, ResolvedRowHeight());
    EXPECT_LT(ResolvedRowHeight(), height);
}

template <class T>
concept Persisted = requires(const T& value, cereal::JSONOutputArchive& archive)
{
    value.serialize(archive);
};

TEST(DOM_RowHeight, IsPersistedInItsPartialFormAlone)
{
    EXPECT_TRUE(Persisted<RowHeight>);
    EXPECT_FALSE(Persisted<ResolvedRowHeight>);
}

} // namespace
} // namespace QN::DOM::RowHeightTest
