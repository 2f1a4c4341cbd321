#include "Utils/Public/ClassScheme/Equality.h"

#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <boost/unordered_map.hpp>
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Support/TestFamily.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/Ptr/PropagateConstPtr.h"
#include "Utils/Public/Ptr/SharedConstPtr.h"

namespace QN::EqualityTest {

namespace {

using namespace QN::Test;

const double NaN = std::numeric_limits<double>::quiet_NaN();

struct Style : boost::intrusive_ref_counter<Style> {
    explicit Style(std::string text) : name(std::move(text)) {}
    friend bool operator==(const Style& left, const Style& right) { return left.name == right.name; }
    std::string name;
};

struct Base {
    int weight = 0;
    QN_EQUALITY(Base)
    BOOST_DESCRIBE_CLASS(Base, (), (weight), (), ())
};
QN_DEFINE_EQUALITY(Base)

/// Nothing to compare by itself.
struct Silent {
    BOOST_DESCRIBE_CLASS(Silent, (), (), (), ())
};

struct Derived : Silent, Base {
    std::string name;
    std::unique_ptr<double> size;
    int unlisted = 0;
    QN_EQUALITY(Derived)
    BOOST_DESCRIBE_CLASS(Derived, (Silent, Base), (name, size), (), ())
};
QN_DEFINE_EQUALITY(Derived)

/// A type of pointer by how it is made from a new object.
template <class Pointer>
class PointerEqualityTest : public testing::Test {
};

using Pointers =
    testing::Types<std::unique_ptr<Style>, std::shared_ptr<const Style>, boost::intrusive_ptr<const Style>,
                   PropagateConstPtr<std::unique_ptr<Style>>, SharedConstPtr<Style>>;
TYPED_TEST_SUITE(PointerEqualityTest, Pointers);

template <class Pointer>
Pointer make(const std::string& name)
{
    if constexpr (std::is_same_v<Pointer, boost::intrusive_ptr<const Style>>) {
        return Pointer(new Style(name));
    } else {
        return Pointer(std::make_unique<Style>(name));
    }
}

TYPED_TEST(PointerEqualityTest, ComparesThroughThePointer)
{
    const auto a = make<TypeParam>("a");
    const auto sameAsA = make<TypeParam>("a");
    const auto b = make<TypeParam>("b");
    EXPECT_TRUE(areMembersDeeplyEqual(a, a));
    EXPECT_TRUE(areMembersDeeplyEqual(a, sameAsA));
    EXPECT_FALSE(areMembersDeeplyEqual(a, b));
}

TYPED_TEST(PointerEqualityTest, NullEqualsNullAlone)
{
    const auto empty = make<TypeParam>("");
    EXPECT_TRUE(areMembersDeeplyEqual(TypeParam(), TypeParam()));
    EXPECT_FALSE(areMembersDeeplyEqual(TypeParam(), empty));
    EXPECT_FALSE(areMembersDeeplyEqual(empty, TypeParam()));
}

TEST(EqualityTest, SameSharedObjectIsEqualEvenIfItHoldsANaN)
{
    const auto shared = std::make_shared<double>(NaN);
    EXPECT_TRUE(areMembersDeeplyEqual(shared, shared));
    EXPECT_FALSE(areMembersDeeplyEqual(shared, std::make_shared<double>(NaN)));
}

TEST(EqualityTest, PointersToAFamilyCompareTypesAndValues)
{
    const std::unique_ptr<Item> word = std::make_unique<Word>("a");
    EXPECT_TRUE(areMembersDeeplyEqual(word, std::unique_ptr<Item>(std::make_unique<Word>("a"))));
    EXPECT_FALSE(areMembersDeeplyEqual(word, std::unique_ptr<Item>(std::make_unique<Word>("b"))));
    EXPECT_FALSE(areMembersDeeplyEqual(word, std::unique_ptr<Item>(std::make_unique<Dot>())));
}

TEST(EqualityTest, PlainValuesUseTheirOwnEquality)
{
    EXPECT_TRUE(areMembersDeeplyEqual(1, 1));
    EXPECT_FALSE(areMembersDeeplyEqual(std::string("a"), std::string("b")));
    EXPECT_FALSE(areMembersDeeplyEqual(NaN, NaN));
    EXPECT_TRUE(areMembersDeeplyEqual(0.0, -0.0));
}

TEST(EqualityTest, OptionalsAreEqualIfBothAreAbsentOrBothHoldEqualValues)
{
    using Optional = boost::optional<std::shared_ptr<int>>;
    EXPECT_TRUE(areMembersDeeplyEqual(Optional(), Optional()));
    EXPECT_FALSE(areMembersDeeplyEqual(Optional(), Optional(nullptr)));
    EXPECT_TRUE(
        areMembersDeeplyEqual(Optional(std::make_shared<int>(1)), Optional(std::make_shared<int>(1))));
    EXPECT_FALSE(
        areMembersDeeplyEqual(Optional(std::make_shared<int>(1)), Optional(std::make_shared<int>(2))));
}

TEST(EqualityTest, VariantsAreEqualIfAlternativeAndValueAre)
{
    using Variant = boost::variant<int, long, std::shared_ptr<int>>;
    EXPECT_TRUE(areMembersDeeplyEqual(Variant(1), Variant(1)));
    EXPECT_FALSE(areMembersDeeplyEqual(Variant(1), Variant(1L)));
    EXPECT_FALSE(areMembersDeeplyEqual(Variant(1), Variant(2)));
    EXPECT_TRUE(areMembersDeeplyEqual(Variant(std::make_shared<int>(1)), Variant(std::make_shared<int>(1))));
}

TEST(EqualityTest, SequencesCompareLengthsFirst)
{
    const auto makeList = [](std::initializer_list<int> numbers) {
        std::vector<std::unique_ptr<int>> list;
        for (const int number : numbers) {
            list.push_back(std::make_unique<int>(number));
        }
        return list;
    };
    EXPECT_TRUE(areMembersDeeplyEqual(makeList({1, 2}), makeList({1, 2})));
    EXPECT_FALSE(areMembersDeeplyEqual(makeList({1, 2}), makeList({1, 3})));
    EXPECT_FALSE(areMembersDeeplyEqual(makeList({1, 2}), makeList({1})));
    EXPECT_FALSE(areMembersDeeplyEqual(makeList({1}), makeList({1, 2})));
    EXPECT_TRUE(areMembersDeeplyEqual(makeList({}), makeList({})));
}

TEST(EqualityTest, MapsCompareKeysAndValues)
{
    using Map = std::map<int, std::shared_ptr<int>>;
    EXPECT_TRUE(
        areMembersDeeplyEqual(Map{{1, std::make_shared<int>(1)}}, Map{{1, std::make_shared<int>(1)}}));
    EXPECT_FALSE(
        areMembersDeeplyEqual(Map{{1, std::make_shared<int>(1)}}, Map{{1, std::make_shared<int>(2)}}));
    EXPECT_FALSE(areMembersDeeplyEqual(Map{{1, nullptr}}, Map{{2, nullptr}}));
    EXPECT_FALSE(areMembersDeeplyEqual(Map{{1, nullptr}}, Map{{1, nullptr}, {2, nullptr}}));
}

TEST(EqualityTest, UnorderedMapsCompareWhateverTheOrderOfTheirEntries)
{
    using Map = boost::unordered_map<int, std::shared_ptr<int>>;
    Map left(1);
    Map right(1000);
    for (int key = 0; key < 50; ++key) {
        left[key] = std::make_shared<int>(key);
        right[49 - key] = std::make_shared<int>(49 - key);
    }
    EXPECT_TRUE(areMembersDeeplyEqual(left, right));
    right[7] = std::make_shared<int>(8);
    EXPECT_FALSE(areMembersDeeplyEqual(left, right));
    right.erase(7);
    EXPECT_FALSE(areMembersDeeplyEqual(left, right));
    right[50] = std::make_shared<int>(7);
    EXPECT_FALSE(areMembersDeeplyEqual(left, right));
}

TEST(EqualityTest, PairsCompareBothMembers)
{
    using Pair = std::pair<int, std::shared_ptr<int>>;
    EXPECT_TRUE(areMembersDeeplyEqual(Pair(1, std::make_shared<int>(2)), Pair(1, std::make_shared<int>(2))));
    EXPECT_FALSE(areMembersDeeplyEqual(Pair(1, std::make_shared<int>(2)), Pair(1, std::make_shared<int>(3))));
    EXPECT_FALSE(areMembersDeeplyEqual(Pair(1, nullptr), Pair(2, nullptr)));
}

TEST(EqualityTest, ClassComparesItsBasesAndItsListedMembers)
{
    Derived left;
    Derived right;
    EXPECT_EQ(left, right);
    right.weight = 1;
    EXPECT_NE(left, right);
    right.weight = 0;
    right.name = "a";
    EXPECT_NE(left, right);
    left.name = "a";
    left.size = std::make_unique<double>(2);
    EXPECT_NE(left, right);
    right.size = std::make_unique<double>(2);
    right.unlisted = 5;
    EXPECT_EQ(left, right);
}

} // namespace

} // namespace QN::EqualityTest
