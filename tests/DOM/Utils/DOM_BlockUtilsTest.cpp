#include "DOM/Utils/DOM_BlockUtils.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "DOM/DOM_Document.h"
#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_NumberedList.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/Properties/DOM_Hyperlink.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/TextSamples.h"

namespace QN::DOM::BlockUtilsTest {

namespace {

using namespace QN::Test;
using Blocks = std::vector<std::unique_ptr<Block>>;
using OptionalIndex = boost::optional<std::size_t>;

constexpr const char* NullMessage = "Utils/Public/Ptr/PtrUtils:254: plainPtr\n";

template <class... Ptrs>
Blocks makeBlocks(Ptrs... blocks)
{
    Blocks result;
    (result.push_back(std::move(blocks)), ...);
    return result;
}

std::unique_ptr<Table> makeTable(char digit, const std::string& name = "")
{
    auto table = std::make_unique<Table>();
    table->setUUID(makeUUID(digit));
    table->setName(name);
    return table;
}

SharedStylePtr<RunStyle> makeLinkStyle(const std::string& url)
{
    RunStyle style;
    style.setHyperlink(std::make_shared<const Hyperlink>(url));
    return SharedObjectFactory().create(std::move(style));
}

std::unique_ptr<DOM::Run> makeLinkedRun(const std::string& url)
{
    auto run = makeText("text");
    run->getSharedStyle() = makeLinkStyle(url);
    return run;
}

std::unique_ptr<Paragraph> makeLinkedParagraph(const std::string& url)
{
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns().push_back(makeLinkedRun(url));
    return paragraph;
}

std::unique_ptr<FieldBlock> makeLinkedField(const std::string& url)
{
    auto block = std::make_unique<FieldBlock>();
    block->setHyperlink(std::make_shared<const Hyperlink>(url));
    return block;
}

std::string getURL(const std::shared_ptr<const Hyperlink>& hyperlink)
{
    return hyperlink ? hyperlink->getURL() : "<none>";
}

std::size_t findBlock(const Blocks& blocks, const Block& block)
{
    return getIndexForBlock(blocks, block);
}

OptionalIndex findTable(const Blocks& blocks, char digit)
{
    return findTableIndex(blocks, makeUUID(digit));
}

// Identity.

TEST(GetIndexForBlockTest, FindsTheVeryObjectAmongEqualOnes)
{
    const Blocks blocks = makeBlocks(makeParagraph({"a"}), makeParagraph({"a"}), makeParagraph({"a"}));
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        EXPECT_EQ(findBlock(blocks, *blocks[index]), index);
    }
}

TEST(GetIndexForBlockTest, FindsABlockOfAnyKind)
{
    const Blocks blocks = makeBlocks(makeParagraph({}), makeTable('1'), std::make_unique<SectionTag>(),
                                     std::make_unique<Shape>(), std::make_unique<FieldBlock>());
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        EXPECT_EQ(findBlock(blocks, *blocks[index]), index);
    }
}

TEST(GetIndexForBlockTest, ANullBlockBehindTheFindDoesNotMatter)
{
    const Blocks blocks = makeBlocks(makeParagraph({}), std::unique_ptr<Block>());
    EXPECT_EQ(findBlock(blocks, *blocks[0]), 0U);
}

TEST(GetIndexForBlockDeathTest, ABlockThatIsNotThereBreaksTheContract)
{
    const char* const message = "DOM/DOM_Utils:860: result < blocks\\.size\\(\\)\n";
    const Blocks blocks = makeBlocks(makeParagraph({"a"}));
    const auto equal = makeParagraph({"a"});
    EXPECT_DEATH(static_cast<void>(findBlock(blocks, *equal)), message);
    EXPECT_DEATH(static_cast<void>(findBlock(Blocks(), *equal)), message);
}

TEST(GetIndexForBlockDeathTest, ABlockInsideABlockIsNotThere)
{
    auto table = makeTable('1');
    Cell& cell = table->getOrCreateCell(RowIndex(0), ColumnIndex(0));
    cell.getRawBlocks().push_back(makeParagraph({}));
    const Block& inner = *cell.getRawBlocks()[0];
    const Blocks blocks = makeBlocks(std::move(table));
    EXPECT_DEATH(static_cast<void>(findBlock(blocks, inner)),
                 "DOM/DOM_Utils:860: result < blocks\\.size\\(\\)\n");
}

TEST(GetIndexForBlockDeathTest, ANullBlockBeforeTheFindBreaksTheContract)
{
    const Blocks blocks = makeBlocks(std::unique_ptr<Block>(), makeParagraph({}));
    EXPECT_DEATH(static_cast<void>(findBlock(blocks, *blocks[1])), NullMessage);
}

// Tables.

