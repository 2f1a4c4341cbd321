#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelRule.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelRuleTest {

TEST(FormatModelRuleTest, IsEmptyByDefaultAndValidSo)
{
    const Rule rule;
    EXPECT_TRUE(rule.getItems().empty());
    EXPECT_FALSE(rule.getCondition().has_value());
    EXPECT_FALSE(rule.getColor().has_value());
    EXPECT_FALSE(rule.getCalendar().has_value());
    EXPECT_FALSE(rule.getLanguage().has_value());
    EXPECT_FALSE(rule.getTransliteration().has_value());
    expectPersists(rule);
}

TEST(FormatModelRuleTest, ItemsAndAColorLeaveTheRestAbsent)
{
    const Rule rule({TextItem(TextItem::Type::Literal, "a")}, Rule::Color(1, 2, 3, 4));
    ASSERT_EQ(rule.getItems().size(), 1U);
    EXPECT_EQ(boost::get<TextItem>(rule.getItems()[0]), TextItem(TextItem::Type::Literal, "a"));
    EXPECT_TRUE(rule.getColor() == Rule::Color(1, 2, 3, 4));
    EXPECT_FALSE(rule.getCondition().has_value());
    EXPECT_FALSE(rule.getCalendar().has_value());
    EXPECT_FALSE(rule.getLanguage().has_value());
    EXPECT_FALSE(rule.getTransliteration().has_value());
}

TEST(FormatModelRuleTest, KeepsWhatIsSet)
{
    Rule rule;
    rule.setItems({ExtraItem(), NumberItem()});
    rule.setCondition(Condition(Condition::Type::Equal, FloatNumber(1)));
    rule.setColor(Rule::Color(1, 2, 3, 4));
    rule.setCalendar(Calendar(77));
    rule.setLanguage(1033U);
    rule.setTransliteration(Transliteration(5));
    EXPECT_EQ(rule.getItems().size(), 2U);
    EXPECT_EQ(*rule.getCondition(), Condition(Condition::Type::Equal, FloatNumber(1)));
    EXPECT_TRUE(rule.getColor() == Rule::Color(1, 2, 3, 4));
    EXPECT_TRUE(rule.getCalendar() == Calendar(77));
    EXPECT_TRUE(rule.getLanguage() == 1033U);
    EXPECT_TRUE(rule.getTransliteration() == Transliteration(5));
    rule.setColor(boost::none);
    EXPECT_FALSE(rule.getColor().has_value());
}

TEST(FormatModelRuleTest, RulesThatDifferOnlyInTheLanguageAreUnequalAndOrderByIt)
{
    Rule danish = makeFullRule();
    danish.setLanguage(1030U);
    Rule english = makeFullRule();
    english.setLanguage(1033U);
    Rule none = makeFullRule();
    none.setLanguage(boost::none);
    EXPECT_NE(danish, english);
    expectAscending<Rule>({none, danish, english});
}

TEST(FormatModelRuleTest, OrdersByItsMembersInTurn)
{
    const auto with = [](auto set) {
        Rule rule;
        set(rule);
        return rule;
    };
    expectAscending<Rule>({
        Rule(),
        with([](Rule& rule) { rule.setTransliteration(Transliteration::Short); }),
        with([](Rule& rule) { rule.setTransliteration(Transliteration::Long); }),
        with([](Rule& rule) { rule.setLanguage(0U); }),
        with([](Rule& rule) { rule.setCalendar(Calendar::None); }),
        with([](Rule& rule) { rule.setColor(Rule::Color(0, 0, 0, 0)); }),
        with([](Rule& rule) { rule.setColor(Rule::Color(0, 0, 0, 1)); }),
        with([](Rule& rule) { rule.setCondition(Condition()); }),
        with([](Rule& rule) { rule.setItems({CurrencyItem()}); }),
        with([](Rule& rule) { rule.setItems({CurrencyItem("a")}); }),
        with([](Rule& rule) {
            rule.setItems({CurrencyItem("a"), CurrencyItem("a")});
        }),
        with([](Rule& rule) { rule.setItems({DateTimeItem()}); }),
        with([](Rule& rule) { rule.setItems({ExtraItem()}); }),
        with([](Rule& rule) { rule.setItems({NumberItem()}); }),
        with([](Rule& rule) { rule.setItems({TextItem()}); }),
    });
}

TEST(FormatModelRuleTest, PersistsItsMembersAndEachItemAsAVariant)
{
    EXPECT_EQ(
        toJson(makeFullRule()),
        R"({"_items":[)"
        R"({"which":0,"data":{"_currencySymbol":"EUR","_language":{"hasValue":false}}},)"
        R"({"which":1,"data":{"_type":14,"_decimalPlaces":{"hasValue":true,"value":3}}},)"
        R"({"which":2,"data":{"_type":9}},)"
        R"({"which":3,"data":{"_role":4,"_pattern":"#,##0.00","_hasGrouping":true,"_displayFactor":1000,)"
        R"("_embeddedItems":[{"first":3,"second":{"which":0,"data":{"_currencySymbol":"kr",)"
        R"("_language":{"hasValue":true,"value":1030}}}},)"
        R"({"first":5,"second":{"which":1,"data":{"_type":0,"_textValue":"-"}}}]}},)"
        R"({"which":4,"data":{"_type":1,"_textValue":"@"}}],)"
        R"("_condition":{"hasValue":true,"value":{"_type":2,"_value":-1.5}},)"
        R"("_color":{"hasValue":true,"value":{"value0":1,"value1":2,"value2":3,"value3":4}},)"
        R"("_calendar":{"hasValue":true,"value":6},"_language":{"hasValue":true,"value":1031},)"
        R"("_transliteration":{"hasValue":true,"value":2}})");
    expectPersists(makeFullRule());
    expectCopiesAndMoves(makeFullRule());
}

TEST(FormatModelRuleTest, AnItemOfAnUnknownKindIsRefused)
{
    const auto load = [](const std::string& item) {
        return loadError<Rule>(R"({"_items":[)" + item +
                               R"(],"_condition":{"hasValue":false},)"
                               R"("_color":{"hasValue":false},"_calendar":{"hasValue":false},)"
                               R"("_language":{"hasValue":false},"_transliteration":{"hasValue":false}})");
    };
    EXPECT_EQ(load(R"({"which":2,"data":{"_type":0}})"), "<loaded>");
    EXPECT_EQ(load(R"({"which":5,"data":{}})"), "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(load(R"({"which":-1,"data":{}})"), "Error traversing variant during load");
}

} // namespace QN::DOM::CellFormatModel::FormatModelRuleTest
