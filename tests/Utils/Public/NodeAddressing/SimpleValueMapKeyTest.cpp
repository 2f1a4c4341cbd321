#include "Utils/Public/NodeAddressing/SimpleValueMapKey.h"

#include <gtest/gtest.h>

#include <boost/functional/hash.hpp>

#include <string>
#include <type_traits>
#include <utility>

namespace QN::SimpleValueMapKeyTest {

namespace {

using NodeAddressing::MapKey;
using UUIDKey = NodeAddressing::SimpleValueMapKey<UUID>;
using NameKey = NodeAddressing::SimpleValueMapKey<std::string>;

const UUID Id("219be34f-66e7-4590-8db5-375443207e49");
const UUID OtherId("219be34f-66e7-4590-8db5-375443207e4a");

TEST(SimpleValueMapKeyTest, HoldsAValue)
{
    EXPECT_EQ(UUIDKey().getValue(), UUID());
    UUIDKey key(Id);
    EXPECT_EQ(key.getValue(), Id);
    key.setValue(OtherId);
    EXPECT_EQ(key.getValue(), OtherId);
    EXPECT_EQ(NameKey("Total").getValue(), "Total");
}

TEST(SimpleValueMapKeyTest, IsAConcreteMapKey)
{
    static_assert(std::is_base_of_v<MapKey, UUIDKey>);
    static_assert(std::is_final_v<UUIDKey>);
    static_assert(std::is_base_of_v<Reflectable<MapKey>, NameKey>);
}

TEST(SimpleValueMapKeyTest, HashIsThatOfTheValue)
{
    EXPECT_EQ(UUIDKey(Id).getHash(), hash_value(Id));
    EXPECT_EQ(UUIDKey().getHash(), hash_value(UUID()));
    EXPECT_EQ(NameKey("Total").getHash(), boost::hash<std::string>()("Total"));
}

TEST(SimpleValueMapKeyTest, ComparesByValue)
{
    EXPECT_TRUE(UUIDKey(Id) == UUIDKey(Id));
    EXPECT_TRUE(UUIDKey(Id) != UUIDKey(OtherId));
    EXPECT_TRUE(NameKey("Total") == NameKey("Total"));
    EXPECT_TRUE(NameKey("Total") != NameKey("total"));
}

TEST(SimpleValueMapKeyTest, CopiesMovesAndAssigns)
{
    UUIDKey key(Id);
    const UUIDKey copy(key);
    EXPECT_EQ(copy.getValue(), Id);
    UUIDKey assigned;
    assigned = key;
    const UUIDKey& itself = assigned;
    assigned = itself;
    EXPECT_EQ(assigned.getValue(), Id);
    NameKey name("Total");
    const NameKey moved(std::move(name));
    EXPECT_EQ(moved.getValue(), "Total");
}

TEST(SimpleValueMapKeyTest, IsWrittenAsItsValueWithNamesInQuotes)
{
    EXPECT_EQ(UUIDKey(Id).toString(), "219be34f-66e7-4590-8db5-375443207e49");
    EXPECT_EQ(UUIDKey().toString(), "00000000-0000-0000-0000-000000000000");
    EXPECT_EQ(NameKey("Total").toString(), "\"Total\"");
    EXPECT_EQ(NameKey().toString(), "\"\"");
}

} // namespace

} // namespace QN::SimpleValueMapKeyTest
