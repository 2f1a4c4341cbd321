#include "CollaborationUtils/Public/CU_CollectionWithTombstones.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "Support/RoundTrip.h"

namespace QN::CollaborationUtils::CU_CollectionWithTombstonesTest {

struct Word {
    std::string _text;
    friend bool operator==(const Word&, const Word&) = default;
};
BOOST_DESCRIBE_STRUCT(Word, (), (_text))

namespace {

using namespace QN::Test;

using Words = std::vector<std::unique_ptr<Word>>;
using Collection = CollectionWithTombstones<Words>;

Collection makeCollection(const std::vector<std::string>& texts)
{
    Words words;
    for (const std::string& text : texts) {
        words.push_back(std::make_unique<Word>(Word{text}));
    }
    return Collection(std::move(words));
}

TEST(CU_CollectionWithTombstones, IsEmptyByDefault)
{
    EXPECT_TRUE(Collection().getElements().empty());
    EXPECT_EQ(Collection().getTombstones(), TombstonesStorage());
    EXPECT_EQ(toJson(Collection()), R"({"object":{"_elements":[],"_tombstones":{"_tombstones":[]}}})");
}

TEST(CU_CollectionWithTombstones, WritesElementsAsPointersAndTombstonesNestedInTombstones)
{
    Collection collection = makeCollection({"a"});
    collection.getElements().push_back(nullptr);
    collection.getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
    EXPECT_EQ(toJson(collection),
              R"({"object":{"_elements":[{"ptr_wrapper":{"valid":1,"data":{"_text":"a"}}},)"
              R"({"ptr_wrapper":{"valid":0}}],"_tombstones":{"_tombstones":[)"
              R"({"_begin":{"_value":1},"_end":{"_value":2}}]}}})");
    expectPersists(collection);
}

TEST(CU_CollectionWithTombstones, ACopySharesNoElement)
{
    const Collection collection = makeCollection({"a", "b"});
    Collection copy = collection;
    EXPECT_EQ(copy, collection);
    copy.getElements()[0]->_text = "c";
    EXPECT_EQ(collection.getElements()[0]->_text, "a");
    EXPECT_NE(copy, collection);

    Collection assigned = makeCollection({"x"});
    assigned = collection;
    EXPECT_EQ(assigned, collection);
    EXPECT_NE(assigned.getElements()[0], collection.getElements()[0]);
}

TEST(CU_CollectionWithTombstones, SelfAssignmentChangesNothing)
{
    Collection collection = makeCollection({"a"});
    const Word* const word = collection.getElements()[0].get();
    const Collection& same = collection;
    collection = same;
    EXPECT_EQ(collection.getElements()[0].get(), word);
}

TEST(CU_CollectionWithTombstones, MovesWithoutThrowing)
{
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<Collection>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<Collection>);
    Collection collection = makeCollection({"a"});
    const Word* const word = collection.getElements()[0].get();
    const Collection moved = std::move(collection);
    EXPECT_EQ(moved.getElements()[0].get(), word);
}

TEST(CU_CollectionWithTombstones, EqualElementsWithOtherTombstonesAreUnequal)
{
    Collection collection = makeCollection({"a"});
    const Collection other = collection;
    collection.getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
    EXPECT_NE(collection, other);
}

TEST(CU_CollectionWithTombstones, ComparesElementsByValueAndNumber)
{
    EXPECT_EQ(makeCollection({"a", "b"}), makeCollection({"a", "b"}));
    EXPECT_NE(makeCollection({"a", "b"}), makeCollection({"a", "c"}));
    EXPECT_NE(makeCollection({"a"}), makeCollection({"a", "b"}));
}

TEST(CU_CollectionWithTombstones, ANullElementIsEqualToANullElementOnly)
{
    Collection collection = makeCollection({"a"});
    collection.getElements()[0].reset();
    EXPECT_EQ(collection, Collection(collection));
    EXPECT_NE(collection, makeCollection({"a"}));
}

} // namespace
} // namespace QN::CollaborationUtils::CU_CollectionWithTombstonesTest
