#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasAdjustValues.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <string>

#include "DOM/ValueChecks.h"
#include "Support/AllocationCount.h"
#include "Support/ValueText.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasAdjustValuesTest {
namespace {

using namespace Test;

constexpr unsigned long Largest = std::numeric_limits<unsigned long>::max();

TEST(DrawingFormulasAdjustValues, AreEmptyByDefault)
{
    const AdjustValues values;
    EXPECT_TRUE(values.isEmpty());
    EXPECT_EQ(values.get(0), boost::none);
    EXPECT_EQ(values.getName(0), nullptr);
    EXPECT_EQ(values.find("a"), boost::none);
    EXPECT_EQ(values.find(""), boost::none);
    expectText(values, R"({"_values":[],"_valueNames":[]})");
    static_assert(!Ordered<AdjustValues>);
    static_assert(!std::is_polymorphic_v<AdjustValues>);
}

TEST(DrawingFormulasAdjustValues, AnswerByPositionAndByName)
{
    AdjustValues values;
    EXPECT_EQ(values.add("a", 1.5), 0U);
    EXPECT_EQ(values.add("b", -2.5), 1U);
    EXPECT_FALSE(values.isEmpty());
    EXPECT_EQ(values.get(0), 1.5);
    EXPECT_EQ(values.get(1), -2.5);
    EXPECT_EQ(values.get(2), boost::none);
    EXPECT_EQ(values.get(Largest), boost::none);
    ASSERT_NE(values.getName(1), nullptr);
    EXPECT_EQ(*values.getName(1), "b");
    EXPECT_EQ(values.getName(2), nullptr);
    EXPECT_EQ(values.getName(Largest), nullptr);
    EXPECT_EQ(values.find("a"), 1.5);
    EXPECT_EQ(values.find("b"), -2.5);
    EXPECT_EQ(values.find("c"), boost::none);
    expectText(values, R"({"_values":[1.5,-2.5],"_valueNames":["a","b"]})");
    expectCopiesAndMoves(values);
}

TEST(DrawingFormulasAdjustValues, FindTheValueThatWasAddedLastUnderAName)
{
    AdjustValues values;
    values.add("a", 1.0);
    values.add("a", 2.0);
    values.add("b", 3.0);
    EXPECT_EQ(values.find("a"), 2.0);
    EXPECT_EQ(values.get(0), 1.0);
}

TEST(DrawingFormulasAdjustValues, CompareWholeNames)
{
    AdjustValues values;
    values.add("adj", 1.0);
    values.add("adj1", 2.0);
    values.add("", 3.0);
    EXPECT_EQ(values.find("adj"), 1.0);
    EXPECT_EQ(values.find("ad"), boost::none);
    EXPECT_EQ(values.find("ADJ"), boost::none);
    EXPECT_EQ(values.find(""), 3.0);
}

TEST(DrawingFormulasAdjustValues, AreEqualByValuesAndNamesInOrder)
{
    const auto make = [](const std::string& name, double value) {
        AdjustValues values;
        values.add(name, value);
        return values;
    };
    EXPECT_EQ(make("a", 1.0), make("a", 1.0));
    EXPECT_NE(make("a", 1.0), make("a", 2.0));
    EXPECT_NE(make("a", 1.0), make("b", 1.0));
    EXPECT_NE(make("a", 1.0), AdjustValues());
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(make("a", NaN), make("a", NaN));
}

TEST(DrawingFormulasAdjustValues, StayAsTheyAreWhenAnAssignmentFails)
{
    const std::string longName(100, 'a');
    AdjustValues source;
    source.add(longName + "1", 1.0);
    source.add(longName + "2", 2.0);
    AdjustValues former;
    former.add(longName, 3.0);

    std::size_t failures = 0;
    for (bool failed = true; failed;) {
        AdjustValues values = former;
        {
            const AllocationFailure failure(failures);
            try {
                values = source;
            } catch (const std::bad_alloc&) {
            }
            failed = failure.hasHappened();
        }
        ASSERT_EQ(values, failed ? former : source) << failures;
        EXPECT_EQ(values.add("b", 4.0), failed ? 1U : 2U) << failures;
        failures += failed ? 1 : 0;
    }
    // The list of values, the list of names and each name.
    EXPECT_GE(failures, 4U);
}

TEST(DrawingFormulasAdjustValues, FindNothingWhereTheLastEntryOfANameHasNoValue)
{
    const auto values = fromText<AdjustValues>(R"({"_values":[1.5],"_valueNames":["a","a"]})");
    EXPECT_EQ(values.get(0), 1.5);
    EXPECT_EQ(values.find("a"), boost::none);
}

TEST(DrawingFormulasAdjustValuesDeathTest, LoadListsOfUnequalLengthAndFailTheContractAtTheNextAdd)
{
    auto values = fromText<AdjustValues>(R"({"_values":[1.5],"_valueNames":["a","b"]})");
    EXPECT_EQ(values.find("a"), 1.5);
    EXPECT_EQ(values.find("b"), boost::none);
    ASSERT_NE(values.getName(1), nullptr);
    EXPECT_EQ(values.get(1), boost::none);
    EXPECT_DEATH(values.add("c", 1.0), "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasAdjustValues:27: "
                                       "_values\\.size\\(\\) == _valueNames\\.size\\(\\)");

    auto nameless = fromText<AdjustValues>(R"({"_values":[1.5],"_valueNames":[]})");
    EXPECT_FALSE(nameless.isEmpty());
    EXPECT_EQ(nameless.get(0), 1.5);
    EXPECT_EQ(nameless.getName(0), nullptr);
    EXPECT_EQ(nameless.find(""), boost::none);
    EXPECT_DEATH(nameless.add("c", 1.0), "DOM_DrawingFormulasAdjustValues:27: ");
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasAdjustValuesTest
