#include "DOM/DOM_SectionTag.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::SectionTagTest {
namespace {

using namespace QN::Test;

SectionTag makeTag()
{
    SectionTag tag;
    tag.getSectionProps().setHeaderFooterUUID(makeUUID('1'));
    tag.getSectionProps().setGutter(1.5F);
    tag.getSectionProps().setBreakType(SectionBreakType::OddPage);
    tag.getSectionProps().setStartingPageNumber(7U);
    return tag;
}

TEST(DOM_SectionTag, HasDefaultPropertiesWhenItIsNew)
{
    EXPECT_EQ(SectionTag().getSectionProps(), SectionProps());
}

TEST(DOM_SectionTag, IsEqualExactlyWhenThePropertiesAre)
{
    const SectionTag tag = makeTag();
    EXPECT_EQ(tag, makeTag());
    EXPECT_NE(tag.getID(), makeTag().getID());
    EXPECT_NE(tag, SectionTag());
}

TEST(DOM_SectionTag, CopiesAndMoves)
{
    expectCopiesAndMoves(makeTag());
}

TEST(DOM_SectionTag, ACloneHasTheTokenOfItsSource)
{
    const SectionTag tag = makeTag();
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<Block>(tag), tag));
    EXPECT_EQ(cloneUnique<Block>(tag)->getID(), tag.getID());
    EXPECT_TRUE(areDeeplyEqual(*cloneShared<Block>(tag), tag));
}

TEST(DOM_SectionTag, WritesItsBaseAndItsProperties)
{
    EXPECT_EQ(toJson(SectionTag()), R"({"value0":{},"_sectionProps":)" + toJson(SectionProps()) + "}");
}

TEST(DOM_SectionTag, Persists)
{
    expectPersists(SectionTag());
    expectPersists(makeTag());
}

} // namespace
} // namespace QN::DOM::SectionTagTest
