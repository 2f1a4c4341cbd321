#include "DOM/DOM_TextWithTombstones.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"
#include "Utils/Public/Opt/OptUtils.h"

namespace QN::DOM::TextWithTombstonesTest {
namespace {

using namespace QN::Test;
using CollaborationUtils::IndexExcludingTombstones;
using CollaborationUtils::IndexIncludingTombstones;

TextWithTombstones makeText(const std::vector<std::string>& paragraphs)
{
    std::vector<std::unique_ptr<Block>> blocks;
    for (const std::string& paragraph : paragraphs) {
        blocks.push_back(makeParagraph({paragraph}));
    }
    return TextWithTombstones(std::move(blocks));
}

TextWithTombstones makeTextWithNull()
{
    TextWithTombstones text = makeText({"a", "b"});
    text.getBlocks().front().reset();
    return text;
}

TEST(DOM_TextWithTombstones, IsEmptyByDefault)
{
    const TextWithTombstones text;
    EXPECT_TRUE(text.getBlocks().empty());
    EXPECT_EQ(text.getTombstones().getTombstonesCount(), 0U);
    EXPECT_EQ(toJson(text), R"({"_blocks":[],"_tombstones":{"_tombstones":[]}})");
}

TEST(DOM_TextWithTombstones, TakesOverTheBlocksThatItIsMadeOf)
{
    std::vector<std::unique_ptr<Block>> blocks;
    blocks.push_back(makeParagraph({"a"}));
    const Block* const block = blocks.front().get();
    const TextWithTombstones text(std::move(blocks));
    EXPECT_EQ(&text.getBlocks().front(), block);
    EXPECT_EQ(text.getTombstones().getTombstonesCount(), 0U);
}

TEST(DOM_TextWithTombstones, KeepsThePlaceOfADeletedBlockUntilItIsRestored)
{
    TextWithTombstones text = makeText({"a", "b", "c"});
    const IndexIncludingTombstones position(1);

    const auto place = getRequired(text.getTombstones().convertIndex(position)).get();
    text.getTombstones().replaceWithTombstone(position);
    text.getBlocks().erase(text.getBlocks().begin() + static_cast<std::ptrdiff_t>(place));
    EXPECT_EQ(text.getBlocks().size(), 2U);
    EXPECT_EQ(text.getTombstones().convertIndex(IndexExcludingTombstones(1)), IndexIncludingTombstones(2));

    const auto restored = text.getTombstones().restoreElement(position).get();
    text.getBlocks().insert(text.getBlocks().begin() + static_cast<std::ptrdiff_t>(restored),
                            makeParagraph({"b"}));
    EXPECT_EQ(text, makeText({"a", "b", "c"}));
}

TEST(DOM_TextWithTombstones, KeepsItsBlocksWhenTheTombstonesAreForgotten)
{
    TextWithTombstones text = makeText({"a"});
    text.getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
    text.getTombstones().clear();
    EXPECT_EQ(text, makeText({"a"}));
    EXPECT_NE(toJson(text).find(R"("_tombstones":{"_tombstones":[]})"), std::string::npos);
}

TEST(DOM_TextWithTombstones, EqualBlocksWithOtherTombstonesAreUnequal)
{
    TextWithTombstones text = makeText({"a"});
    EXPECT_EQ(text, makeText({"a"}));
    text.getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
    EXPECT_NE(text, makeText({"a"}));
}

TEST(DOM_TextWithTombstones, ComparesBlocksByNumberAndValue)
{
    EXPECT_NE(makeText({"a"}), makeText({"b"}));
    EXPECT_NE(makeText({"a"}), makeText({"a", "b"}));
    EXPECT_NE(makeText({"a", "b"}), makeText({"a"}));
}

TEST(DOM_TextWithTombstones, ANullBlockEqualsANullBlockOnly)
{
    EXPECT_EQ(makeTextWithNull(), makeTextWithNull());
    EXPECT_NE(makeTextWithNull(), makeText({"a", "b"}));
    EXPECT_NE(makeText({"a", "b"}), makeTextWithNull());
}

TEST(DOM_TextWithTombstones, CopiesAndMoves)
{
    TextWithTombstones text = makeTextWithNull();
    text.getTombstones().replaceWithTombstone(IndexIncludingTombstones(2));
    expectCopiesAndMoves(text);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<TextWithTombstones>);
}

TEST(DOM_TextWithTombstones, ACopySharesNoBlock)
{
    const TextWithTombstones text = makeText({"a"});
    TextWithTombstones copy = text;
    EXPECT_NE(copy.getBlocks().front().get(), &text.getBlocks().front());
    dynamic_cast<Paragraph&>(*copy.getBlocks().front()).getRuns().clear();
    EXPECT_EQ(text, makeText({"a"}));
}

TEST(DOM_TextWithTombstones, WritesBlocksAndTombstones)
{
    TextWithTombstones text = makeTextWithNull();
    text.getBlocks().pop_back();
    text.getTombstones().replaceWithTombstone(IndexIncludingTombstones(4));
    EXPECT_EQ(toJson(text), R"({"_blocks":[{"polymorphic_id":0}],"_tombstones":{"_tombstones":)"
                            R"([{"_begin":{"_value":4},"_end":{"_value":5}}]}})");
}

TEST(DOM_TextWithTombstones, Persists)
{
    expectPersists(TextWithTombstones());
    TextWithTombstones text = makeTextWithNull();
    text.getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
    expectPersists(text);
}

TEST(DOM_TextWithTombstonesDeathTest, ReadingANullBlockFailsTheContract)
{
    const TextWithTombstones text = makeTextWithNull();
    EXPECT_DEATH(text.getBlocks().front(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

} // namespace
} // namespace QN::DOM::TextWithTombstonesTest
