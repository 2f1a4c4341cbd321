#include "Utils/Public/Reflectable.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "Support/TestFamily.h"

namespace QN::ReflectableTest {

namespace {

using QN::BaseInitializer;
using QN::BasesInitializer;
using QN::Reflectable;

struct Named {
    Named() = default;
    Named(int initialNumber, std::string initialName) : number(initialNumber), name(std::move(initialName)) {}
    virtual ~Named() = default;
    virtual int getNumber() const = 0;

    int number = -1;
    std::string name = "none";
};

struct Owning {
    Owning() = default;
    explicit Owning(std::unique_ptr<int> object) : owned(std::move(object)) {}
    std::unique_ptr<int> owned;
};

struct OneBase : Reflectable<Named> {
    using Reflectable::Reflectable;
    int getNumber() const override { return number; }
};

struct MovingBase : Reflectable<Owning> {
    explicit MovingBase(std::unique_ptr<int> object) : Reflectable(std::move(object)) {}
};

struct TwoBases : Reflectable<Named, Owning> {
    TwoBases() = default;
    TwoBases(int initialNumber, std::unique_ptr<int> object)
        : Reflectable(std::piecewise_construct, std::forward_as_tuple(initialNumber, "two"),
                      std::forward_as_tuple(std::move(object)))
    {
    }
    explicit TwoBases(std::unique_ptr<int> object)
        : Reflectable(std::piecewise_construct, std::tuple<>(), std::forward_as_tuple(std::move(object)))
    {
    }
    int getNumber() const override { return number; }
};

TEST(ReflectableTest, ChainOfBasesIsAsTheSchemeHasIt)
{
    static_assert(std::is_base_of_v<BasesInitializer<Named>, Reflectable<Named>>);
    static_assert(std::is_base_of_v<BaseInitializer<Named>, BasesInitializer<Named>>);
    static_assert(std::is_base_of_v<Named, BaseInitializer<Named>>);
    static_assert(std::is_base_of_v<BasesInitializer<Named, Owning>, Reflectable<Named, Owning>>);
    static_assert(std::is_base_of_v<BaseInitializer<Named>, BasesInitializer<Named, Owning>>);
    static_assert(std::is_base_of_v<BaseInitializer<Owning>, BasesInitializer<Named, Owning>>);
    static_assert(std::is_base_of_v<BasesInitializer<>, Reflectable<>>);
}

TEST(ReflectableTest, ChainCarriesNoData)
{
    struct Pair : Named, Owning {
        int getNumber() const override { return number; }
    };
    static_assert(std::is_empty_v<Reflectable<>> && std::is_empty_v<BasesInitializer<>>);
    static_assert(sizeof(Reflectable<Named>) == sizeof(Named));
    static_assert(sizeof(Reflectable<Owning>) == sizeof(Owning));
    static_assert(sizeof(Reflectable<Named, Owning>) == sizeof(Pair));
}

TEST(ReflectableTest, BasesAreDefaultConstructed)
{
    const OneBase one;
    EXPECT_EQ(one.number, -1);
    const TwoBases two;
    EXPECT_EQ(two.name, "none");
    EXPECT_EQ(two.owned, nullptr);
}

TEST(ReflectableTest, ConstructorsOfTheBaseAreForwarded)
{
    const OneBase one(5, "five");
    EXPECT_EQ(one.getNumber(), 5);
    EXPECT_EQ(one.name, "five");
    EXPECT_EQ(*MovingBase(std::make_unique<int>(6)).owned, 6);
}

TEST(ReflectableTest, EachOfTwoBasesTakesArgumentsOfItsOwn)
{
    const TwoBases both(5, std::make_unique<int>(6));
    EXPECT_EQ(both.getNumber(), 5);
    EXPECT_EQ(both.name, "two");
    EXPECT_EQ(*both.owned, 6);
    const TwoBases second(std::make_unique<int>(7));
    EXPECT_EQ(second.number, -1);
    EXPECT_EQ(*second.owned, 7);
}

TEST(ReflectableTest, SecondBaseOfAFamilyClassTakesItsIdentity)
{
    const QN::UUID uuid = QN::UUID::generate();
    EXPECT_EQ(QN::Test::Group(uuid).getUUID(), uuid);
    EXPECT_NE(QN::Test::Group().getUUID(), QN::Test::Group().getUUID());
}

TEST(ReflectableTest, CopiesAndMovesReachTheBases)
{
    OneBase one(5, "five");
    const OneBase copy(one);
    EXPECT_EQ(copy.name, "five");
    const OneBase moved(std::move(one));
    EXPECT_EQ(moved.name, "five");

    TwoBases two(5, std::make_unique<int>(6));
    const int* const owned = two.owned.get();
    TwoBases target;
    target = std::move(two);
    EXPECT_EQ(target.owned.get(), owned);
    EXPECT_EQ(target.number, 5);
}

TEST(ReflectableTest, CopyKeepsTheIdentitiesOfBothBases)
{
    const QN::Test::Group group;
    const QN::Test::Group copy(group);
    EXPECT_EQ(copy.getUUID(), group.getUUID());
    EXPECT_EQ(copy.getID(), group.getID());
    QN::Test::Group assigned;
    assigned = group;
    EXPECT_EQ(assigned.getUUID(), group.getUUID());
    EXPECT_EQ(assigned.getID(), group.getID());
}

} // namespace

} // namespace QN::ReflectableTest
