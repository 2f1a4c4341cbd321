#include "DOM/Properties/DOM_SectionProps.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::SectionPropsTest {

using namespace Test;

TEST(SectionPropsTest, SaysNothingByDefault)
{
    const SectionProps props;
    EXPECT_FALSE(props.getHeaderFooterUUID());
    EXPECT_FALSE(props.getGutter());
    EXPECT_FALSE(props.getBreakType());
    EXPECT_FALSE(props.getStartingPageNumber());
    EXPECT_EQ(toJson(props), R"({"_headerFooterUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
                             R"("_gutter":{"hasValue":false},"_breakType":{"hasValue":false},)"
                             R"("_startingPageNumber":{"hasValue":false}})");
}

TEST(SectionPropsTest, ASetMemberIsReadBackAndPersists)
{
    const auto props = with<SectionProps>([](SectionProps& p) {
        p.setHeaderFooterUUID(SomeUUID);
        p.setGutter(-4.5F);
        p.setBreakType(static_cast<SectionBreakType>(100));
        p.setStartingPageNumber(4294967295U);
    });
    EXPECT_EQ(props.getHeaderFooterUUID(), SomeUUID);
    EXPECT_SAME(props.getGutter(), -4.5F);
    EXPECT_SAME(props.getBreakType(), static_cast<SectionBreakType>(100));
    EXPECT_SAME(props.getStartingPageNumber(), 4294967295U);
    expectPersists(props);
    expectCopiesAndMoves(props);
}

TEST(SectionPropsTest, EachMemberTakesPartInEquality)
{
    const SectionProps props;
    EXPECT_EQ(props, SectionProps());
    EXPECT_NE(props, with<SectionProps>([](SectionProps& p) { p.setHeaderFooterUUID(SomeUUID); }));
    EXPECT_NE(props, with<SectionProps>([](SectionProps& p) { p.setGutter(0.0F); }));
    EXPECT_NE(props, with<SectionProps>([](SectionProps& p) { p.setBreakType(SectionBreakType::NextPage); }));
    EXPECT_NE(props, with<SectionProps>([](SectionProps& p) { p.setStartingPageNumber(0U); }));
}

} // namespace QN::DOM::SectionPropsTest
