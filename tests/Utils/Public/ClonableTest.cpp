#include "Utils/Public/Clonable.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>

#include "Support/AllocationCount.h"
#include "Support/TestFamily.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::ClonableTest {

namespace {

using namespace QN::Test;

class Watched;

/// A family of one class that reports its destruction.
class WatchedRoot : public QN::Clonable<WatchedRoot> {
public:
    using Types = QN::TypeList<Watched>;
    QN_FAMILY_ROOT(WatchedRoot)
};

class Watched final : public WatchedRoot {
public:
    explicit Watched(std::function<void()> onDestruction = {}) : _onDestruction(std::move(onDestruction)) {}
    Watched(const Watched&) {}
    Watched& operator=(const Watched&) = delete;
    ~Watched() override
    {
        if (_onDestruction) {
            _onDestruction();
        }
    }
    QN_CONCRETE(WatchedRoot)

private:
    std::function<void()> _onDestruction;
};
QN_DEFINE_CONCRETE(Watched, WatchedRoot)

template <class Pointer>
class ClonableTest : public testing::Test {
};

/// Each holds a clone of the root's family.
using Pointers = testing::Types<std::unique_ptr<Item>, std::shared_ptr<Item>>;
TYPED_TEST_SUITE(ClonableTest, Pointers);

TYPED_TEST(ClonableTest, CloneHasTheDynamicTypeAndTheValueOfItsSource)
{
    const Word word("a", 1.5);
    TypeParam clone;
    static_cast<const Item&>(word).cloneTo(clone);
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(dynamic_cast<const Word&>(*clone), word);
    EXPECT_NE(clone.get(), &word);
}

TYPED_TEST(ClonableTest, CloneHasTheIdentitiesOfItsSource)
{
    Group group;
    group._items.push_back(std::make_unique<Group>());
    TypeParam clone;
    group.cloneTo(clone);
    const auto& copy = dynamic_cast<const Group&>(*clone);
    EXPECT_EQ(copy.getID(), group.getID());
    EXPECT_EQ(copy.getUUID(), group.getUUID());
    EXPECT_EQ(copy._items[0]->getID(), group._items[0]->getID());
    EXPECT_EQ(dynamic_cast<const Group&>(*copy._items[0]).getUUID(),
              dynamic_cast<const Group&>(*group._items[0]).getUUID());
}

TYPED_TEST(ClonableTest, CloneSharesNothingWithItsSource)
{
    Group group;
    group._items.push_back(std::make_unique<Word>("inner"));
    group._items.push_back(nullptr);
    TypeParam clone;
    group.cloneTo(clone);
    dynamic_cast<Word&>(*group._items[0])._text = "changed";
    const auto& copy = dynamic_cast<const Group&>(*clone);
    ASSERT_EQ(copy._items.size(), 2U);
    EXPECT_EQ(dynamic_cast<const Word&>(*copy._items[0])._text, "inner");
    EXPECT_EQ(copy._items[1], nullptr);
}

TYPED_TEST(ClonableTest, ObjectMayBeClonedIntoThePointerThatHoldsIt)
{
    TypeParam pointer(new Word("a", 2));
    pointer->cloneTo(pointer);
    EXPECT_EQ(dynamic_cast<const Word&>(*pointer), Word("a", 2));
}

template <class Pointer>
class ClonableTargetTest : public testing::Test {
};

using WatchedPointers = testing::Types<std::unique_ptr<WatchedRoot>, std::shared_ptr<WatchedRoot>>;
TYPED_TEST_SUITE(ClonableTargetTest, WatchedPointers);

TYPED_TEST(ClonableTargetTest, FormerContentIsDestroyedAfterTheNewOneIsInPlace)
{
    TypeParam target;
    const WatchedRoot* former = nullptr;
    const WatchedRoot* atDestruction = nullptr;
    target.reset(new Watched([&] { atDestruction = target.get(); }));
    former = target.get();
    const Watched source;
    source.cloneTo(target);
    EXPECT_EQ(atDestruction, target.get());
    EXPECT_NE(atDestruction, nullptr);
    EXPECT_NE(atDestruction, former);
}

TEST(ClonableSchemeTest, CloneIsOneAllocation)
{
    const Dot dot;
    std::unique_ptr<Item> unique;
    std::shared_ptr<Item> shared;
    EXPECT_EQ(countAllocations([&] { dot.cloneTo(unique); }), 1U);
    EXPECT_EQ(countAllocations([&] { dot.cloneTo(shared); }), 1U);
}

TEST(ClonableSchemeTest, RootCarriesTheEmptyMarkOfFamilies)
{
    static_assert(std::is_empty_v<QN::ClonableBase>);
    static_assert(std::is_base_of_v<QN::ClonableBase, QN::Clonable<Item>>);
    static_assert(std::is_base_of_v<QN::Clonable<Item>, Item>);
    static_assert(std::is_abstract_v<QN::Clonable<Item>> &&
                  std::has_virtual_destructor_v<QN::Clonable<Item>>);
    static_assert(sizeof(QN::Clonable<Item>) == sizeof(void*));
}

} // namespace

} // namespace QN::ClonableTest
