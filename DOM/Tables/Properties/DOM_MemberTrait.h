#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <type_traits>

#include "Utils/Public/BoolOpt.h"

/// The two forms of the row and column properties.

namespace QN::DOM {

enum class MemberTrait : std::uint8_t {
    OptionalMembers =
        0, ///< a partial set: each member may be absent; the form that styles hold and files state
    RequiredMembers = 1, ///< fully resolved: each member has a value
};

/// How a member of type `T` is declared in one of the forms.
template <class T, MemberTrait Trait>
using TraitedMember =
    std::conditional_t<Trait == MemberTrait::RequiredMembers, T,
                       std::conditional_t<std::is_same_v<T, bool>, BoolOpt, boost::optional<T>>>;

template <MemberTrait Trait>
class RowHeightImpl;
template <MemberTrait Trait>
class RowPropsImpl;
template <MemberTrait Trait>
class ColumnPropsImpl;

using RowHeight = RowHeightImpl<MemberTrait::OptionalMembers>;
using RowProps = RowPropsImpl<MemberTrait::OptionalMembers>;
using ColumnProps = ColumnPropsImpl<MemberTrait::OptionalMembers>;

} // namespace QN::DOM
