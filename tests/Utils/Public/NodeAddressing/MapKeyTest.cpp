#include "Utils/Public/NodeAddressing/MapKey.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>

#include "Utils/Public/NodeAddressing/SimpleValueMapKey.h"

namespace QN::MapKeyTest {

namespace {

using NodeAddressing::MapKey;
using UUIDKey = NodeAddressing::SimpleValueMapKey<UUID>;
using NameKey = NodeAddressing::SimpleValueMapKey<std::string>;

const UUID Id("219be34f-66e7-4590-8db5-375443207e49");

TEST(MapKeyTest, IsTheAbstractRootOfAFamily)
{
    static_assert(std::is_base_of_v<Clonable<MapKey>, MapKey>);
    static_assert(std::is_abstract_v<MapKey>);
    static_assert(std::has_virtual_destructor_v<MapKey>);
}

TEST(MapKeyTest, CloneHasTheDynamicTypeAndTheValue)
{
    const UUIDKey key(Id);
    const MapKey& root = key;
    std::unique_ptr<MapKey> owned = std::make_unique<NameKey>("former");
    root.cloneTo(owned);
    std::shared_ptr<MapKey> shared;
    root.cloneTo(shared);
    for (const MapKey* const clone :
         {static_cast<const MapKey*>(owned.get()), static_cast<const MapKey*>(shared.get())}) {
        EXPECT_NE(clone, &root);
        EXPECT_EQ(typeid(*clone), typeid(UUIDKey));
        EXPECT_TRUE(areDeeplyEqual(*clone, root));
    }
    EXPECT_EQ(shared.use_count(), 1);
}

TEST(MapKeyTest, AVisitGivesTheValue)
{
    struct ToText {
        std::string operator()(const UUIDKey& key) const { return "uuid " + key.getValue().toString(); }
        std::string operator()(const NameKey& key) const { return "name " + key.getValue(); }
    };
    const UUIDKey uuid(Id);
    NameKey name("Total");
    EXPECT_EQ(visit<std::string>(static_cast<const MapKey&>(uuid), ToText()),
              "uuid 219be34f-66e7-4590-8db5-375443207e49");
    EXPECT_EQ(visit<std::string>(static_cast<MapKey&>(name), ToText()), "name Total");
    visit<void>(static_cast<MapKey&>(name), [](NameKey& key) { key.setValue("Sum"); });
    EXPECT_EQ(name.getValue(), "Sum");
}

TEST(MapKeyTest, KeysAreEqualByTypeAndValue)
{
    EXPECT_TRUE(areDeeplyEqual(UUIDKey(Id), UUIDKey(Id)));
    EXPECT_FALSE(areDeeplyEqual(UUIDKey(Id), UUIDKey()));
    EXPECT_FALSE(areDeeplyEqual(UUIDKey(Id), NameKey(Id.toString())));
    EXPECT_FALSE(areDeeplyEqual(NameKey(), UUIDKey()));
}

} // namespace

} // namespace QN::MapKeyTest
