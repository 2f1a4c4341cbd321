#include "DOM/DOM_UUIDContainer.h"

#include <gtest/gtest.h>

#include "DOM/DOM_Comment.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::UUIDContainerTest {
namespace {

using namespace QN::Test;

Note makeNote(char digit, bool alwaysVisible = false)
{
    Note note(makeUUID(digit));
    note.setAlwaysVisible(alwaysVisible);
    return note;
}

UUIDContainer<Note> makeNotes(const std::string& digits)
{
    UUIDContainer<Note> notes;
    for (const char digit : digits) {
        notes.insert(makeNote(digit));
    }
    return notes;
}

std::string getOrder(const UUIDContainer<Note>& notes)
{
    std::string digits;
    for (const Note& note : notes) {
        digits += note.getUUID().toString().back();
    }
    return digits;
}

std::string makeEntryJson(char key, char uuid)
{
    return R"({"key":)" + makeUUIDJson(key) + R"(,"value":)" + toJson(Note(makeUUID(uuid))) + "}";
}

TEST(DOM_UUIDContainer, IsEmptyByDefault)
{
    const UUIDContainer<Note> notes;
    EXPECT_TRUE(notes.empty());
    EXPECT_EQ(notes.size(), 0U);
    EXPECT_TRUE(notes.begin() == notes.end());
    EXPECT_EQ(toJson(notes), R"({"_collection":[]})");
}

TEST(DOM_UUIDContainer, HoldsWhatIsInsertedUnderItsIdentity)
{
    UUIDContainer<Note> notes;
    Note& note = notes.insert(makeNote('1'));
    EXPECT_EQ(note, makeNote('1'));
    EXPECT_EQ(notes.find(makeUUID('1')), &note);
    EXPECT_EQ(std::as_const(notes).find(makeUUID('1')), &note);
    EXPECT_EQ(notes.find(makeUUID('2')), nullptr);
    EXPECT_EQ(std::as_const(notes).find(makeUUID('2')), nullptr);
    EXPECT_EQ(notes.size(), 1U);
}

TEST(DOM_UUIDContainer, IsWalkedInTheOrderOfTheIdentities)
{
    UUIDContainer<Note> notes = makeNotes("c1a2");
    EXPECT_EQ(getOrder(notes), "12ac");

    std::string backwards;
    for (auto note = notes.end(); note != notes.begin();) {
        backwards += (--note)->getUUID().toString().back();
        EXPECT_EQ(note.getKey(), note->getUUID());
    }
    EXPECT_EQ(backwards, "ca21");

    for (Note& note : notes) {
        note.setAlwaysVisible(true);
    }
    EXPECT_TRUE(notes.find(makeUUID('c'))->isAlwaysVisible());
}

TEST(DOM_UUIDContainer, AnElementStaysWhereItIsUntilItIsRemoved)
{
    UUIDContainer<Note> notes = makeNotes("5");
    const Note* const note = notes.find(makeUUID('5'));
    notes.insert(makeNote('1'));
    notes.insert(makeNote('9'));
    EXPECT_TRUE(notes.erase(makeUUID('1')));
    EXPECT_EQ(notes.find(makeUUID('5')), note);
    EXPECT_FALSE(notes.erase(makeUUID('1')));
    EXPECT_EQ(getOrder(notes), "59");
    notes.clear();
    EXPECT_TRUE(notes.empty());
}

TEST(DOM_UUIDContainer, CopiesAndMoves)
{
    expectCopiesAndMoves(makeNotes("12"));
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<UUIDContainer<Note>>);
}

TEST(DOM_UUIDContainer, ACopySharesNothing)
{
    const UUIDContainer<Note> notes = makeNotes("1");
    UUIDContainer<Note> copy = notes;
    copy.find(makeUUID('1'))->getBlocks().push_back(makeParagraph({"text"}));
    EXPECT_EQ(notes, makeNotes("1"));
    EXPECT_NE(notes, copy);
}

