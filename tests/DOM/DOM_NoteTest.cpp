#include "DOM/DOM_Note.h"

#include <gtest/gtest.h>

#include "DOM/DOM_Document.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NoteTest {
namespace {

using namespace QN::Test;

Note makeNote()
{
    Note note(makeUUID('1'));
    note.getBlocks().push_back(makeParagraph({"text"}));
    note.getBlocks().push_back(nullptr);
    note.setExtent(Size2D<float>(1.5F, 2.5F));
    note.setAlwaysVisible(true);
    return note;
}

TEST(DOM_Note, HasAnIdentityAndNothingElseWhenItIsNew)
{
    const Note note;
    EXPECT_TRUE(note.getUUID());
    EXPECT_NE(note.getUUID(), Note().getUUID());
    EXPECT_EQ(Note(makeUUID('1')).getUUID(), makeUUID('1'));
    EXPECT_TRUE(note.getBlocks().empty());
    EXPECT_FALSE(note.getExtent());
    EXPECT_FALSE(note.isAlwaysVisible());
}

TEST(DOM_Note, HoldsWhatIsSet)
{
    const Note note = makeNote();
    EXPECT_EQ(note.getBlocks().size(), 2U);
    EXPECT_TRUE(note.getExtent() == Size2D<float>(1.5F, 2.5F));
    EXPECT_TRUE(note.isAlwaysVisible());
}

TEST(DOM_Note, ComparesIdentityAndEachMember)
{
    EXPECT_EQ(makeNote(), makeNote());
    Note other = makeNote();
    other.setUUID(makeUUID('3'));
    EXPECT_NE(other, makeNote());
    other = makeNote();
    other.getBlocks().pop_back();
    EXPECT_NE(other, makeNote());
    other = makeNote();
    other.getBlocks().front() = makeParagraph({"other"});
    EXPECT_NE(other, makeNote());
    other = makeNote();
    other.getBlocks().front().reset();
    EXPECT_NE(other, makeNote());
    other = makeNote();
    other.setExtent(boost::none);
    EXPECT_NE(other, makeNote());
    other = makeNote();
    other.setAlwaysVisible(false);
    EXPECT_NE(other, makeNote());
}

TEST(DOM_Note, ACopyHasTheIdentityOfItsSourceAndSharesNoBlock)
{
    const Note note = makeNote();
    Note copy(note);
    EXPECT_EQ(copy.getUUID(), note.getUUID());
    EXPECT_NE(copy.getBlocks().front().get(), &note.getBlocks().front());
    copy.getBlocks().clear();
    EXPECT_EQ(note, makeNote());
}

TEST(DOM_Note, CopiesAndMoves)
{
    expectCopiesAndMoves(makeNote());
}

TEST(DOM_Note, WritesItsIdentityFirst)
{
    EXPECT_EQ(toJson(Note(makeUUID('1'))),
              R"({"value0":{"_uuid":)" + makeUUIDJson('1') +
                  R"(},"_blocks":[],"_extent":{"hasValue":false},"_alwaysVisible":false})");
}

TEST(DOM_Note, Persists)
{
    expectPersists(Note());
    expectPersists(makeNote());
}

TEST(DOM_Note, IsFoundInADocumentByItsIdentity)
{
    Document document;
    EXPECT_EQ(getNote(document, makeUUID('1')), nullptr);
    const Note& note = document.getNotes().insert(makeNote());
    EXPECT_EQ(getNote(document, makeUUID('1')), &note);
    EXPECT_EQ(getNote(document, makeUUID('2')), nullptr);
}

} // namespace
} // namespace QN::DOM::NoteTest
