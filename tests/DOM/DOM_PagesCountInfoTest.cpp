#include "DOM/DOM_PagesCountInfo.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PagesCountInfoTest {
namespace {

using namespace QN::Test;

PagesCountInfo makeInfo(NumberFormatType type)
{
    return PagesCountInfo(boost::optional<NumberFormatType>(type));
}

TEST(DOM_PagesCountInfo, MayNameAFormat)
{
    EXPECT_FALSE(PagesCountInfo().getNumberFormatType());
    EXPECT_TRUE(makeInfo(NumberFormatType::LowerRoman).getNumberFormatType() == NumberFormatType::LowerRoman);
    EXPECT_NE(makeInfo(NumberFormatType::LowerRoman), makeInfo(NumberFormatType::UpperRoman));
    EXPECT_NE(makeInfo(NumberFormatType::Decimal), PagesCountInfo());
    expectCopiesAndMoves(makeInfo(NumberFormatType::LowerRoman));
}

TEST(DOM_PagesCountInfo, PersistsAnyFormat)
{
    EXPECT_EQ(toJson(PagesCountInfo()), R"({"_numberFormatType":{"hasValue":false}})");
    EXPECT_EQ(toJson(makeInfo(static_cast<NumberFormatType>(200))),
              R"({"_numberFormatType":{"hasValue":true,"value":200}})");
    expectPersists(PagesCountInfo());
    expectPersists(makeInfo(static_cast<NumberFormatType>(200)));
}

} // namespace
} // namespace QN::DOM::PagesCountInfoTest
