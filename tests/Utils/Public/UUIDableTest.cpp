#include "Utils/Public/UUIDable.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace QN::UUIDableTest {

namespace {

using QN::UUID;
using QN::UUIDable;

const UUID Known("219be34f-66e7-4590-8db5-375443207e49");

TEST(UUIDableTest, NewObjectsGetIdentitiesOfTheirOwn)
{
    const UUIDable first;
    const UUIDable second;
    EXPECT_TRUE(first.getUUID());
    EXPECT_TRUE(second.getUUID());
    EXPECT_NE(first.getUUID(), second.getUUID());
    EXPECT_FALSE(first == second);
}

TEST(UUIDableTest, TakesAGivenIdentityEvenTheNilOne)
{
    EXPECT_EQ(UUIDable(Known).getUUID(), Known);
    EXPECT_FALSE(UUIDable(UUID()).getUUID());
    static_assert(!std::is_convertible_v<UUID, UUIDable>);
}

TEST(UUIDableTest, CopyHasTheIdentityOfItsSource)
{
    const UUIDable source;
    const UUIDable copy(source);
    EXPECT_EQ(copy.getUUID(), source.getUUID());
    EXPECT_TRUE(copy == source);
    UUIDable assigned;
    assigned = source;
    EXPECT_EQ(assigned.getUUID(), source.getUUID());
    const UUIDable& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.getUUID(), source.getUUID());
}

TEST(UUIDableTest, MovedObjectKeepsItsIdentity)
{
    UUIDable source(Known);
    const UUIDable moved(std::move(source));
    EXPECT_EQ(moved.getUUID(), Known);
    UUIDable other(Known);
    UUIDable assigned;
    assigned = std::move(other);
    EXPECT_EQ(assigned.getUUID(), Known);
    static_assert(std::is_nothrow_move_constructible_v<UUIDable> &&
                  std::is_nothrow_move_assignable_v<UUIDable>);
}

TEST(UUIDableTest, IdentityCanBeReplaced)
{
    UUIDable object;
    object.setUUID(Known);
    EXPECT_EQ(object.getUUID(), Known);
    EXPECT_TRUE(object == UUIDable(Known));
}

TEST(UUIDableTest, IsDestroyedThroughItsBase)
{
    struct Derived : UUIDable {
        explicit Derived(bool& flag) : destroyed(flag) {}
        ~Derived() override { destroyed = true; }
        bool& destroyed;
    };
    bool destroyed = false;
    std::unique_ptr<UUIDable> object = std::make_unique<Derived>(destroyed);
    object.reset();
    EXPECT_TRUE(destroyed);
}

} // namespace

} // namespace QN::UUIDableTest
