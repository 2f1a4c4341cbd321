#include "DOM/Tables/Properties/DOM_MemberTrait.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::DOM::MemberTraitTest {
namespace {

template <class T>
using Optional = TraitedMember<T, MemberTrait::OptionalMembers>;
template <class T>
using Required = TraitedMember<T, MemberTrait::RequiredMembers>;

TEST(DOM_MemberTrait, HasTwoForms)
{
    EXPECT_EQ(static_cast<int>(MemberTrait::OptionalMembers), 0);
    EXPECT_EQ(static_cast<int>(MemberTrait::RequiredMembers), 1);
}

TEST(DOM_MemberTrait, MakesAMemberOptionalOrPlain)
{
    EXPECT_TRUE((std::is_same_v<Optional<float>, boost::optional<float>>));
    EXPECT_TRUE((std::is_same_v<Optional<bool>, BoolOpt>));
    EXPECT_TRUE((std::is_same_v<Required<float>, float>));
    EXPECT_TRUE((std::is_same_v<Required<bool>, bool>));
}

} // namespace
} // namespace QN::DOM::MemberTraitTest
