#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFormulasMap.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasFormulasMapTest {
namespace {

constexpr unsigned long Largest = std::numeric_limits<unsigned long>::max();

TEST(DrawingFormulasFormulasMap, IsEmptyByDefault)
{
    const FormulasMap map;
    EXPECT_EQ(map.size(), 0U);
    EXPECT_EQ(map.get(0), nullptr);
    EXPECT_EQ(map.getName(0), nullptr);
    EXPECT_EQ(map.find("a"), nullptr);
    EXPECT_EQ(map.find(""), nullptr);
    expectText(map, R"({"_formulas":[],"_formulaNames":[]})");
    static_assert(!Ordered<FormulasMap>);
    static_assert(!std::is_polymorphic_v<FormulasMap>);
}

TEST(DrawingFormulasFormulasMap, AnswersByPositionAndByName)
{
    FormulasMap map;
    EXPECT_EQ(map.add("a", value(1.5)), 0U);
    EXPECT_EQ(map.add("b", value(2.5)), 1U);
    EXPECT_EQ(map.add("none", nullptr), 2U);
    EXPECT_EQ(map.size(), 3U);
    EXPECT_EQ(numberOf(map.get(0)), 1.5);
    EXPECT_EQ(numberOf(map.find("b")), 2.5);
    EXPECT_EQ(map.get(2), nullptr);
    EXPECT_EQ(map.get(3), nullptr);
    EXPECT_EQ(map.get(Largest), nullptr);
    EXPECT_EQ(*map.getName(2), "none");
    EXPECT_EQ(map.getName(3), nullptr);
    EXPECT_EQ(map.getName(Largest), nullptr);
    EXPECT_EQ(map.find("c"), nullptr);
    expectText(map, R"({"_formulas":[)" + firstValueJson("1.5") + "," + laterValueJson("2.5") + "," +
                        NullPolymorphicJson + R"(],"_formulaNames":["a","b","none"]})");
    expectCopiesAndMoves(map);
}

TEST(DrawingFormulasFormulasMap, FindsTheFormulaThatWasAddedLastUnderAName)
{
    FormulasMap map;
    map.add("a", value(1));
    map.add("a", value(2));
    map.add("b", value(3));
    EXPECT_EQ(numberOf(map.find("a")), 2.0);
    EXPECT_EQ(numberOf(map.get(0)), 1.0);
}

TEST(DrawingFormulasFormulasMap, ComparesWholeNames)
{
    FormulasMap map;
    map.add("gd", value(1));
    map.add("gd1", value(2));
    map.add("", value(3));
    EXPECT_EQ(numberOf(map.find("gd")), 1.0);
    EXPECT_EQ(map.find("g"), nullptr);
    EXPECT_EQ(map.find("GD"), nullptr);
    EXPECT_EQ(numberOf(map.find("")), 3.0);
}

TEST(DrawingFormulasFormulasMap, FindsNothingWhereTheLastEntryOfANameHasNoFormula)
{
    FormulasMap map;
    map.add("a", value(1));
    map.add("a", nullptr);
    EXPECT_EQ(map.find("a"), nullptr);

    const auto loaded = fromText<FormulasMap>(R"({"_formulas":[)" + firstValueJson("1.5") +
                                              R"(],"_formulaNames":["a","a"]})");
    EXPECT_EQ(numberOf(loaded.get(0)), 1.5);
    EXPECT_EQ(loaded.find("a"), nullptr);
}

TEST(DrawingFormulasFormulasMap, IsEqualByFormulasAndNamesInOrder)
{
    const auto make = [](const std::string& name, std::unique_ptr<Expression> formula) {
        FormulasMap map;
        map.add(name, std::move(formula));
        return map;
    };
    EXPECT_EQ(make("a", value(1)), make("a", value(1)));
    EXPECT_NE(make("a", value(1)), make("b", value(1)));
    EXPECT_NE(make("a", value(1)), make("a", value(2)));
    EXPECT_NE(make("a", value(1)), make("a", nullptr));
    EXPECT_NE(make("a", value(1)), FormulasMap());
}

TEST(DrawingFormulasFormulasMap, CopiesItsFormulas)
{
    FormulasMap source;
    source.add("a", value(1));
    const std::string text = toText(source);
    FormulasMap copy(source);
    EXPECT_NE(copy.get(0), source.get(0));
    copy.add("a", value(2));
    EXPECT_EQ(numberOf(copy.find("a")), 2.0);
    EXPECT_EQ(numberOf(source.find("a")), 1.0);
    EXPECT_EQ(toText(source), text);
}

TEST(DrawingFormulasFormulasMapDeathTest, LoadsListsOfUnequalLengthAndFailsTheContractAtTheNextAdd)
{
    auto map = fromText<FormulasMap>(R"({"_formulas":[],"_formulaNames":["a"]})");
    EXPECT_EQ(map.size(), 0U);
    EXPECT_EQ(*map.getName(0), "a");
    EXPECT_EQ(map.find("a"), nullptr);
    EXPECT_DEATH(map.add("c", value(1)), "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFormulasMap:29: "
                                         "_formulas\\.size\\(\\) == _formulaNames\\.size\\(\\)");

    auto nameless =
        fromText<FormulasMap>(R"({"_formulas":[)" + firstValueJson("1.5") + R"(],"_formulaNames":[]})");
    EXPECT_EQ(nameless.size(), 1U);
    EXPECT_EQ(numberOf(nameless.get(0)), 1.5);
    EXPECT_EQ(nameless.getName(0), nullptr);
    EXPECT_EQ(nameless.find(""), nullptr);
    EXPECT_DEATH(nameless.add("c", value(1)), "DOM_DrawingFormulasFormulasMap:29: ");
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasFormulasMapTest
