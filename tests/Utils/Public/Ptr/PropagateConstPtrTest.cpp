#include "Utils/Public/Ptr/PropagateConstPtr.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace QN::PropagateConstPtrTest {

namespace {

struct Base {
    virtual ~Base() = default;
    int number = 5;
};
struct Derived : Base {};

using Ptr = QN::PropagateConstPtr<std::unique_ptr<Base>>;

TEST(PropagateConstPtrTest, DefaultIsNull)
{
    const Ptr ptr;
    EXPECT_FALSE(ptr);
    EXPECT_TRUE(ptr == nullptr);
    EXPECT_EQ(ptr.get(), nullptr);
    EXPECT_EQ(ptr.getPtr(), nullptr);
    EXPECT_TRUE(Ptr(nullptr) == nullptr);
}

TEST(PropagateConstPtrTest, ConstnessOfTheHolderReachesThePointee)
{
    static_assert(std::is_same_v<decltype(*std::declval<Ptr&>()), Base&>);
    static_assert(std::is_same_v<decltype(*std::declval<const Ptr&>()), const Base&>);
    static_assert(std::is_same_v<decltype(std::declval<Ptr&>().operator->()), Base*>);
    static_assert(std::is_same_v<decltype(std::declval<const Ptr&>().operator->()), const Base*>);
    static_assert(std::is_same_v<decltype(std::declval<Ptr&>().get()), Base*>);
    static_assert(std::is_same_v<decltype(std::declval<const Ptr&>().get()), const Base*>);
}

TEST(PropagateConstPtrTest, GivesAccessToThePointee)
{
    Ptr ptr(std::make_unique<Base>());
    ptr->number = 6;
    EXPECT_EQ((*std::as_const(ptr)).number, 6);
    EXPECT_EQ(std::as_const(ptr)->number, 6);
    EXPECT_EQ(&*ptr, ptr.get());
    EXPECT_TRUE(ptr);
    EXPECT_FALSE(ptr == nullptr);
}

TEST(PropagateConstPtrTest, TakesAPointerToADerivedObject)
{
    auto derived = std::make_unique<Derived>();
    const Base* const object = derived.get();
    const Ptr ptr = std::move(derived);
    EXPECT_EQ(ptr.get(), object);
}

TEST(PropagateConstPtrTest, MoveLeavesNullBehind)
{
    Ptr source(std::make_unique<Base>());
    const Base* const object = source.get();
    Ptr moved(std::move(source));
    EXPECT_EQ(moved.get(), object);
    EXPECT_FALSE(source); // NOLINT(bugprone-use-after-move)
    Ptr assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.get(), object);
    static_assert(std::is_nothrow_move_constructible_v<Ptr> && std::is_nothrow_move_assignable_v<Ptr>);
    static_assert(!std::is_copy_constructible_v<Ptr>);
}

TEST(PropagateConstPtrTest, ResetReplacesOrDropsThePointee)
{
    Ptr ptr(std::make_unique<Base>());
    auto replacement = std::make_unique<Base>();
    const Base* const object = replacement.get();
    ptr.reset(std::move(replacement));
    EXPECT_EQ(ptr.get(), object);
    ptr.reset();
    EXPECT_FALSE(ptr);
}

TEST(PropagateConstPtrTest, WrappedPointerCanBeTaken)
{
    Ptr ptr(std::make_unique<Base>());
    const std::unique_ptr<Base> taken = std::move(ptr.getPtr());
    EXPECT_TRUE(taken);
    EXPECT_FALSE(ptr);
}

TEST(PropagateConstPtrDeathTest, DereferencingNullBreaksTheContract)
{
    Ptr ptr;
    EXPECT_DEATH(static_cast<void>(*ptr), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
    EXPECT_DEATH(static_cast<void>(ptr->number), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
    EXPECT_DEATH(static_cast<void>(*std::as_const(ptr)), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
    EXPECT_DEATH(static_cast<void>(std::as_const(ptr)->number), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
}

} // namespace

} // namespace QN::PropagateConstPtrTest
