#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatTest {

using namespace CellFormatModel;

TEST(CellFormatTest, HoldsAnExpressionWithoutRulesByDefault)
{
    const CellFormat format;
    ASSERT_EQ(format.getData().which(), 0);
    EXPECT_TRUE(boost::get<Expression>(format.getData()).getRules().empty());
    EXPECT_EQ(format, CellFormat());
}

TEST(CellFormatTest, KeepsWhatIsSet)
{
    CellFormat format{CellFormat::Data(makeLocalized())};
    ASSERT_EQ(format.getData().which(), 1);
    EXPECT_EQ(boost::get<DateTimeLocalizedExpression>(format.getData()), makeLocalized());
    format.setData(Expression(makeFullRule()));
    EXPECT_EQ(format, CellFormat(Expression(makeFullRule())));
}

TEST(CellFormatTest, ComparesAlternativeAndValue)
{
    EXPECT_NE(CellFormat(), CellFormat(Expression(Rule())));
    EXPECT_NE(CellFormat(), CellFormat(makeLocalized()));
    EXPECT_EQ(CellFormat(makeLocalized()), CellFormat(makeLocalized()));
}

TEST(CellFormatTest, EveryLocalizedFormatSortsAfterEveryOneWrittenOut)
{
    expectAscending<CellFormat>({CellFormat(), CellFormat(Expression(Rule())),
                                 CellFormat(Expression(std::vector<Rule>{makeFullRule()})),
                                 CellFormat(DateTimeLocalizedExpression()), CellFormat(makeLocalized())});
}

TEST(CellFormatTest, DeepComparisonIsThatOfTheOperators)
{
    const CellFormat less;
    const CellFormat greater{CellFormat::Data(makeLocalized())};
    EXPECT_TRUE(areDeeplyEqual(less, CellFormat()));
    EXPECT_FALSE(areDeeplyEqual(less, greater));
    EXPECT_TRUE(areDeeplyLess(less, greater));
    EXPECT_FALSE(areDeeplyLess(greater, less));
    EXPECT_FALSE(areDeeplyLess(less, less));
}

TEST(CellFormatTest, PersistsAsItsVariant)
{
    EXPECT_EQ(toJson(CellFormat()),
              R"({"_data":{"which":0,"data":{"_rules":[],"_defaultNumberRule":{"hasValue":false},)"
              R"("_defaultTextRule":{"hasValue":false}}}})");
    EXPECT_EQ(toJson(CellFormat(makeLocalized())),
              R"({"_data":{"which":1,"data":{"_dateTimePatternItemSet":[{"token":3,"props":1},)"
              R"({"token":4,"props":0}],"_formatType":6}}})");
    expectPersists(CellFormat());
    expectPersists(CellFormat(Expression(makeFullRule())));
    expectPersists(CellFormat(makeLocalized()));
    expectCopiesAndMoves(CellFormat(Expression(makeFullRule())));
    expectCopiesAndMoves(CellFormat(makeLocalized()));
}

TEST(CellFormatTest, AnAlternativeOutOfRangeIsRefused)
{
    EXPECT_EQ(loadError<CellFormat>(R"({"_data":{"which":2,"data":{}}})"),
              "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(loadError<CellFormat>(R"({"_data":{"which":-1,"data":{}}})"),
              "Error traversing variant during load");
}

} // namespace QN::DOM::CellFormatTest
