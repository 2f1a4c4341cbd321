#include "DOM/Utils/DOM_TextUtils.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/TextSamples.h"

namespace QN::DOM::TextUtilsGetTextTest {

namespace {

using namespace QN::Test;

template <class... Ptrs>
std::vector<std::unique_ptr<Block>> makeBlocks(Ptrs... blocks)
{
    std::vector<std::unique_ptr<Block>> result;
    (result.push_back(std::move(blocks)), ...);
    return result;
}

std::string getText(const std::vector<std::unique_ptr<Block>>& blocks)
{
    return getTextFromParagraphs(blocks);
}

TEST(GetTextFromParagraphsTest, NoBlocksHaveNoText)
{
    EXPECT_EQ(getText({}), "");
}

TEST(GetTextFromParagraphsTest, ALineFeedStandsBetweenParagraphs)
{
    EXPECT_EQ(getText(makeBlocks(makeParagraph({"a"}))), "a");
    EXPECT_EQ(getText(makeBlocks(makeParagraph({"a", "b"}), makeParagraph({"c"}))), "ab\nc");
}

TEST(GetTextFromParagraphsTest, EmptyParagraphsCountOnlyBehindSomeText)
{
    EXPECT_EQ(getText(makeBlocks(makeParagraph({}))), "");
    EXPECT_EQ(getText(makeBlocks(makeParagraph({}), makeParagraph({"a"}))), "a");
    EXPECT_EQ(getText(makeBlocks(makeParagraph({}), makeParagraph({}), makeParagraph({"a"}))), "a");
    EXPECT_EQ(getText(makeBlocks(makeParagraph({"a"}), makeParagraph({}), makeParagraph({}))), "a\n\n");
    EXPECT_EQ(getText(makeBlocks(makeParagraph({"a"}), makeParagraph({}), makeParagraph({"b"}))), "a\n\nb");
    EXPECT_EQ(getText(makeBlocks(makeParagraph({""}), makeParagraph({"a"}))), "a");
}

TEST(GetTextFromParagraphsTest, EveryKindOfRunGivesItsText)
{
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns() = makeOneRunOfEachKind();
    std::string expected;
    for (const DOM::Run& run : std::as_const(*paragraph).getRuns()) {
        expected += run.getText();
    }
    EXPECT_EQ(expected.substr(0, 5), "text\t");
    EXPECT_EQ(getText(makeBlocks(std::move(paragraph))), expected);
}

TEST(GetTextFromParagraphsTest, BlocksOfOtherKindsAndTheTextInsideThemAddNothing)
{
    auto table = std::make_unique<Table>();
    table->getOrCreateCell(RowIndex(0), ColumnIndex(0)).getRawBlocks().push_back(makeParagraph({"cell"}));
    auto shape = std::make_unique<Shape>();
    shape->getTextWithTombstones().getBlocks().push_back(makeParagraph({"shape"}));
    const auto blocks =
        makeBlocks(std::move(table), makeParagraph({"a"}), std::move(shape), std::make_unique<SectionTag>(),
                   std::make_unique<FieldBlock>(), makeParagraph({"b"}));
    EXPECT_EQ(getText(blocks), "a\nb");
}

TEST(GetTextFromParagraphsDeathTest, ANullBlockBreaksTheContract)
{
    const auto blocks = makeBlocks(makeParagraph({"a"}), std::unique_ptr<Block>());
    EXPECT_DEATH(static_cast<void>(getText(blocks)), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
}

TEST(GetTextFromParagraphsDeathTest, ANullRunBreaksTheContract)
{
    auto paragraph = makeParagraph({"a"});
    paragraph->getRuns().push_back(nullptr);
    const auto blocks = makeBlocks(std::move(paragraph));
    EXPECT_DEATH(static_cast<void>(getText(blocks)), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
}

} // namespace

} // namespace QN::DOM::TextUtilsGetTextTest
