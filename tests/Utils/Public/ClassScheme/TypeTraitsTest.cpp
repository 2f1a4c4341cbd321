#include "Utils/Public/ClassScheme/TypeTraits.h"

#include <boost/container/map.hpp>
#include <boost/container/set.hpp>
#include <boost/container/vector.hpp>
#include <boost/optional/optional.hpp>
#include <boost/unordered_map.hpp>
#include <boost/variant/variant.hpp>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "Utils/Public/Ptr/PropagateConstPtr.h"
#include "Utils/Public/Ptr/SharedConstPtr.h"

namespace QN::TypeTraitsTest {

namespace {

TEST(TypeTraitsTest, InstancesOfATemplateAreTold)
{
    static_assert(IsOptional<boost::optional<int>> && !IsOptional<int>);
    static_assert(IsVariant<boost::variant<int, std::string>> && !IsVariant<boost::optional<int>>);
    static_assert(IsPair<std::pair<int, int>> && IsPair<std::pair<const int, int>> && !IsPair<int>);
    static_assert(IsUniquePtr<std::unique_ptr<int>> && !IsUniquePtr<std::shared_ptr<int>>);
}

TEST(TypeTraitsTest, SmartPointersAreTold)
{
    static_assert(IsPointerLike<std::unique_ptr<int>> && IsPointerLike<std::shared_ptr<const int>>);
    static_assert(IsPointerLike<boost::intrusive_ptr<const int>>);
    static_assert(IsPointerLike<PropagateConstPtr<std::unique_ptr<int>>> &&
                  IsPointerLike<SharedConstPtr<int>>);
    static_assert(!IsPointerLike<int*> && !IsPointerLike<boost::optional<int>>);
}

TEST(TypeTraitsTest, ContainersAreTold)
{
    static_assert(IsVector<std::vector<int>> && IsVector<boost::container::vector<int>> &&
                  !IsVector<std::string>);
    static_assert(IsMap<std::map<int, int>> && IsMap<boost::container::map<int, int>>);
    static_assert(IsMap<boost::unordered_map<int, int>> && !IsMap<std::set<int>> && !IsMap<std::vector<int>>);
    static_assert(IsHashMap<boost::unordered_map<int, int>> && IsHashMap<std::unordered_map<int, int>>);
    static_assert(!IsHashMap<std::map<int, int>>);
    static_assert(IsSet<std::set<int>> && IsSet<boost::container::set<int>> && !IsSet<std::map<int, int>>);
}

TEST(TypeTraitsTest, OrderedContainersAreSequences)
{
    static_assert(IsSequence<std::vector<int>> && IsSequence<std::map<int, int>> &&
                  IsSequence<std::set<int>>);
    static_assert(!IsSequence<boost::unordered_map<int, int>> && !IsSequence<std::string> &&
                  !IsSequence<int>);
}

TEST(TypeTraitsTest, PlainPointerOfAnySmartPointerIsReached)
{
    const auto shared = std::make_shared<const int>(1);
    EXPECT_EQ(rawPointer(shared), shared.get());
    EXPECT_EQ(rawPointer(SharedConstPtr<int>(shared)), shared.get());
    const PropagateConstPtr<std::unique_ptr<int>> propagating(std::make_unique<int>(2));
    EXPECT_EQ(*rawPointer(propagating), 2);
    EXPECT_EQ(rawPointer(std::unique_ptr<int>()), nullptr);
}

} // namespace

} // namespace QN::TypeTraitsTest
