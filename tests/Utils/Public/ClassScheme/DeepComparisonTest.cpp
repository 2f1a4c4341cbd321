#include "Utils/Public/ClassScheme/DeepComparison.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Support/AllocationCount.h"
#include "Support/TestFamily.h"

namespace QN::DeepComparisonTest {

namespace {

using namespace QN::Test;
using QN::NanOrder;

const float NaN = std::numeric_limits<float>::quiet_NaN();

Dot makeDot(int weight, int radius)
{
    Dot dot;
    dot._weight = weight;
    dot._radius = radius;
    return dot;
}

TEST(DeepComparisonTest, EqualObjectsOfOneTypeAreDeeplyEqual)
{
    EXPECT_TRUE(areDeeplyEqual(Word("a", 1), Word("a", 1)));
    EXPECT_TRUE(areDeeplyEqual(makeDot(1, 2), makeDot(1, 2)));
    const Word word("a", 1);
    EXPECT_TRUE(areDeeplyEqual(word, word));
}

TEST(DeepComparisonTest, EveryMemberCountsThoseOfBasesIncluded)
{
    EXPECT_FALSE(areDeeplyEqual(Word("a", 1), Word("b", 1)));
    EXPECT_FALSE(areDeeplyEqual(Word("a", 1), Word("a", 2)));
    EXPECT_FALSE(areDeeplyEqual(makeDot(1, 2), makeDot(3, 2)));
    EXPECT_FALSE(areDeeplyEqual(Group(), Group()));
    EXPECT_TRUE(areDeeplyEqual(Group(QN::UUID()), Group(QN::UUID())));
}

TEST(DeepComparisonTest, IdentityAtRunTimeDoesNotCount)
{
    const Word first;
    const Word second;
    ASSERT_NE(first.getID(), second.getID());
    EXPECT_TRUE(areDeeplyEqual(first, second));
}

TEST(DeepComparisonTest, DifferentTypesAreUnequalWithoutAnyComparisonOfMembers)
{
    const int comparisons = Word::comparisons;
    EXPECT_FALSE(areDeeplyEqual(Word(), makeDot(0, 0)));
    EXPECT_FALSE(areDeeplyEqual(Group(), Word()));
    EXPECT_FALSE(areDeeplyEqual(Dot(), Ring()));
    EXPECT_EQ(Word::comparisons, comparisons);
    EXPECT_TRUE(areDeeplyEqual(Word(), Word()));
    EXPECT_EQ(Word::comparisons, comparisons + 1);
}

TEST(DeepComparisonTest, OwnedObjectsAreComparedThroughTheirPointers)
{
    Group first((QN::UUID()));
    first._items.push_back(std::make_unique<Word>("a"));
    first._items.push_back(nullptr);
    Group second(first);
    EXPECT_TRUE(areDeeplyEqual(first, second));
    dynamic_cast<Word&>(*second._items[0])._text = "b";
    EXPECT_FALSE(areDeeplyEqual(first, second));
}

TEST(DeepComparisonTest, NullEqualsNullAlone)
{
    Group nulls((QN::UUID()));
    nulls._items.resize(2);
    Group other(nulls);
    EXPECT_TRUE(areDeeplyEqual(nulls, other));
    other._items[1] = std::make_unique<Word>();
    EXPECT_FALSE(areDeeplyEqual(nulls, other));
    EXPECT_FALSE(areDeeplyEqual(other, nulls));
}

TEST(DeepComparisonTest, ListsOfDifferentLengthAreUnequal)
{
    Group shorter((QN::UUID()));
    shorter._items.push_back(std::make_unique<Word>());
    Group longer(shorter);
    longer._items.push_back(std::make_unique<Word>());
    EXPECT_FALSE(areDeeplyEqual(shorter, longer));
    EXPECT_FALSE(areDeeplyEqual(longer, shorter));
}

TEST(DeepComparisonTest, NaNIsUnequalToItselfBetweenTwoObjects)
{
    EXPECT_FALSE(areDeeplyEqual(Flat(NaN), Flat(NaN)));
}

/// What another library would hold for a type.
struct TypeRecord : std::type_info {
    explicit TypeRecord(const char* name) : std::type_info(name) {}
};

TEST(DeepComparisonTest, RecordsOfATypeAreToldByTheirTextsUnlessTheTypeIsPrivate)
{
    const std::string shared = "N2QN4WordE";
    const std::string sameShared = shared;
    EXPECT_TRUE(TypeRecord(shared.c_str()) == TypeRecord(sameShared.c_str()));
    EXPECT_FALSE(TypeRecord(shared.c_str()) == TypeRecord("N2QN3DotE"));
    const std::string secret = "*N2QN12_GLOBAL__N_14WordE";
    const std::string sameSecret = secret;
    EXPECT_TRUE(TypeRecord(secret.c_str()) == TypeRecord(secret.c_str()));
    EXPECT_FALSE(TypeRecord(secret.c_str()) == TypeRecord(sameSecret.c_str()));
}

TEST(DeepComparisonTest, OrderLooksAtTheTypesFirstAndThenNotAtTheValues)
{
    for (const float left : {-1.0F, 0.0F, 1.0F, NaN, std::numeric_limits<float>::infinity()}) {
        for (const float right : {-1.0F, 0.0F, 1.0F, NaN, std::numeric_limits<float>::infinity()}) {
            EXPECT_TRUE(areDeeplyLess(Striped(left), Flat(right))) << left << " " << right;
            EXPECT_FALSE(areDeeplyLess(Flat(left), Striped(right))) << left << " " << right;
            EXPECT_EQ(compareDeeply(Striped(left), Flat(right), NanOrder::Last), std::partial_ordering::less);
            EXPECT_EQ(compareDeeply(Flat(left), Striped(right), NanOrder::Last),
                      std::partial_ordering::greater);
        }
    }
}

TEST(DeepComparisonTest, ObjectsOfOneTypeAreOrderedByTheirClass)
{
    EXPECT_TRUE(areDeeplyLess(Flat(1), Flat(2)));
    EXPECT_FALSE(areDeeplyLess(Flat(2), Flat(1)));
    EXPECT_TRUE(areDeeplyLess(Flat(1, "a"), Flat(1, "b")));
    EXPECT_TRUE(areDeeplyLess(Flat(1, "b"), Flat(2, "a")));
    EXPECT_TRUE(areDeeplyLess(Striped(1, {1, 2}), Striped(1, {1, 3})));
    EXPECT_TRUE(areDeeplyLess(Striped(1, {1}), Striped(1, {1, 3})));
}

TEST(DeepComparisonTest, EqualObjectsAreNotLess)
{
    const Flat flat(1, "a");
    EXPECT_FALSE(areDeeplyLess(flat, flat));
    EXPECT_FALSE(areDeeplyLess(flat, Flat(1, "a")));
    EXPECT_FALSE(areDeeplyLess(Striped(1, {2}), Striped(1, {2})));
    EXPECT_EQ(compareDeeply(flat, Flat(1, "a"), NanOrder::Unordered), std::partial_ordering::equivalent);
}

TEST(DeepComparisonTest, NaNEndsTheOrderAsNotLess)
{
    EXPECT_FALSE(areDeeplyLess(Flat(NaN, "a"), Flat(NaN, "b")));
    EXPECT_FALSE(areDeeplyLess(Flat(NaN, "b"), Flat(NaN, "a")));
    EXPECT_FALSE(areDeeplyLess(Flat(NaN), Flat(1)));
    EXPECT_FALSE(areDeeplyLess(Flat(1), Flat(NaN)));
}

TEST(DeepComparisonTest, NaNMayBeOrderedLastAndEquivalent)
{
    EXPECT_EQ(compareDeeply(Flat(1), Flat(NaN), NanOrder::Last), std::partial_ordering::less);
    EXPECT_EQ(compareDeeply(Flat(NaN), Flat(1), NanOrder::Last), std::partial_ordering::greater);
    EXPECT_EQ(compareDeeply(Flat(NaN, "a"), Flat(-NaN, "a"), NanOrder::Last),
              std::partial_ordering::equivalent);
    EXPECT_EQ(compareDeeply(Flat(NaN, "a"), Flat(NaN, "b"), NanOrder::Last), std::partial_ordering::less);
}

TEST(DeepComparisonTest, OrderIsStrictAndTotalOverAFamily)
{
    std::vector<std::unique_ptr<Tone>> tones;
    for (const float level : {-1.0F, 0.0F, 2.0F}) {
        tones.push_back(std::make_unique<Striped>(level));
        tones.push_back(std::make_unique<Striped>(level, std::vector<float>{1}));
        tones.push_back(std::make_unique<Flat>(level));
        tones.push_back(std::make_unique<Flat>(level, "x"));
    }
    for (const auto& left : tones) {
        for (const auto& right : tones) {
            EXPECT_EQ(areDeeplyLess(*left, *right) + areDeeplyLess(*right, *left), left != right);
            EXPECT_EQ(areDeeplyEqual(*left, *right), left == right);
            for (const auto& third : tones) {
                EXPECT_TRUE(!(areDeeplyLess(*left, *right) && areDeeplyLess(*right, *third)) ||
                            areDeeplyLess(*left, *third));
            }
        }
    }
}

TEST(DeepComparisonTest, ComparingAllocatesNothing)
{
    Group group((QN::UUID()));
    group._items.push_back(std::make_unique<Word>("a text that is too long to stand inside a string object"));
    group._items.push_back(std::make_unique<Group>(QN::UUID()));
    group._items.push_back(nullptr);
    const Group copy(group);
    const Striped striped(1, {1, 2, 3});
    const Striped sameStriped(striped);
    const Flat flat(1, "another text that is too long to stand inside a string object");
    EXPECT_EQ(countAllocations([&] {
                  EXPECT_TRUE(areDeeplyEqual(group, copy));
                  EXPECT_FALSE(areDeeplyEqual(group, *group._items[0]));
                  EXPECT_TRUE(areDeeplyEqual(striped, sameStriped));
                  EXPECT_FALSE(areDeeplyLess(striped, sameStriped));
                  EXPECT_TRUE(areDeeplyLess(striped, flat));
                  EXPECT_EQ(compareDeeply(flat, flat, NanOrder::Last), std::partial_ordering::equivalent);
              }),
              0U);
}

} // namespace

} // namespace QN::DeepComparisonTest
