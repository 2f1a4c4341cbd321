#include "Utils/Public/Ptr/SharedConstPtr.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace QN::SharedConstPtrTest {

namespace {

struct Base {
    virtual ~Base() = default;
    int number = 5;
};
struct Derived : Base {};

using Ptr = QN::SharedConstPtr<Base>;

TEST(SharedConstPtrTest, DefaultIsNull)
{
    EXPECT_FALSE(Ptr());
    EXPECT_TRUE(Ptr() == nullptr);
    EXPECT_TRUE(Ptr(nullptr) == nullptr);
    EXPECT_EQ(Ptr().get(), nullptr);
    EXPECT_EQ(Ptr().getPtr(), nullptr);
}

TEST(SharedConstPtrTest, GivesConstAccessOnly)
{
    static_assert(std::is_same_v<decltype(*std::declval<Ptr&>()), const Base&>);
    static_assert(std::is_same_v<decltype(std::declval<Ptr&>().operator->()), const Base*>);
    static_assert(std::is_same_v<decltype(std::declval<Ptr&>().get()), const Base*>);
    const Ptr ptr(std::make_shared<Base>());
    EXPECT_TRUE(ptr);
    EXPECT_EQ(ptr->number, 5);
    EXPECT_EQ((*ptr).number, 5);
}

TEST(SharedConstPtrTest, TakesSharedAndUniquePointersAlsoToDerivedObjects)
{
    EXPECT_TRUE(Ptr(std::make_unique<Base>()));
    EXPECT_TRUE(Ptr(std::make_unique<Derived>()));
    EXPECT_TRUE(Ptr(std::make_shared<Derived>()));
    const auto shared = std::make_shared<const Base>();
    const Ptr ptr = shared;
    EXPECT_EQ(ptr.get(), shared.get());
    EXPECT_EQ(ptr.getPtr(), shared);
}

TEST(SharedConstPtrTest, CopySharesTheObject)
{
    const Ptr source(std::make_shared<Base>());
    const Ptr copy(source); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.get(), source.get());
    EXPECT_EQ(source.getPtr().use_count(), 2);
    Ptr assigned;
    assigned = source;
    EXPECT_EQ(assigned.get(), source.get());
    const Ptr& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.get(), source.get());
}

TEST(SharedConstPtrTest, MoveLeavesNullBehind)
{
    Ptr source(std::make_shared<Base>());
    const Ptr moved(std::move(source));
    EXPECT_TRUE(moved);
    EXPECT_FALSE(source); // NOLINT(bugprone-use-after-move)
    static_assert(std::is_nothrow_move_constructible_v<Ptr>);
}

TEST(SharedConstPtrTest, ResetReplacesOrDropsTheObject)
{
    Ptr ptr(std::make_shared<Base>());
    const auto other = std::make_shared<const Base>();
    ptr.reset(other);
    EXPECT_EQ(ptr.getPtr(), other);
    ptr.reset();
    EXPECT_FALSE(ptr);
}

TEST(SharedConstPtrDeathTest, DereferencingNullBreaksTheContract)
{
    const Ptr ptr;
    EXPECT_DEATH(static_cast<void>(*ptr), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
    EXPECT_DEATH(static_cast<void>(ptr->number), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
}

} // namespace

} // namespace QN::SharedConstPtrTest
