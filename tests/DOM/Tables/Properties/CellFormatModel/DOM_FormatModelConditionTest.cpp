#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCondition.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

#include <cmath>
#include <limits>

namespace QN::DOM::CellFormatModel::FormatModelConditionTest {

TEST(FormatModelConditionTest, IsZeroByDefault)
{
    EXPECT_EQ(Condition().getType(), Condition::Type(0));
    EXPECT_EQ(Condition().getValue(), FloatNumber(0));
}

TEST(FormatModelConditionTest, KeepsWhatIsSet)
{
    Condition condition(Condition::Type::Greater, FloatNumber(100));
    EXPECT_EQ(condition.getType(), Condition::Type::Greater);
    EXPECT_EQ(condition.getValue(), FloatNumber(100));
    condition.setType(Condition::Type(50));
    condition.setValue(FloatNumber(-1));
    EXPECT_EQ(condition, Condition(Condition::Type(50), FloatNumber(-1)));
}

TEST(FormatModelConditionTest, OrdersByTypeThenValue)
{
    using Type = Condition::Type;
    expectAscending<Condition>({Condition(Type(0), FloatNumber(-1)), Condition(Type(0), FloatNumber(2)),
                                Condition(Type(1), FloatNumber(-5))});
}

TEST(FormatModelConditionTest, PersistsTypeAndNumber)
{
    EXPECT_EQ(toJson(Condition(Condition::Type(50), FloatNumber(2))), R"({"_type":50,"_value":2.0})");
    expectPersists(Condition(Condition::Type::Less, FloatNumber(-0.1)));
    expectCopiesAndMoves(Condition(Condition::Type::Less, FloatNumber(-0.1)));
}

TEST(FormatModelConditionTest, ANumberInAFileThatIsNotFiniteRaisesAnException)
{
    for (const char* const value : {"NaN", "Infinity", "-Infinity"}) {
        EXPECT_EQ(loadError<Condition>(std::string(R"({"_type":0,"_value":)") + value + "}"),
                  "The number of a format's condition is not finite");
    }
}

TEST(FormatModelConditionDeathTest, ANumberThatIsNotFiniteCannotBeSet)
{
    const std::string failure = R"(DOM_FormatModelCondition\.cpp:[0-9]+: isfinite\(value\))";
    EXPECT_DEATH(Condition(Condition::Type::Less, FloatNumber(std::nan(""))), failure);
    Condition condition;
    EXPECT_DEATH(condition.setValue(FloatNumber(std::numeric_limits<double>::infinity())), failure);
}

} // namespace QN::DOM::CellFormatModel::FormatModelConditionTest
