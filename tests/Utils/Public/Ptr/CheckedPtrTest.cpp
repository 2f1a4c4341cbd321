#include "Utils/Public/Ptr/CheckedPtr.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace QN::CheckedPtrTest {

namespace {

using QN::CheckedPtr;

TEST(CheckedPtrTest, DefaultIsNull)
{
    EXPECT_FALSE(CheckedPtr<int>());
    EXPECT_FALSE(CheckedPtr<int>(nullptr));
    EXPECT_EQ(CheckedPtr<int>().get(), nullptr);
}

TEST(CheckedPtrTest, RefersToItsObject)
{
    std::string text = "abc";
    const CheckedPtr<std::string> ptr(&text);
    EXPECT_TRUE(ptr);
    EXPECT_EQ(ptr.get(), &text);
    EXPECT_EQ(&*ptr, &text);
    ptr->append("d");
    EXPECT_EQ(text, "abcd");
    static_assert(sizeof(ptr) == sizeof(&text));
    static_assert(std::is_trivially_copyable_v<CheckedPtr<std::string>>);
}

TEST(CheckedPtrTest, IsEqualToWhatRefersToTheSameObject)
{
    const int first = 1;
    const int second = 1;
    EXPECT_EQ(CheckedPtr<const int>(&first), CheckedPtr<const int>(&first));
    EXPECT_NE(CheckedPtr<const int>(&first), CheckedPtr<const int>(&second));
    EXPECT_TRUE(CheckedPtr<const int>() == nullptr);
    EXPECT_TRUE(CheckedPtr<const int>(&first) == &first);
}

TEST(CheckedPtrDeathTest, DereferencingNullBreaksTheContract)
{
    const CheckedPtr<std::string> ptr;
    EXPECT_DEATH(static_cast<void>(*ptr), "Utils/Public/Ptr/CheckedPtr:206: _ptr\n");
    EXPECT_DEATH(static_cast<void>(ptr->size()), "Utils/Public/Ptr/CheckedPtr:206: _ptr\n");
}

} // namespace

} // namespace QN::CheckedPtrTest
