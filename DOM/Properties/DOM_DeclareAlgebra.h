#pragma once

#include "Utils/Public/Export.h"

/// The declarations of the operations by which partial property sets are combined. Each changes its target in place,
/// member by member; the rule of a member follows from its type (see DOM_PropertiesResolveUtils.h). A class has just
/// those of the four that it declares. A pointer member refers to an immutable shared object: it is changed on a private
/// copy, which is stored once the operation on it has finished.

/// What `other` says wins. Never clears a member that can be absent, but takes over plain members as they are, so that a
/// nil UUID of `other` replaces one that is set.
#define QN_DECLARE_OVERRIDE(Class) DOM_API void override(Class& target, const Class& other);

/// Removes from `target` what `other` says as well. A pointee that lost all its members stays, present and empty.
#define QN_DECLARE_EXCLUDE(Class) DOM_API void exclude(Class& target, const Class& other);

/// Keeps in `target` what both say alike. Plain members, and what stands behind a pointer to the root of a family (a border
/// line, a fill), must be equal already where both sides have it, or the contract "areDeeplyEqual(target, other)" fails.
#define QN_DECLARE_INTERSECT(Class) DOM_API void intersect(Class& target, const Class& other);

/// Takes `replacement` wherever `left` and `right` agree. Of two references to an optional member, one absent and one with
/// the type's default agree as well, where `target` and `replacement` are both present. It can clear members, and it leaves
/// an object, if an empty one, behind each pointer to a property set.
#define QN_DECLARE_REBASE(Class)                                                                             \
    DOM_API void rebaseProperty(Class& target, const Class& replacement, const Class& left,                  \
                                const Class& right);

#define QN_DECLARE_ALGEBRA(Class)                                                                            \
    QN_DECLARE_OVERRIDE(Class)                                                                               \
    QN_DECLARE_EXCLUDE(Class)                                                                                \
    QN_DECLARE_INTERSECT(Class)                                                                              \
    QN_DECLARE_REBASE(Class)