TEST(FindTableIndexTest, FindsTheFirstTableWithTheUUID)
{
    const Blocks blocks = makeBlocks(makeTable('1'), makeTable('2'), makeTable('2'));
    EXPECT_EQ(findTable(blocks, '1'), OptionalIndex(0U));
    EXPECT_EQ(findTable(blocks, '2'), OptionalIndex(1U));
    EXPECT_EQ(findTable(blocks, '3'), boost::none);
}

TEST(FindTableIndexTest, AnEmptyListHasNone)
{
    EXPECT_EQ(findTable({}, '1'), boost::none);
}

TEST(FindTableIndexTest, NilIsAUUIDLikeAnyOther)
{
    EXPECT_EQ(findTable(makeBlocks(makeTable('1')), '0'), boost::none);
    EXPECT_EQ(findTable(makeBlocks(makeTable('1'), makeTable('0')), '0'), OptionalIndex(1U));
}

TEST(FindTableIndexTest, ABlockOfAnotherKindBeforeTheFindThrows)
{
    Blocks blocks = makeBlocks(makeTable('1'), makeParagraph({}), makeTable('2'));
    EXPECT_EQ(findTable(blocks, '1'), OptionalIndex(0U));
    EXPECT_THROW(findTable(blocks, '2'), std::bad_cast);
    EXPECT_THROW(findTable(blocks, '3'), std::bad_cast);
    EXPECT_THROW(findTable(makeBlocks(std::make_unique<Shape>()), '1'), std::bad_cast);
    EXPECT_THROW(findTable(makeBlocks(std::make_unique<SectionTag>()), '1'), std::bad_cast);
    EXPECT_THROW(findTable(makeBlocks(std::make_unique<FieldBlock>()), '1'), std::bad_cast);
}

TEST(FindTableIndexDeathTest, ANullBlockBeforeTheFindBreaksTheContract)
{
    const Blocks blocks = makeBlocks(std::unique_ptr<Block>());
    EXPECT_DEATH(static_cast<void>(findTable(blocks, '1')), NullMessage);
}

TEST(HasNamedTableTest, FindsATableOfTheDocumentByItsExactName)
{
    Document document;
    EXPECT_FALSE(hasNamedTable(document, "Total"));
    document.getBlocks() = makeBlocks(makeParagraph({"Total"}), std::make_unique<SectionTag>(),
                                      makeTable('1', "Sheet"), makeTable('2', "Total"));
    EXPECT_TRUE(hasNamedTable(document, "Total"));
    EXPECT_TRUE(hasNamedTable(document, "Sheet"));
    EXPECT_FALSE(hasNamedTable(document, "total"));
    EXPECT_FALSE(hasNamedTable(document, "Tota"));
    EXPECT_FALSE(hasNamedTable(document, "Total "));
    EXPECT_FALSE(hasNamedTable(document, std::string("Total\0", 6)));
}

TEST(HasNamedTableTest, NamesCompareByteForByte)
{
    Document document;
    // The same letter in one code point and in two.
    document.getBlocks() = makeBlocks(makeTable('1', "\xC3\xA4"));
    EXPECT_TRUE(hasNamedTable(document, "\xC3\xA4"));
    EXPECT_FALSE(hasNamedTable(document, "a\xCC\x88"));
}

TEST(HasNamedTableTest, TheEmptyNameIsThatOfAnUnnamedTable)
{
    Document document;
    document.getBlocks() = makeBlocks(makeParagraph({}));
    EXPECT_FALSE(hasNamedTable(document, ""));
    document.getBlocks().push_back(makeTable('1'));
    EXPECT_TRUE(hasNamedTable(document, ""));
}

TEST(HasNamedTableTest, TablesInsideOthersDoNotCount)
{
    auto table = makeTable('1', "outer");
    table->getOrCreateCell(RowIndex(0), ColumnIndex(0)).getRawBlocks().push_back(makeTable('2', "inner"));
    Document document;
    document.getBlocks() = makeBlocks(std::move(table));
    EXPECT_TRUE(hasNamedTable(document, "outer"));
    EXPECT_FALSE(hasNamedTable(document, "inner"));
}

TEST(HasNamedTableDeathTest, ANullBlockBreaksTheContract)
{
    Document document;
    document.getBlocks() = makeBlocks(std::unique_ptr<Block>());
    EXPECT_DEATH(static_cast<void>(hasNamedTable(document, "Total")), NullMessage);
}

// Hyperlinks.

TEST(GetFirstHyperlinkTest, AParagraphWithoutRunsHasThatOfItsMark)
{
    Paragraph paragraph;
    EXPECT_EQ(getURL(getFirstHyperlinkFromParagraph(paragraph)), "<none>");
    paragraph.getSharedParaMarkStyle() = makeLinkStyle("mark");
    EXPECT_EQ(getURL(getFirstHyperlinkFromParagraph(paragraph)), "mark");
}

