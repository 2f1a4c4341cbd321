#include "Utils/Public/ClassScheme/Copy.h"

#include <boost/container/map.hpp>
#include <boost/unordered_map.hpp>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Support/AllocationCount.h"
#include "Support/TestFamily.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/Ptr/PropagateConstPtr.h"

namespace QN::CopyTest {

namespace {

using namespace QN::Test;

using ItemPtr = std::unique_ptr<Item>;

/// Throws when its copy number `failingCopy` is made.
struct Fragile {
    static inline int failingCopy = 0;
    static inline int objects = 0;

    Fragile() { ++objects; }
    Fragile(const Fragile& other) : number(other.number)
    {
        if (--failingCopy == 0) {
            throw std::runtime_error("no more copies");
        }
        ++objects;
    }
    Fragile& operator=(const Fragile&) = delete;
    ~Fragile() { --objects; }

    int number = 0;
};

/// Owns objects in several ways.
class Owner {
public:
    Owner() = default;
    QN_DEEP_COPY(Owner)

    std::string name;
    std::vector<std::unique_ptr<Fragile>> list;
    std::unique_ptr<Fragile> single;
    PropagateConstPtr<std::unique_ptr<Fragile>> propagating;
    std::shared_ptr<const Fragile> shared;

    BOOST_DESCRIBE_CLASS(Owner, (), (name, list, single, propagating, shared), (), ())
};
QN_DEFINE_DEEP_COPY(Owner)

Owner makeOwner(const std::string& name)
{
    Owner owner;
    owner.name = name;
    for (int number = 1; number <= 3; ++number) {
        owner.list.push_back(std::make_unique<Fragile>());
        owner.list.back()->number = number;
    }
    owner.list.push_back(nullptr);
    owner.single = std::make_unique<Fragile>();
    owner.single->number = 4;
    owner.propagating = std::make_unique<Fragile>();
    owner.propagating->number = 5;
    owner.shared = std::make_shared<const Fragile>();
    return owner;
}

void expectOwner(const Owner& owner, const std::string& name)
{
    EXPECT_EQ(owner.name, name);
    ASSERT_EQ(owner.list.size(), 4U);
    EXPECT_EQ(owner.list[2]->number, 3);
    EXPECT_EQ(owner.list[3], nullptr);
    EXPECT_EQ(owner.single->number, 4);
    EXPECT_EQ(owner.propagating->number, 5);
}

TEST(CopyTest, PlainValuesAreCopied)
{
    const UUID uuid = UUID::generate();
    EXPECT_EQ(deepCopy(uuid), uuid);
    EXPECT_EQ(deepCopy(5), 5);
    EXPECT_EQ(deepCopy(std::string("text")), "text");
    EXPECT_EQ(deepCopy(std::vector<int>{1, 2}), (std::vector<int>{1, 2}));
}

TEST(CopyTest, OwnedObjectIsCloned)
{
    const ItemPtr source = std::make_unique<Word>("a", 1);
    const ItemPtr copy = deepCopy(source);
    EXPECT_NE(copy, source);
    EXPECT_EQ(dynamic_cast<const Word&>(*copy), Word("a", 1));
    EXPECT_EQ(copy->getID(), source->getID());
    EXPECT_EQ(deepCopy(ItemPtr()), nullptr);
}

TEST(CopyTest, OwnedObjectOfNoFamilyIsCopied)
{
    const auto source = std::make_unique<std::string>("a");
    const auto copy = deepCopy(source);
    EXPECT_NE(copy, source);
    EXPECT_EQ(*copy, "a");
}

TEST(CopyTest, SharedObjectIsShared)
{
    const auto source = std::make_shared<const std::string>("a");
    EXPECT_EQ(deepCopy(source), source);
}

TEST(CopyTest, ObjectOfAConstPropagatingPointerIsCopied)
{
    const PropagateConstPtr<std::unique_ptr<std::string>> source(std::make_unique<std::string>("a"));
    const auto copy = deepCopy(source);
    EXPECT_NE(copy.get(), source.get());
    EXPECT_EQ(*copy, "a");
}

TEST(CopyTest, VectorKeepsNullElementsAtTheirPlaces)
{
    std::vector<ItemPtr> source;
    source.push_back(nullptr);
    source.push_back(std::make_unique<Word>("a"));
    source.push_back(nullptr);
    source.push_back(std::make_unique<Group>());
    const std::vector<ItemPtr> copy = deepCopyImpl(source, QNDummy());
    ASSERT_EQ(copy.size(), 4U);
    EXPECT_EQ(copy[0], nullptr);
    EXPECT_EQ(copy[2], nullptr);
    EXPECT_NE(copy[1], source[1]);
    EXPECT_TRUE(areDeeplyEqual(*copy[1], *source[1]));
    EXPECT_TRUE(areDeeplyEqual(*copy[3], *source[3]));
    EXPECT_EQ(deepCopy(source).size(), 4U);
}

TEST(CopyTest, VectorIsCopiedInOneAllocationBesideThoseOfItsElements)
{
    std::vector<std::unique_ptr<Item>> source;
    for (int index = 0; index < 100; ++index) {
        source.push_back(std::make_unique<Dot>());
    }
    EXPECT_EQ(countAllocations([&] { deepCopyImpl(source, QNDummy()); }), 101U);
}

TEST(CopyTest, EmptyVectorStaysEmpty)
{
    EXPECT_TRUE(deepCopyImpl(std::vector<ItemPtr>(), QNDummy()).empty());
}

TEST(CopyTest, NestedOwnersAreCopiedThroughout)
{
    std::vector<std::pair<int, std::vector<std::unique_ptr<int>>>> source(1);
    source[0].first = 7;
    source[0].second.push_back(std::make_unique<int>(8));
    const auto copy = deepCopy(source);
    EXPECT_EQ(copy[0].first, 7);
    EXPECT_EQ(*copy[0].second[0], 8);
    EXPECT_NE(copy[0].second[0], source[0].second[0]);
}

template <class Map>
class CopyMapTest : public testing::Test {
};

using Maps = testing::Types<std::map<int, ItemPtr>, boost::unordered_map<int, ItemPtr>,
                            boost::container::map<int, ItemPtr>>;
TYPED_TEST_SUITE(CopyMapTest, Maps);

TYPED_TEST(CopyMapTest, ValuesAreCopiedDeeply)
{
    TypeParam source;
    source.emplace(1, std::make_unique<Word>("a"));
    source.emplace(2, nullptr);
    source.emplace(3, std::make_unique<Dot>());
    const TypeParam copy = copyMap(source);
    ASSERT_EQ(copy.size(), 3U);
    EXPECT_EQ(copy.at(2), nullptr);
    EXPECT_NE(copy.at(1), source.at(1));
    EXPECT_TRUE(areDeeplyEqual(*copy.at(1), *source.at(1)));
    EXPECT_TRUE(areDeeplyEqual(*copy.at(3), *source.at(3)));
    EXPECT_EQ(deepCopy(source).size(), 3U);
}

TEST(CopyMapTest, PlainMapsAreCopied)
{
    const std::map<int, std::string> source{{1, "a"}};
    EXPECT_EQ(copyMap(source), source);
    EXPECT_EQ(deepCopy(source), source);
}

TEST(CopyTest, CopyOfAnOwnerSharesWhatIsSharedAndNothingElse)
{
    const Owner source = makeOwner("source");
    const Owner copy(source);
    expectOwner(copy, "source");
    EXPECT_NE(copy.list[0], source.list[0]);
    EXPECT_NE(copy.single, source.single);
    EXPECT_NE(copy.propagating.get(), source.propagating.get());
    EXPECT_EQ(copy.shared, source.shared);
}

TEST(CopyTest, AssignmentReplacesEverything)
{
    const Owner source = makeOwner("source");
    Owner target = makeOwner("target");
    target.list.resize(1);
    target = source;
    expectOwner(target, "source");
    EXPECT_NE(target.list[0], source.list[0]);
}

TEST(CopyTest, AssignmentToItselfChangesNothing)
{
    Owner owner = makeOwner("self");
    const Fragile* const single = owner.single.get();
    const Owner& same = owner;
    owner = same;
    expectOwner(owner, "self");
    EXPECT_EQ(owner.single.get(), single);
}

TEST(CopyTest, MoveTakesTheObjectsThemselves)
{
    Owner source = makeOwner("source");
    const Fragile* const single = source.single.get();
    Owner target(std::move(source));
    EXPECT_EQ(target.single.get(), single);
    Owner assigned;
    assigned = std::move(target);
    EXPECT_EQ(assigned.single.get(), single);
    expectOwner(assigned, "source");
    static_assert(std::is_nothrow_move_constructible_v<Owner> && std::is_nothrow_move_assignable_v<Owner>);
}

TEST(CopyTest, AssignmentThatFailsLeavesTheTargetAndLeaksNothing)
{
    const Owner source = makeOwner("source");
    Owner target = makeOwner("target");
    const int objects = Fragile::objects;
    const Fragile* const single = target.single.get();
    // Five objects are copied; each of the copies fails once.
    for (int failing = 1; failing <= 5; ++failing) {
        Fragile::failingCopy = failing;
        EXPECT_THROW(target = source, std::runtime_error) << failing;
        expectOwner(target, "target");
        EXPECT_EQ(target.single.get(), single);
        EXPECT_EQ(Fragile::objects, objects);
    }
    Fragile::failingCopy = 6;
    target = source;
    expectOwner(target, "source");
    EXPECT_EQ(Fragile::objects, objects - 1) << "the target's own shared object is gone";
}

} // namespace

} // namespace QN::CopyTest
