#include "DOM/DOM_Comment.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <utility>

#include "DOM/DOM_Document.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/Clones.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::CommentTest {
namespace {

using namespace QN::Test;

Comment makeComment()
{
    Comment comment(makeUUID('1'));
    comment.setInfo(TrackChangesInfo(UserInfo("Jane", "jane@example.org"), boost::none));
    comment.getBlocks().push_back(makeParagraph({"text"}));
    comment.getBlocks().push_back(nullptr);
    comment.setNextCommentUUID(makeUUID('2'));
    comment.setResolved(true);
    return comment;
}

TEST(DOM_Comment, HasAnIdentityAndNothingElseWhenItIsNew)
{
    const Comment comment;
    EXPECT_TRUE(comment.getUUID());
    EXPECT_NE(comment.getUUID(), Comment().getUUID());
    EXPECT_EQ(Comment(makeUUID('1')).getUUID(), makeUUID('1'));
    EXPECT_EQ(comment.getInfo(), TrackChangesInfo());
    EXPECT_TRUE(comment.getBlocks().empty());
    EXPECT_FALSE(comment.getNextCommentUUID());
    EXPECT_FALSE(comment.isResolved());
}

TEST(DOM_Comment, HoldsWhatIsSet)
{
    const Comment comment = makeComment();
    EXPECT_EQ(comment.getInfo().getAuthorInfo()->getName(), "Jane");
    EXPECT_EQ(comment.getBlocks().size(), 2U);
    EXPECT_EQ(comment.getNextCommentUUID(), makeUUID('2'));
    EXPECT_TRUE(comment.isResolved());
}

TEST(DOM_Comment, ComparesIdentityAndEachMember)
{
    EXPECT_EQ(makeComment(), makeComment());
    Comment other = makeComment();
    other.setUUID(makeUUID('3'));
    EXPECT_NE(other, makeComment());
    other = makeComment();
    other.setInfo(TrackChangesInfo());
    EXPECT_NE(other, makeComment());
    other = makeComment();
    other.getBlocks().pop_back();
    EXPECT_NE(other, makeComment());
    other = makeComment();
    other.getBlocks().front() = makeParagraph({"other"});
    EXPECT_NE(other, makeComment());
    other = makeComment();
    other.getBlocks().front().reset();
    EXPECT_NE(other, makeComment());
    other = makeComment();
    other.setNextCommentUUID(UUID());
    EXPECT_NE(other, makeComment());
    other = makeComment();
    other.setResolved(false);
    EXPECT_NE(other, makeComment());
}

TEST(DOM_Comment, ACopyHasTheIdentityOfItsSourceAndSharesNoBlock)
{
    const Comment comment = makeComment();
    Comment copy(comment);
    EXPECT_EQ(copy.getUUID(), comment.getUUID());
    EXPECT_EQ(copy, comment);
    EXPECT_NE(copy.getBlocks().front().get(), &comment.getBlocks().front());
    copy.getBlocks().clear();
    EXPECT_EQ(comment, makeComment());
}

TEST(DOM_Comment, TheClonesOfItsBlocksHaveTheIdentitiesOfTheirSources)
{
    Comment comment = makeComment();
    auto source = std::make_unique<Table>(RowIndex(1), ColumnIndex(1));
    source->getOrCreateCell(RowIndex(0), ColumnIndex(0)).getRawBlocks().push_back(makeParagraph({"cell"}));
    comment.getBlocks().push_back(std::move(source));
    const Comment copy(comment);
    const Block& block = std::as_const(comment).getBlocks().back();
    const std::unique_ptr<Block> unique = cloneUnique(block);
    const std::shared_ptr<Block> shared = cloneShared(block);

    const auto getInner = [](const Block& table) -> const Block& {
        return dynamic_cast<const Table&>(table).getCell(RowIndex(0), ColumnIndex(0))->getRawBlocks().front();
    };
    const UUID uuid = dynamic_cast<const Table&>(block).getUUID();
    EXPECT_TRUE(uuid);
    const Block& copied = copy.getBlocks().back();
    for (const Block* const clone :
         std::initializer_list<const Block*>{unique.get(), shared.get(), &copied}) {
        ASSERT_NE(clone, &block);
        EXPECT_EQ(clone->getID(), block.getID());
        EXPECT_EQ(dynamic_cast<const Table&>(*clone).getUUID(), uuid);
        ASSERT_NE(&getInner(*clone), &getInner(block));
        EXPECT_EQ(getInner(*clone).getID(), getInner(block).getID());
    }
    EXPECT_EQ(copy.getBlocks().front().getID(), std::as_const(comment).getBlocks().front().getID());
}

TEST(DOM_Comment, CopiesAndMoves)
{
    expectCopiesAndMoves(makeComment());
}

TEST(DOM_Comment, WritesItsIdentityFirst)
{
    EXPECT_EQ(toJson(Comment(makeUUID('1'))),
              R"({"value0":{"_uuid":)" + makeUUIDJson('1') +
                  R"(},"_info":{"_userInfo":{"hasValue":false},"_dateTime":{"hasValue":false}},)"
                  R"("_blocks":[],"_nextCommentUUID":)" +
                  makeUUIDJson('0') + R"(,"_isResolved":false})");
}

TEST(DOM_Comment, Persists)
{
    expectPersists(Comment());
    expectPersists(makeComment());
}

TEST(DOM_Comment, IsFoundInADocumentByItsIdentity)
{
    Document document;
    EXPECT_EQ(getComment(document, makeUUID('1')), nullptr);
    const Comment& comment = document.getComments().insert(makeComment());
    EXPECT_EQ(getComment(document, makeUUID('1')), &comment);
    EXPECT_EQ(getComment(document, makeUUID('2')), nullptr);
}

} // namespace
} // namespace QN::DOM::CommentTest
