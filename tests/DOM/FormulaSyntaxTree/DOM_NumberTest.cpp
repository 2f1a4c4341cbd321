#include "DOM/FormulaSyntaxTree/DOM_Number.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"

namespace QN::DOM::FormulaSyntaxTree::NumberTest {

namespace {

std::shared_ptr<const CellFormat> makeDateFormat()
{
    using namespace CellFormatModel;
    return std::make_shared<CellFormat>(DateTimeLocalizedExpression(DateTimeDefaultType::Date));
}

} // namespace

TEST(NumberTest, IsZeroWithoutAFormatByDefault)
{
    const Number number;
    EXPECT_EQ(number.getValue(), 0.0);
    EXPECT_EQ(number.getFormat(), nullptr);
}

TEST(NumberTest, CanBeSetAndNegated)
{
    Number number(2.5);
    number.negate();
    EXPECT_EQ(number.getValue(), -2.5);
    number.setValue(4);
    EXPECT_EQ(number.getValue(), 4.0);
}

TEST(NumberTest, IsEqualOnlyWithAnEqualValueAndBothFormatsNullOrDeeplyEqual)
{
    const auto format = makeDateFormat();
    EXPECT_EQ(Number(1), Number(1));
    EXPECT_NE(Number(1), Number(2));
    EXPECT_EQ(Number(1, format), Number(1, format));
    EXPECT_EQ(Number(1, format), Number(1, makeDateFormat()));
    EXPECT_NE(Number(1, format), Number(2, format));
    EXPECT_NE(Number(1, format), Number(1));
    EXPECT_NE(Number(1), Number(1, format));
    EXPECT_NE(Number(1, format), Number(1, std::make_shared<CellFormat>()));
}

TEST(NumberTest, IsUnequalToItselfWhenItIsNoNumber)
{
    const Number nan(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(nan == nan);
    EXPECT_FALSE(areDeeplyEqual(nan, nan));
    EXPECT_FALSE(areDeeplyEqual(nan, *clone(nan)));
}

TEST(NumberTest, PersistsItsValueAndThenItsFormat)
{
    EXPECT_EQ(toJson(Number(36)),
              R"({"value0":{"value0":{}},"_value":36.0,"_format":{"ptr_wrapper":{"id":0}}})");
    EXPECT_EQ(toJson(Number(1, std::make_shared<CellFormat>())),
              R"({"value0":{"value0":{}},"_value":1.0,"_format":{"ptr_wrapper":{"id":2147483649,)"
              R"("data":{"_data":{"which":0,"data":{"_rules":[],"_defaultNumberRule":{"hasValue":false},)"
              R"("_defaultTextRule":{"hasValue":false}}}}}}})");
    expectNode(number(-0.1));
    expectNode(std::make_unique<Number>(1, makeDateFormat()));
    expectCopiesAndMoves(Number(1, makeDateFormat()));
}

TEST(NumberTest, CopiesShareTheFormat)
{
    const Number number(1, makeDateFormat());
    const auto copy = clone(number);
    EXPECT_EQ(static_cast<const Number&>(*copy).getFormat(), number.getFormat());
}

TEST(NumberTest, AFormatThatSeveralNumbersShareStaysOneObject)
{
    const auto format = makeDateFormat();
    const std::unique_ptr<Expr> tree =
        op<Plus>(std::make_unique<Number>(1, format), std::make_unique<Number>(2, format));
    const std::string json = toJson(tree);
    EXPECT_NE(json.find(R"("_format":{"ptr_wrapper":{"id":1}})"), std::string::npos) << json;

    const auto loaded = fromJson<std::unique_ptr<Expr>>(json);
    const auto& plus = static_cast<const Plus&>(*loaded);
    EXPECT_EQ(static_cast<const Number&>(*plus.getArg1()).getFormat(),
              static_cast<const Number&>(*plus.getArg2()).getFormat());
}

} // namespace QN::DOM::FormulaSyntaxTree::NumberTest