TEST(GetFirstHyperlinkTest, AParagraphWithRunsHasThatOfTheFirstRunAlone)
{
    Paragraph paragraph;
    paragraph.getSharedParaMarkStyle() = makeLinkStyle("mark");
    paragraph.getRuns().push_back(makeText("plain"));
    paragraph.getRuns().push_back(makeLinkedRun("second"));
    EXPECT_EQ(getURL(getFirstHyperlinkFromParagraph(paragraph)), "<none>");
    paragraph.getRuns()[0]->getSharedStyle() = makeLinkStyle("first");
    EXPECT_EQ(getURL(getFirstHyperlinkFromParagraph(paragraph)), "first");
}

TEST(GetFirstHyperlinkTest, TheHyperlinkIsSharedAndNotCopied)
{
    FieldBlock block;
    const auto hyperlink = std::make_shared<const Hyperlink>("url");
    block.setHyperlink(hyperlink);
    EXPECT_EQ(getFirstHyperlinkFromBlock(block), hyperlink);
}

TEST(GetFirstHyperlinkTest, ABlockIsAParagraphOrAField)
{
    EXPECT_EQ(getURL(getFirstHyperlinkFromBlock(*makeLinkedParagraph("paragraph"))), "paragraph");
    EXPECT_EQ(getURL(getFirstHyperlinkFromBlock(*makeLinkedField("field"))), "field");
    EXPECT_EQ(getURL(getFirstHyperlinkFromBlock(Paragraph())), "<none>");
    EXPECT_EQ(getURL(getFirstHyperlinkFromBlock(FieldBlock())), "<none>");
}

TEST(GetFirstHyperlinkTest, OfBlocksOnlyTheFirstCounts)
{
    const auto get = [](const Blocks& blocks) { return getURL(getFirstHyperlinkFromBlocks(blocks)); };
    EXPECT_EQ(get(makeBlocks(makeLinkedParagraph("1"), makeLinkedParagraph("2"))), "1");
    EXPECT_EQ(get(makeBlocks(makeLinkedField("1"), makeLinkedParagraph("2"))), "1");
    EXPECT_EQ(get(makeBlocks(makeParagraph({"plain"}), makeLinkedParagraph("2"))), "<none>");
    EXPECT_EQ(get(makeBlocks(makeLinkedParagraph("1"), makeTable('1'))), "1");
    EXPECT_EQ(get(makeBlocks(makeLinkedParagraph("1"), std::unique_ptr<Block>())), "1");
}

TEST(GetFirstHyperlinkDeathTest, ABlockOfAnotherKindBreaksTheContract)
{
    const char* const message = "Utils/Public/Visitor:194: result\n";
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromBlock(Table())), message);
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromBlock(Shape())), message);
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromBlock(SectionTag())), message);
    const Blocks blocks = makeBlocks(makeTable('1'), makeLinkedParagraph("2"));
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromBlocks(blocks)), message);
}

TEST(GetFirstHyperlinkDeathTest, AnEmptyListBreaksTheContract)
{
    const Blocks blocks;
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromBlocks(blocks)),
                 "DOM/DOM_Utils:896: !blocks\\.empty\\(\\)\n");
}

TEST(GetFirstHyperlinkDeathTest, ANullFirstBlockOrRunBreaksTheContract)
{
    const Blocks blocks = makeBlocks(std::unique_ptr<Block>());
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromBlocks(blocks)), NullMessage);
    Paragraph paragraph;
    paragraph.getRuns().push_back(nullptr);
    EXPECT_DEATH(static_cast<void>(getFirstHyperlinkFromParagraph(paragraph)), NullMessage);
}

// Lists.

TEST(GetListByNameTest, FindsTheFirstListOfTheName)
{
    std::vector<NumberedList> lists(4);
    lists[1].setName(NumberedListName::Outline);
    lists[2].setName(NumberedListName::HyphenBullets);
    lists[3].setName(NumberedListName::Outline);
    EXPECT_EQ(getListByName(lists, NumberedListName::Outline), &lists[1]);
    EXPECT_EQ(getListByName(lists, NumberedListName::HyphenBullets), &lists[2]);
    EXPECT_EQ(getListByName(lists, NumberedListName::None), &lists[0]);
    EXPECT_EQ(getListByName(lists, NumberedListName::ArrowheadBullets), nullptr);
}

TEST(GetListByNameTest, NoListsHaveNone)
{
    EXPECT_EQ(getListByName({}, NumberedListName::None), nullptr);
}

TEST(GetListByNameTest, AnUnknownNameIsOneLikeAnyOther)
{
    std::vector<NumberedList> lists(2);
    lists[1].setName(static_cast<NumberedListName>(200));
    EXPECT_EQ(getListByName(lists, static_cast<NumberedListName>(200)), &lists[1]);
}

} // namespace

} // namespace QN::DOM::BlockUtilsTest