TEST(DOM_UUIDContainer, ComparesNumberIdentitiesAndElements)
{
    EXPECT_EQ(makeNotes("12"), makeNotes("21"));
    EXPECT_NE(makeNotes("12"), makeNotes("1"));
    EXPECT_NE(makeNotes("12"), makeNotes("13"));
    UUIDContainer<Note> notes;
    notes.insert(makeNote('1', true));
    EXPECT_NE(notes, makeNotes("1"));
}

TEST(DOM_UUIDContainer, WritesAMapInTheOrderOfTheIdentities)
{
    EXPECT_EQ(toJson(makeNotes("21")),
              R"({"_collection":[)" + makeEntryJson('1', '1') + "," + makeEntryJson('2', '2') + "]}");
}

TEST(DOM_UUIDContainer, AFileMayStateTheEntriesInAnyOrder)
{
    EXPECT_EQ(fromJson<UUIDContainer<Note>>(R"({"_collection":[)" + makeEntryJson('2', '2') + "," +
                                            makeEntryJson('1', '1') + "]}"),
              makeNotes("12"));
}

TEST(DOM_UUIDContainer, LoadingReplacesWhatWasThere)
{
    UUIDContainer<Note> notes = makeNotes("12");
    loadJson(toJson(makeNotes("3")), notes);
    EXPECT_EQ(notes, makeNotes("3"));
}

TEST(DOM_UUIDContainer, AFileWithAnIdentityTwiceIsRefused)
{
    EXPECT_EQ(loadError<UUIDContainer<Note>>(R"({"_collection":[)" + makeEntryJson('1', '1') + "," +
                                             makeEntryJson('1', '2') + "]}"),
              "The UUID 00000000-0000-0000-0000-000000000001 occurs twice in a collection");
}

TEST(DOM_UUIDContainer, AKeyThatDiffersFromTheIdentityOfItsElementStaysAsItStandsInTheFile)
{
    const std::string json = R"({"_collection":[)" + makeEntryJson('1', '2') + "]}";
    const auto notes = fromJson<UUIDContainer<Note>>(json);
    EXPECT_EQ(notes.begin().getKey(), makeUUID('1'));
    EXPECT_EQ(notes.find(makeUUID('1'))->getUUID(), makeUUID('2'));
    EXPECT_EQ(notes.find(makeUUID('2')), nullptr);
    EXPECT_EQ(toJson(notes), json);
    EXPECT_NE(notes, makeNotes("2"));

    UUIDContainer<Note> changed = makeNotes("1");
    changed.find(makeUUID('1'))->setUUID(makeUUID('2'));
    EXPECT_EQ(changed, notes);
}

template <class T>
class DOM_UUIDContainerOf : public testing::Test {
};

using ElementTypes =
    testing::Types<HeaderFooterPair, Comment, Note, NamedTextStyle, NamedTableStyle, NamedShapeStyle>;
TYPED_TEST_SUITE(DOM_UUIDContainerOf, ElementTypes);

TYPED_TEST(DOM_UUIDContainerOf, Persists)
{
    UUIDContainer<TypeParam> container;
    expectPersists(container);
    container.insert(TypeParam(makeUUID('2')));
    container.insert(TypeParam(makeUUID('1')));
    expectPersists(container);
    EXPECT_EQ(UUIDContainer<TypeParam>(container), container);
    EXPECT_EQ(container.begin()->getUUID(), makeUUID('1'));
}

TEST(DOM_UUIDContainerDeathTest, InsertingAnIdentityTwiceFailsTheContract)
{
    UUIDContainer<Note> notes = makeNotes("1");
    EXPECT_DEATH(notes.insert(makeNote('1')),
                 R"(DOM_UUIDContainer:67: _collection.find\(uuid\) == _collection.end\(\))");
}

} // namespace
} // namespace QN::DOM::UUIDContainerTest
