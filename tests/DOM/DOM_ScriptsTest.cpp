#include "DOM/DOM_Scripts.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ScriptsTest {
namespace {

using namespace QN::Test;

Scripts makeScripts()
{
    Scripts scripts;
    scripts.insertScript("b", "text of b");
    scripts.insertScript("\xC3\xA4", "text of a umlaut");
    scripts.insertScript("B", "text of B");
    return scripts;
}

TEST(DOM_Scripts, AreEmptyByDefault)
{
    EXPECT_TRUE(Scripts().getScriptsByName().empty());
    EXPECT_FALSE(Scripts().getScript("a"));
    EXPECT_EQ(toJson(Scripts()), R"({"_scriptsByName":[]})");
}

TEST(DOM_Scripts, AreFoundByName)
{
    const Scripts scripts = makeScripts();
    EXPECT_EQ(*scripts.getScript("b"), "text of b");
    EXPECT_EQ(*scripts.getScript("B"), "text of B");
    EXPECT_FALSE(scripts.getScript(""));
    EXPECT_EQ(scripts.getScriptsByName().size(), 3U);
}

TEST(DOM_Scripts, InsertingAKnownNameReplacesTheText)
{
    Scripts scripts = makeScripts();
    scripts.insertScript("b", "other");
    EXPECT_EQ(*scripts.getScript("b"), "other");
    EXPECT_EQ(scripts.getScriptsByName().size(), 3U);
}

TEST(DOM_Scripts, RemovingAnUnknownNameChangesNothing)
{
    Scripts scripts = makeScripts();
    scripts.removeScript("a");
    EXPECT_EQ(scripts, makeScripts());
    scripts.removeScript("b");
    EXPECT_FALSE(scripts.getScript("b"));
    EXPECT_NE(scripts, makeScripts());
}

TEST(DOM_Scripts, CompareNamesAndTexts)
{
    Scripts scripts = makeScripts();
    EXPECT_EQ(scripts, makeScripts());
    scripts.insertScript("b", "other");
    EXPECT_NE(scripts, makeScripts());
    expectCopiesAndMoves(scripts);
}

TEST(DOM_Scripts, AreWrittenInTheByteOrderOfTheirNames)
{
    EXPECT_EQ(toJson(makeScripts()),
              R"({"_scriptsByName":[{"key":"B","value":"text of B"},{"key":"b","value":"text of b"},)"
              "{\"key\":\"\xC3\xA4\",\"value\":\"text of a umlaut\"}]}");
}

TEST(DOM_Scripts, OfTwoEntriesOfOneNameInAFileTheFirstStays)
{
    const auto scripts =
        fromJson<Scripts>(R"({"_scriptsByName":[{"key":"a","value":"1"},{"key":"a","value":"2"}]})");
    EXPECT_EQ(*scripts.getScript("a"), "1");
}

TEST(DOM_Scripts, Persist)
{
    expectPersists(Scripts());
    expectPersists(makeScripts());
}

} // namespace
} // namespace QN::DOM::ScriptsTest
