#include "Utils/Public/NodeAddressing/AddressInMap.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "Utils/Public/NodeAddressing/SimpleValueMapKey.h"

namespace QN::AddressInMapTest {

namespace {

using NodeAddressing::AddressInMap;
using UUIDKey = NodeAddressing::SimpleValueMapKey<UUID>;
using NameKey = NodeAddressing::SimpleValueMapKey<std::string>;

const UUID Id("219be34f-66e7-4590-8db5-375443207e49");
const UUID OtherId("219be34f-66e7-4590-8db5-375443207e4a");

AddressInMap makeNameAddress(const std::string& name)
{
    return AddressInMap(SharedConstPtr<NodeAddressing::MapKey>(std::make_shared<NameKey>(name)));
}

TEST(AddressInMapTest, HoldsAKey)
{
    EXPECT_FALSE(AddressInMap().getKey());
    const auto key = std::make_shared<const UUIDKey>(Id);
    AddressInMap address{SharedConstPtr<NodeAddressing::MapKey>(key)};
    EXPECT_EQ(address.getKey().get(), key.get());
    address.setKey(nullptr);
    EXPECT_FALSE(address.getKey());
}

TEST(AddressInMapTest, AUUIDIsTheUsualKey)
{
    const AddressInMap address(Id);
    const auto* const key = dynamic_cast<const UUIDKey*>(address.getKey().get());
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->getValue(), Id);
    static_assert(!std::is_convertible_v<UUID, AddressInMap>);
}

TEST(AddressInMapTest, CopySharesTheKeyAndAMoveTakesIt)
{
    AddressInMap address(Id);
    const AddressInMap copy(address);
    EXPECT_EQ(copy.getKey().get(), address.getKey().get());
    const AddressInMap moved(std::move(address));
    EXPECT_EQ(moved.getKey().get(), copy.getKey().get());
    EXPECT_FALSE(address.getKey()); // NOLINT(bugprone-use-after-move)
    static_assert(std::is_nothrow_move_constructible_v<AddressInMap>);
}

TEST(AddressInMapTest, ComparesKeysByValue)
{
    EXPECT_TRUE(AddressInMap(Id) == AddressInMap(Id));
    EXPECT_FALSE(AddressInMap(Id) == AddressInMap(OtherId));
    EXPECT_FALSE(AddressInMap(Id) == makeNameAddress(Id.toString()));
    EXPECT_TRUE(makeNameAddress("Total") == makeNameAddress("Total"));
    const AddressInMap address(Id);
    EXPECT_TRUE(address == AddressInMap(address));
}

TEST(AddressInMapTest, AMissingKeyEqualsOnlyAMissingKey)
{
    EXPECT_TRUE(AddressInMap() == AddressInMap());
    EXPECT_FALSE(AddressInMap() == AddressInMap(Id));
    EXPECT_FALSE(AddressInMap(Id) == AddressInMap());
}

TEST(AddressInMapTest, HashIsThatOfTheKey)
{
    EXPECT_EQ(hash_value(AddressInMap(Id)), hash_value(Id));
    EXPECT_EQ(hash_value(AddressInMap()), 0U);
}

TEST(AddressInMapTest, IsWrittenInBrackets)
{
    EXPECT_EQ(AddressInMap(Id).toString(), "[219be34f-66e7-4590-8db5-375443207e49]");
    EXPECT_EQ(makeNameAddress("Total").toString(), "[\"Total\"]");
    EXPECT_EQ(AddressInMap().toString(), "[null]");
}

} // namespace

} // namespace QN::AddressInMapTest
