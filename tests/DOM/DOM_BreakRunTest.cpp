#include "DOM/DOM_BreakRun.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::BreakRunTest {
namespace {

using namespace QN::Test;

constexpr auto UnnamedType = static_cast<BreakType>(-77);

TEST(DOM_BreakRun, HasTheTypeZeroByDefault)
{
    EXPECT_EQ(BreakRun().getType(), static_cast<BreakType>(0));
    EXPECT_EQ(BreakRun(BreakType::Column).getType(), BreakType::Column);
}

TEST(DOM_BreakRun, ReadsAsAFormFeedWhateverItsType)
{
    for (const BreakType type : {BreakType::Line, BreakType::Page, BreakType::Column, UnnamedType}) {
        EXPECT_EQ(BreakRun(type).getText(), "\x0C");
    }
}

TEST(DOM_BreakRun, ComparesStyleAndType)
{
    EXPECT_EQ(BreakRun(BreakType::Page), BreakRun(BreakType::Page));
    EXPECT_NE(BreakRun(BreakType::Page), BreakRun(BreakType::Line));
    BreakRun styled(BreakType::Page);
    styled.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(styled, BreakRun(BreakType::Page));
}

TEST(DOM_BreakRun, CopiesAndMoves)
{
    expectCopiesAndMoves(BreakRun(BreakType::Page));
}

TEST(DOM_BreakRun, WritesTheNumberOfItsType)
{
    EXPECT_EQ(toJson(BreakRun(BreakType::Column)), std::string("{") + PlainRunJson + R"(,"_type":2})");
}

TEST(DOM_BreakRun, PersistsAnyType)
{
    expectPersists(BreakRun());
    expectPersists(BreakRun(UnnamedType));
}

} // namespace
} // namespace QN::DOM::BreakRunTest
