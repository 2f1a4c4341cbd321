#include "DOM/DOM_TableOfContentsInfo.h"

#include <gtest/gtest.h>

#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/DOM_Styles.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TableOfContentsInfoTest {
namespace {

using namespace QN::Test;

using StyleLevel = TableOfContentsInfo::StyleLevelInfo;
using Decoration = TableOfContentsLevelDecorationInfo;

TableOfContentsInfo makeContents()
{
    TableOfContentsInfo contents;
    contents.setOutlineLevelsRange(TableOfContentsInfo::OutlineLevelsRange(1, 3));
    contents.getHeadingStylesLevels() = {{makeUUID('1'), 0}, {makeUUID('2'), 1}, {makeUUID('1'), 2}};
    contents.getLevelsStyleInfo().emplace(1U, Decoration(makeUUID('3'), TabStopLeader::Dot, false));
    contents.getLevelsStyleInfo().emplace(0U, Decoration());
    return contents;
}

TEST(DOM_TableOfContentsInfo, SaysNothingByDefault)
{
    EXPECT_EQ(
        toJson(TableOfContentsInfo()),
        R"({"_outlineLevelsRange":{"hasValue":false},"_headingStylesLevels":[],"_levelsStyleInfo":[]})");
}

TEST(DOM_TableOfContentsInfo, WritesItsMembersWithTheLevelsInOrder)
{
    EXPECT_EQ(toJson(makeContents()),
              R"({"_outlineLevelsRange":{"hasValue":true,"value":{"first":1,"second":3}},)"
              R"("_headingStylesLevels":[{"uuid":)" +
                  makeUUIDJson('1') + R"(,"level":0},{"uuid":)" + makeUUIDJson('2') +
                  R"(,"level":1},{"uuid":)" + makeUUIDJson('1') +
                  R"(,"level":2}],"_levelsStyleInfo":[{"key":0,"value":)" + toJson(Decoration()) +
                  R"(},{"key":1,"value":)" + toJson(Decoration(makeUUID('3'), TabStopLeader::Dot, false)) +
                  "}]}");
}

TEST(DOM_TableOfContentsInfo, Persists)
{
    expectPersists(TableOfContentsInfo());
    expectPersists(makeContents());
}

TEST(DOM_TableOfContentsInfo, CopiesAndMoves)
{
    expectCopiesAndMoves(makeContents());
}

TEST(DOM_TableOfContentsInfo, FindsAStyleAtItsFirstPlace)
{
    EXPECT_EQ(TableOfContentsInfo().findStyleLevel(makeUUID('1')), nullptr);
    const TableOfContentsInfo contents = makeContents();
    EXPECT_EQ(contents.findStyleLevel(makeUUID('1')), &contents.getHeadingStylesLevels()[0]);
    EXPECT_EQ(contents.findStyleLevel(makeUUID('2')), &contents.getHeadingStylesLevels()[1]);
    EXPECT_EQ(contents.findStyleLevel(makeUUID('3')), nullptr);
}

TEST(DOM_TableOfContentsInfo, ComparesAllMembers)
{
    EXPECT_EQ(makeContents(), makeContents());
    TableOfContentsInfo other = makeContents();
    other.setOutlineLevelsRange(boost::none);
    EXPECT_NE(other, makeContents());
    other.setOutlineLevelsRange(TableOfContentsInfo::OutlineLevelsRange(1, 4));
    EXPECT_NE(other, makeContents());
    other.setOutlineLevelsRange(TableOfContentsInfo::OutlineLevelsRange(0, 3));
    EXPECT_NE(other, makeContents());
    other = makeContents();
    other.getHeadingStylesLevels()[1].level = 7;
    EXPECT_NE(other, makeContents());
    other = makeContents();
    other.getHeadingStylesLevels()[1].uuid = UUID();
    EXPECT_NE(other, makeContents());
    other = makeContents();
    other.getHeadingStylesLevels().pop_back();
    EXPECT_NE(other, makeContents());
    other = makeContents();
    other.getLevelsStyleInfo().erase(0U);
    EXPECT_NE(other, makeContents());
    other = makeContents();
    other.getLevelsStyleInfo()[0].setShowPageNumbers(false);
    EXPECT_NE(other, makeContents());
}

TEST(DOM_TableOfContentsInfo, TheOrderOfTheHeadingStylesCounts)
{
    TableOfContentsInfo other = makeContents();
    std::swap(other.getHeadingStylesLevels()[0], other.getHeadingStylesLevels()[1]);
    EXPECT_NE(other, makeContents());
}

TEST(DOM_TableOfContentsInfo, ANewDocumentGetsThreeLevelsOfHeadings)
{
    Styles styles;
    appendPredefinedTextStyles(styles);
    const TableOfContentsInfo contents = makeDefaultTableOfContentsInfo(styles);

    EXPECT_FALSE(contents.getOutlineLevelsRange());
    const std::vector<StyleLevel> headings{
        {UUID("8b7a892e-b199-47bf-ba6d-139900efb7f5"), 0},
        {UUID("f60f239d-8df8-4dd8-892b-55f74995936b"), 1},
        {UUID("273d8959-017a-4c27-b9e1-b81cb2524c77"), 2},
    };
    EXPECT_EQ(contents.getHeadingStylesLevels(), headings);

    constexpr auto Leader = static_cast<TabStopLeader>(2);
    TableOfContentsInfo::LevelsStyleInfo levels;
    levels.emplace(0U, Decoration(UUID("9873b549-c711-46c2-9758-a3e84caa6dd4"), Leader, true));
    levels.emplace(1U, Decoration(UUID("06065b5d-94e4-4ab7-9193-da11fead378a"), Leader, true));
    levels.emplace(2U, Decoration(UUID("65b96f49-75df-4d6e-b99c-6917a9f9ded0"), Leader, true));
    EXPECT_TRUE(contents.getLevelsStyleInfo() == levels);
}

TEST(DOM_TableOfContentsInfo, StylesThatTheStoreLacksStandInTheDefaultWithANilIdentity)
{
    const TableOfContentsInfo contents = makeDefaultTableOfContentsInfo(Styles());
    ASSERT_EQ(contents.getHeadingStylesLevels().size(), 3U);
    for (const StyleLevel& heading : contents.getHeadingStylesLevels()) {
        EXPECT_EQ(heading.uuid, UUID());
    }
    ASSERT_EQ(contents.getLevelsStyleInfo().size(), 3U);
    for (const auto& [level, decoration] : contents.getLevelsStyleInfo()) {
        EXPECT_EQ(decoration.getLevelStyleUUID(), UUID());
    }
}

TEST(DOM_TableOfContentsInfoDeathTest, AStyleOfATypeOfTheDefaultMustHaveTheUUIDOfTheType)
{
    const auto makeStyles = [](PredefinedStyleName type) {
        NamedTextStyle style(makeUUID('1'));
        style.setName(type);
        Styles styles;
        styles.getTextStyles().insert(style);
        return styles;
    };
    constexpr const char* Expected = "DOM/PredefinedStyles/DOM_PredefinedStylesUtils:49: "
                                     "style->getUUID\\(\\) == makeUUIDFunctor\\(styleType\\)";
    EXPECT_DEATH(makeDefaultTableOfContentsInfo(makeStyles(PredefinedStyleName::Heading3)), Expected);
    EXPECT_DEATH(makeDefaultTableOfContentsInfo(makeStyles(PredefinedStyleName::Contents2)), Expected);
    EXPECT_EQ(makeDefaultTableOfContentsInfo(makeStyles(PredefinedStyleName::Heading4)),
              makeDefaultTableOfContentsInfo(Styles()));
}

} // namespace
} // namespace QN::DOM::TableOfContentsInfoTest
