#include "Utils/Public/ReadonlyVector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <numeric>
#include <string>
#include <type_traits>
#include <vector>

namespace QN::ReadonlyVectorTest {

namespace {

using Items = std::vector<std::unique_ptr<int>>;
using View = QN::ReadonlyPtrVector<int>;

Items makeItems(std::initializer_list<int> values)
{
    Items items;
    for (const int value : values) {
        items.push_back(std::make_unique<int>(value));
    }
    return items;
}

TEST(ReadonlyVectorTest, ViewOfAnEmptyVectorIsEmpty)
{
    const Items items;
    const View view(items);
    EXPECT_EQ(view.size(), 0U);
    EXPECT_TRUE(view.empty());
    EXPECT_EQ(view.begin(), view.end());
}

TEST(ReadonlyVectorTest, ReadsItsElements)
{
    const Items items = makeItems({5, 6, 7});
    const View view(items);
    EXPECT_EQ(view.size(), 3U);
    EXPECT_FALSE(view.empty());
    EXPECT_EQ(view[0], 5);
    EXPECT_EQ(view[2], 7);
    EXPECT_EQ(view.front(), 5);
    EXPECT_EQ(view.back(), 7);
    EXPECT_EQ(std::vector<int>(view.begin(), view.end()), (std::vector<int>{5, 6, 7}));
}

TEST(ReadonlyVectorTest, RefersToTheElementsAndCopiesNone)
{
    const Items items = makeItems({5});
    const View view(items);
    EXPECT_EQ(&view[0], items[0].get());
    EXPECT_EQ(&*view.begin(), items[0].get());
}

TEST(ReadonlyVectorTest, SeesTheVectorAsItIsNow)
{
    Items items = makeItems({5});
    const View view(items);
    items.push_back(std::make_unique<int>(6));
    EXPECT_EQ(view.size(), 2U);
    EXPECT_EQ(view.back(), 6);
}

TEST(ReadonlyVectorTest, GivesNoWayToChangeOrTakeAnElement)
{
    static_assert(std::is_same_v<decltype(std::declval<View&>()[0]), const int&>);
    static_assert(std::is_same_v<decltype(std::declval<View&>().front()), const int&>);
    static_assert(std::is_same_v<decltype(std::declval<View&>().back()), const int&>);
    static_assert(std::is_same_v<decltype(*std::declval<View&>().begin()), const int&>);
    static_assert(!std::is_constructible_v<View, Items>);
    static_assert(std::is_convertible_v<Items&, View>);
}

TEST(ReadonlyVectorTest, IteratorsReachAnyElement)
{
    static_assert(std::random_access_iterator<View::const_iterator>);
    const Items items = makeItems({3, 1, 2});
    const View view(items);
    auto item = view.begin();
    EXPECT_EQ(*item++, 3);
    EXPECT_EQ(*item, 1);
    EXPECT_EQ(*++item, 2);
    EXPECT_EQ(*item--, 2);
    EXPECT_EQ(*--item, 3);
    item += 2;
    EXPECT_EQ(*item, 2);
    item -= 1;
    EXPECT_EQ(*item, 1);
    EXPECT_EQ(item[1], 2);
    EXPECT_EQ(item[-1], 3);
    EXPECT_EQ(*(view.begin() + 1), 1);
    EXPECT_EQ(*(1 + view.begin()), 1);
    EXPECT_EQ(*(view.end() - 1), 2);
    EXPECT_EQ(view.end() - view.begin(), 3);
    EXPECT_LT(view.begin(), view.end());
    EXPECT_GE(view.end(), view.begin());
    EXPECT_EQ(std::distance(view.begin(), std::max_element(view.begin(), view.end())), 0);
    EXPECT_EQ(std::accumulate(view.begin(), view.end(), 0), 6);
}

TEST(ReadonlyVectorTest, IteratorReachesTheMembersOfAnElement)
{
    std::vector<std::unique_ptr<std::string>> texts;
    texts.push_back(std::make_unique<std::string>("abc"));
    const QN::ReadonlyPtrVector<std::string> view(texts);
    EXPECT_EQ(view.begin()->size(), 3U);
}

TEST(ReadonlyVectorTest, WorksWithAnyFunctorOnTheElements)
{
    struct Doubled {
        int operator()(int value) const { return 2 * value; }
    };
    const std::vector<int> values{1, 2, 3};
    const QN::ReadonlyVector<std::vector<int>, Doubled> view(values);
    EXPECT_EQ(view[1], 4);
    EXPECT_EQ(view.front(), 2);
    EXPECT_EQ(view.back(), 6);
    EXPECT_EQ(std::accumulate(view.begin(), view.end(), 0), 12);
}

TEST(ReadonlyVectorDeathTest, IndexPastTheEndBreaksTheContract)
{
    const Items items = makeItems({5});
    const View view(items);
    EXPECT_DEATH(static_cast<void>(view[1]), "Utils/Public/ReadonlyVector:449: index < size\\(\\)\n");
}

TEST(ReadonlyVectorDeathTest, FrontAndBackOfAnEmptyVectorBreakTheContract)
{
    const Items items;
    const View view(items);
    EXPECT_DEATH(static_cast<void>(view.front()),
                 "Utils/Public/ReadonlyVector:547: !_items.get\\(\\).empty\\(\\)\n");
    EXPECT_DEATH(static_cast<void>(view.back()),
                 "Utils/Public/ReadonlyVector:547: !_items.get\\(\\).empty\\(\\)\n");
    EXPECT_DEATH(static_cast<void>(view[0]), "Utils/Public/ReadonlyVector:449: index < size\\(\\)\n");
}

TEST(ReadonlyVectorDeathTest, ANullElementCanBeSeenBeforeItIsRead)
{
    Items items = makeItems({5});
    items.push_back(nullptr);
    const View view(items);
    EXPECT_EQ(view.getPointer(0), items[0].get());
    EXPECT_EQ(view.getPointer(1), nullptr);
    EXPECT_TRUE(std::is_const_v<std::remove_pointer_t<decltype(view.getPointer(0))>>);
    EXPECT_DEATH(static_cast<void>(view.getPointer(2)),
                 "Utils/Public/ReadonlyVector:449: index < size\\(\\)\n");
}

TEST(ReadonlyVectorDeathTest, ReadingANullElementBreaksTheContract)
{
    Items items = makeItems({5});
    items.push_back(nullptr);
    const View view(items);
    EXPECT_EQ(view.size(), 2U);
    EXPECT_DEATH(static_cast<void>(view[1]), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
    EXPECT_DEATH(static_cast<void>(view.back()), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
    EXPECT_DEATH(static_cast<void>(*(view.begin() + 1)), "Utils/Public/Ptr/PtrUtils:254: plainPtr\n");
}

} // namespace

} // namespace QN::ReadonlyVectorTest
