#include "DOM/DOM_FontScheme.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FontSchemeTest {

using namespace Test;

namespace {

FontScheme makeScheme(const std::string& name, const std::string& major, const std::string& minor)
{
    FontScheme scheme;
    scheme.setName(name);
    scheme.setMajorFontName(major);
    scheme.setMinorFontName(minor);
    return scheme;
}

} // namespace

TEST(FontSchemeTest, IsEmptyByDefault)
{
    EXPECT_EQ(toJson(FontScheme()), R"({"_name":"","_majorFontName":"","_minorFontName":""})");
}

TEST(FontSchemeTest, PersistsItsMembersInOrder)
{
    const FontScheme scheme = makeScheme("a", "b", "c");
    EXPECT_EQ(toJson(scheme), R"({"_name":"a","_majorFontName":"b","_minorFontName":"c"})");
    EXPECT_EQ(scheme.getName(), "a");
    EXPECT_EQ(scheme.getMajorFontName(), "b");
    EXPECT_EQ(scheme.getMinorFontName(), "c");
    expectPersists(scheme);
}

TEST(FontSchemeTest, EachMemberTakesPartInEquality)
{
    EXPECT_EQ(makeScheme("a", "b", "c"), makeScheme("a", "b", "c"));
    EXPECT_NE(makeScheme("a", "b", "c"), makeScheme("x", "b", "c"));
    EXPECT_NE(makeScheme("a", "b", "c"), makeScheme("a", "x", "c"));
    EXPECT_NE(makeScheme("a", "b", "c"), makeScheme("a", "b", "x"));
}

TEST(FontSchemeTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeScheme("a", "b", "c"));
    static_assert(!Ordered<FontScheme>);
}

} // namespace QN::DOM::FontSchemeTest
