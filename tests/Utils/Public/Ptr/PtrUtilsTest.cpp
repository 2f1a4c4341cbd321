#include "Utils/Public/Ptr/PtrUtils.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace QN::PtrUtilsTest {

namespace {

using QN::checkedDeref;
using QN::derefRequired;

struct Counted : boost::intrusive_ref_counter<Counted> {
    int number = 5;
};

TEST(PtrUtilsTest, GivesThePointeeOfAnyPointer)
{
    int number = 5;
    EXPECT_EQ(&derefRequired(&number), &number);
    EXPECT_EQ(checkedDeref(&number), &number);
    const auto unique = std::make_unique<int>(5);
    EXPECT_EQ(&derefRequired(unique), unique.get());
    EXPECT_EQ(checkedDeref(unique), unique.get());
    const auto shared = std::make_shared<const int>(5);
    EXPECT_EQ(&derefRequired(shared), shared.get());
    const boost::intrusive_ptr<Counted> intrusive(new Counted);
    EXPECT_EQ(derefRequired(intrusive).number, 5);
}

TEST(PtrUtilsTest, ConstnessIsThatOfThePointee)
{
    static_assert(std::is_same_v<decltype(derefRequired(std::declval<const std::unique_ptr<int>&>())), int&>);
    static_assert(
        std::is_same_v<decltype(derefRequired(std::declval<std::shared_ptr<const int>&>())), const int&>);
}

TEST(PtrUtilsDeathTest, NullPointerToNonConstBreaksTheContractOfLine246)
{
    const std::unique_ptr<int> unique;
    const std::shared_ptr<int> shared;
    const boost::intrusive_ptr<Counted> intrusive;
    int* const plain = nullptr;
    EXPECT_DEATH(derefRequired(unique), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
    EXPECT_DEATH(derefRequired(shared), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
    EXPECT_DEATH(derefRequired(intrusive), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
    EXPECT_DEATH(derefRequired(plain), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
    EXPECT_DEATH(checkedDeref(plain), "Utils/Public/Ptr/PtrUtils:246: plainPtr\n");
}

TEST(PtrUtilsDeathTest, NullPointerToConstBreaksTheContractOfLine254)
{
    const std::shared_ptr<const int> shared;
    const int* const plain = nullptr;
    EXPECT_DEATH(derefRequired(shared), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
    EXPECT_DEATH(derefRequired(plain), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
    EXPECT_DEATH(checkedDeref(plain), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
}

} // namespace

} // namespace QN::PtrUtilsTest
