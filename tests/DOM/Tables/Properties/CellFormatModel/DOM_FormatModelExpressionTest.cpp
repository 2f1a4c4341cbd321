#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelExpression.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelExpressionTest {

TEST(FormatModelExpressionTest, IsEmptyByDefault)
{
    const Expression expression;
    EXPECT_TRUE(expression.getRules().empty());
    EXPECT_FALSE(expression.getDefaultNumberRule().has_value());
    EXPECT_FALSE(expression.getDefaultTextRule().has_value());
}

TEST(FormatModelExpressionTest, AListOfRulesLeavesTheDefaultsAbsent)
{
    const Expression expression(std::vector<Rule>{makeFullRule(), Rule()});
    ASSERT_EQ(expression.getRules().size(), 2U);
    EXPECT_EQ(expression.getRules()[0], makeFullRule());
    EXPECT_FALSE(expression.getDefaultNumberRule().has_value());
    EXPECT_FALSE(expression.getDefaultTextRule().has_value());
}

TEST(FormatModelExpressionTest, OneRuleIsTheDefaultNumberRuleAndNotAList)
{
    const Rule rule = makeFullRule();
    const Expression expression(rule);
    EXPECT_TRUE(expression.getRules().empty());
    ASSERT_TRUE(expression.getDefaultNumberRule().has_value());
    EXPECT_EQ(*expression.getDefaultNumberRule(), rule);
    EXPECT_FALSE(expression.getDefaultTextRule().has_value());
    EXPECT_NE(expression, Expression({rule}));
    EXPECT_EQ(Expression({rule}), Expression(std::vector<Rule>{rule}));
}

TEST(FormatModelExpressionTest, OneRuleInBracesIsAListOfOne)
{
    const Rule rule = makeFullRule();
    const Expression expression{rule};
    EXPECT_EQ(expression.getRules(), std::vector<Rule>{rule});
    EXPECT_FALSE(expression.getDefaultNumberRule().has_value());
    EXPECT_EQ(expression, Expression(std::vector<Rule>{rule}));
}

TEST(FormatModelExpressionTest, KeepsWhatIsSet)
{
    Expression expression;
    expression.setRules({makeFullRule()});
    expression.setDefaultNumberRule(Rule({TextItem()}, boost::none));
    expression.setDefaultTextRule(Rule({ExtraItem()}, boost::none));
    expression.getRules().emplace_back();
    expression.getDefaultNumberRule()->setLanguage(7U);
    expression.getDefaultTextRule()->setLanguage(8U);

    const Expression& constant = expression;
    ASSERT_EQ(constant.getRules().size(), 2U);
    EXPECT_EQ(constant.getRules()[1], Rule());
    EXPECT_TRUE(constant.getDefaultNumberRule()->getLanguage() == 7U);
    EXPECT_TRUE(constant.getDefaultTextRule()->getLanguage() == 8U);
}

TEST(FormatModelExpressionTest, OrdersByTheRulesThenTheDefaults)
{
    Expression number;
    number.setDefaultNumberRule(Rule());
    Expression both = number;
    both.setDefaultTextRule(Rule());
    Expression text;
    text.setDefaultTextRule(Rule());
    expectAscending<Expression>({Expression(), text, number, both, Expression(std::vector<Rule>{Rule()}),
                                 Expression(std::vector<Rule>{Rule(), Rule()})});
}

TEST(FormatModelExpressionTest, PersistsTheRulesThenTheDefaults)
{
    const std::string rule = R"({"_items":[],"_condition":{"hasValue":false},"_color":{"hasValue":false},)"
                             R"("_calendar":{"hasValue":false},"_language":{"hasValue":false},)"
                             R"("_transliteration":{"hasValue":false}})";
    Expression expression(std::vector<Rule>{Rule()});
    expression.setDefaultTextRule(Rule());
    EXPECT_EQ(
        toJson(expression),
        R"({"_rules":[)" + rule +
            R"(],"_defaultNumberRule":{"hasValue":false},"_defaultTextRule":{"hasValue":true,"value":)" +
            rule + "}}");
    expression.setDefaultNumberRule(makeFullRule());
    expectPersists(Expression());
    expectPersists(expression);
    expectCopiesAndMoves(expression);
}

} // namespace QN::DOM::CellFormatModel::FormatModelExpressionTest
