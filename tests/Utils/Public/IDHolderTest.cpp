#include "Utils/Public/IDHolder.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace QN::IDHolderTest {

namespace {

using QN::IDHolder;

TEST(IDHolderTest, SeparateObjectsDiffer)
{
    const IDHolder first;
    const IDHolder second;
    EXPECT_NE(first.getID(), second.getID());
    EXPECT_EQ(first.getID(), first.getID());
}

TEST(IDHolderTest, CopySharesTheTokenOfItsSource)
{
    const IDHolder source;
    const IDHolder copy(source);
    EXPECT_EQ(copy.getID(), source.getID());
    IDHolder assigned;
    EXPECT_NE(assigned.getID(), source.getID());
    assigned = source;
    EXPECT_EQ(assigned.getID(), source.getID());
    const IDHolder& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.getID(), source.getID());
}

TEST(IDHolderTest, MovedFromObjectKeepsItsToken)
{
    IDHolder source;
    const auto token = source.getID();
    const IDHolder moved(std::move(source));
    EXPECT_EQ(moved.getID(), token);
    EXPECT_EQ(source.getID(), token); // NOLINT(bugprone-use-after-move)
}

TEST(IDHolderTest, CostsEightBytesAndNoAllocation)
{
    static_assert(sizeof(IDHolder) == 8);
    static_assert(std::is_trivially_copyable_v<IDHolder>);
}

TEST(IDHolderTest, ObjectsOfSeveralThreadsDiffer)
{
    constexpr std::size_t Count = 2000;
    std::vector<std::vector<IDHolder>> made(4);
    std::vector<std::thread> threads;
    for (std::vector<IDHolder>& holders : made) {
        threads.emplace_back([&holders] { holders.resize(Count); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::set<std::uint64_t> tokens;
    for (const std::vector<IDHolder>& holders : made) {
        for (const IDHolder& holder : holders) {
            tokens.insert(holder.getID());
        }
    }
    EXPECT_EQ(tokens.size(), made.size() * Count);
}

} // namespace

} // namespace QN::IDHolderTest
