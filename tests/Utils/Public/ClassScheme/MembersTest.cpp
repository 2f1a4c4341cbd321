#include "Utils/Public/ClassScheme/Members.h"

#include <boost/describe/class.hpp>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::MembersTest {

namespace {

struct First {};
BOOST_DESCRIBE_STRUCT(First, (), ())
struct Second {};
struct Undescribed {};

class Listed : public First, public Second {
public:
    int open = 1;

protected:
    int guarded = 2;

private:
    std::string _hidden = "3";
    int unlisted = 4;

public:
    int getUnlisted() const { return unlisted; }

    BOOST_DESCRIBE_CLASS(Listed, (First, Second), (open), (guarded), (_hidden))
};

class Reordered {
public:
    QN_JSON_ORDER(Reordered, 2, 0, 1)

private:
    int _a = 1;
    int _b = 2;
    int _c = 3;

    BOOST_DESCRIBE_CLASS(Reordered, (), (), (), (_a, _b, _c))
};

template <class T>
class PrivatelyReordered {
    T _a{};
    T _b{};

    QN_JSON_ORDER(PrivatelyReordered, 1, 0)
    BOOST_DESCRIBE_CLASS(PrivatelyReordered, (), (), (), (_a, _b))
};

class DerivedFromReordered : public Reordered {
    int _d = 4;
    int _e = 5;
    int _f = 6;

    BOOST_DESCRIBE_CLASS(DerivedFromReordered, (Reordered), (), (), (_d, _e, _f))
};

template <class T>
std::vector<std::string> getMemberNames()
{
    std::vector<std::string> names;
    forEachMember<T>([&](auto member) { names.emplace_back(member.name); });
    return names;
}

template <class T>
std::vector<std::string> getKeys()
{
    std::vector<std::string> names;
    forEachKey<T>([&](auto member) { names.emplace_back(member.name); });
    return names;
}

TEST(MembersTest, DescribedClassesAreTold)
{
    static_assert(Described<Listed> && Described<Reordered>);
    static_assert(!Described<Undescribed> && !Described<int> && !Described<std::string>);
}

TEST(MembersTest, ListedMembersOfAnyAccessAreWalkedInOrder)
{
    EXPECT_EQ(getMemberNames<Listed>(), (std::vector<std::string>{"open", "guarded", "_hidden"}));
}

TEST(MembersTest, MembersCanBeReadAndWritten)
{
    Listed object;
    forEachMember<Listed>([&](auto member) {
        auto& value = object.*member.pointer;
        if constexpr (std::is_same_v<decltype(value), std::string&>) {
            EXPECT_EQ(value, "3");
        } else {
            value = 7;
        }
    });
    EXPECT_EQ(object.open, 7);
    EXPECT_EQ(object.getUnlisted(), 4);
}

TEST(MembersTest, BasesAreWalkedInOrder)
{
    std::vector<bool> isFirst;
    forEachBase<Listed>(
        [&](auto base) { isFirst.push_back(std::is_same_v<typename decltype(base)::type, First>); });
    EXPECT_EQ(isFirst, (std::vector<bool>{true, false}));
}

TEST(MembersTest, KeysStandInTheOrderOfTheMembersUnlessTheClassStatesAnother)
{
    EXPECT_EQ(getKeys<Listed>(), getMemberNames<Listed>());
    EXPECT_EQ(getMemberNames<Reordered>(), (std::vector<std::string>{"_a", "_b", "_c"}));
    EXPECT_EQ(getKeys<Reordered>(), (std::vector<std::string>{"_c", "_a", "_b"}));
}

TEST(MembersTest, StatedOrderHoldsWhereverItStandsInTheClass)
{
    EXPECT_EQ(getMemberNames<PrivatelyReordered<int>>(), (std::vector<std::string>{"_a", "_b"}));
    EXPECT_EQ(getKeys<PrivatelyReordered<int>>(), (std::vector<std::string>{"_b", "_a"}));
}

TEST(MembersTest, StatedOrderIsNotThatOfDerivedClasses)
{
    EXPECT_EQ(getKeys<DerivedFromReordered>(), (std::vector<std::string>{"_d", "_e", "_f"}));
}

TEST(MembersTest, StatedOrderHasOnePlaceForEachMember)
{
    using MembersDetails::isPermutation;
    using Three = MembersOf<Reordered>;
    static_assert(isPermutation(Three{}, std::index_sequence<0, 1, 2>()));
    static_assert(isPermutation(Three{}, std::index_sequence<2, 0, 1>()));
    static_assert(!isPermutation(Three{}, std::index_sequence<0, 1>()));
    static_assert(!isPermutation(Three{}, std::index_sequence<0, 1, 1>()));
    static_assert(!isPermutation(Three{}, std::index_sequence<0, 1, 3>()));
    static_assert(!isPermutation(Three{}, std::index_sequence<0, 1, 2, 2>()));
    static_assert(isPermutation(MembersOf<First>{}, std::index_sequence<>()));
}

TEST(MembersTest, WalkEndsAtTheFirstRefusal)
{
    std::vector<std::string> names;
    EXPECT_FALSE(allMembers<Listed>([&](auto member) {
        names.emplace_back(member.name);
        return std::string_view(member.name) != "guarded";
    }));
    EXPECT_EQ(names, (std::vector<std::string>{"open", "guarded"}));
    EXPECT_TRUE(allMembers<Listed>([](auto) { return true; }));
    int bases = 0;
    EXPECT_FALSE(allBases<Listed>([&](auto) { return ++bases > 1; }));
    EXPECT_EQ(bases, 1);
    EXPECT_TRUE(allBases<Reordered>([](auto) { return false; })) << "it has no bases";
}

} // namespace

} // namespace QN::MembersTest
