#pragma once

#include <boost/container/map.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Copy.h"
#include "Utils/Public/ClassScheme/Equality.h"
#include "Utils/Public/ClassScheme/Members.h"

/// The rules of `override`, `exclude`, `intersect` and `rebaseProperty` for each kind of member, and the walks that apply
/// them to all members of a class. Heavy: for the sources of the property classes.

namespace QN::DOM {

template <class T>
concept HasOverride = requires(T& target, const T& other)
{
    override(target, other);
};
template <class T>
concept HasExclude = requires(T& target, const T& other)
{
    exclude(target, other);
};
template <class T>
concept HasIntersect = requires(T& target, const T& other)
{
    intersect(target, other);
};
template <class T>
concept HasRebase = requires(T& target, const T& other)
{
    rebaseProperty(target, other, other, other);
};

namespace ResolveDetails {

/// The root of a family: its objects are copied through `cloneTo`.
template <class V>
concept Polymorphic = std::is_base_of_v<ClonableBase, V> && std::is_abstract_v<V>;

/// A concrete class of a family that is held through a pointer to that class.
template <class V>
concept ConcreteFamilyMember = std::is_base_of_v<ClonableBase, V> && !std::is_abstract_v<V>;

/// A private copy of a pointee, null for null.
template <class V>
std::shared_ptr<V> copyPointee(const std::shared_ptr<const V>& pointer)
{
    std::shared_ptr<V> copy;
    if (pointer) {
        if constexpr (Polymorphic<V>) {
            pointer->cloneTo(copy);
        } else {
            copy = std::make_shared<V>(*pointer);
        }
    }
    return copy;
}

/// What stands for an absent value when two references are compared.
template <class V>
V valueOrDefault(const boost::optional<V>& value)
{
    return value ? *value : V{};
}

template <class V>
V valueOrDefault(const std::shared_ptr<const V>& pointer)
{
    return pointer ? *pointer : V{};
}

} // namespace ResolveDetails

// override

inline void override(BoolOpt& target, const BoolOpt& other)
{
    if (other) {
        target = other;
    }
}

template <class V>
void override(boost::optional<V>& target, const boost::optional<V>& other)
{
    if (!other) {
        return;
    }
    if constexpr (IsMap<V>) {
        if (target) {
            for (const auto& [position, entry] : *other) {
                target->insert_or_assign(position, entry);
            }
            return;
        }
    }
    target = other;
}

template <class... Ts>
void override(boost::variant<boost::blank, Ts...>& target, const boost::variant<boost::blank, Ts...>& other)
{
    if (other.which() != 0) {
        target = other;
    }
}

template <class V>
void override(std::shared_ptr<const V>& target, const std::shared_ptr<const V>& other)
{
    if (!other) {
        return;
    }
    if (!target) {
        target = other;
        return;
    }
    if constexpr (HasOverride<V>) {
        auto copy = ResolveDetails::copyPointee(target);
        override(*copy, *other);
        target = std::move(copy);
    } else {
        target = ResolveDetails::copyPointee(other);
    }
}

// exclude

inline void exclude(BoolOpt& target, const BoolOpt& other)
{
    if (target == other) {
        target = boost::none;
    }
}

template <class V>
void exclude(boost::optional<V>& target, const boost::optional<V>& other)
{
    if (target && other && areMembersDeeplyEqual(*target, *other)) {
        target.reset();
    }
}

template <class... Ts>
void exclude(boost::variant<boost::blank, Ts...>& target, const boost::variant<boost::blank, Ts...>& other)
{
    if (areMembersDeeplyEqual(target, other)) {
        target = boost::blank();
    }
}

template <class V>
void exclude(std::shared_ptr<const V>& target, const std::shared_ptr<const V>& other)
{
    if (!target || !other) {
        return;
    }
    if (arePointersDeeplyEqual(target, other)) {
        target.reset();
        return;
    }
    auto copy = ResolveDetails::copyPointee(target);
    if constexpr (HasExclude<V>) {
        exclude(*copy, *other);
    }
    target = std::move(copy);
}

// intersect

namespace ResolveDetails {

template <class T>
void requireDeeplyEqual(const T& target, const T& other)
{
    QN_CONTRACT(DefineDeepComparisonDetails::arePointeesDeeplyEqual(target, other),
                "DOM/Properties/DOM_PropertiesResolveUtils", 403, "areDeeplyEqual(target, other)");
}

} // namespace ResolveDetails

inline void intersect(BoolOpt& target, const BoolOpt& other)
{
    if (target != other) {
        target = boost::none;
    }
}

template <class V>
void intersect(boost::optional<V>& target, const boost::optional<V>& other)
{
    if constexpr (IsMap<V>) {
        if (target && other) {
            for (auto entry = target->begin(); entry != target->end();) {
                const auto found = other->find(entry->first);
                const bool isCommon =
                    found != other->end() && areMembersDeeplyEqual(entry->second, found->second);
                entry = isCommon ? std::next(entry) : target->erase(entry);
            }
            return;
        }
    }
    if (!areMembersDeeplyEqual(target, other)) {
        target.reset();
    }
}

template <class... Ts>
void intersect(boost::variant<boost::blank, Ts...>& target, const boost::variant<boost::blank, Ts...>& other)
{
    if (!areMembersDeeplyEqual(target, other)) {
        target = boost::blank();
    }
}

template <class V>
void intersect(std::shared_ptr<const V>& target, const std::shared_ptr<const V>& other)
{
    if (!target || !other) {
        target.reset();
        return;
    }
    auto copy = ResolveDetails::copyPointee(target);
    if constexpr (HasIntersect<V>) {
        intersect(*copy, *other);
    } else {
        ResolveDetails::requireDeeplyEqual(*std::as_const(copy), *other);
    }
    target = std::move(copy);
}

// rebaseProperty

/// The rule of classes that are replaced whole.
template <class Target, class Source>
void rebaseAtomicProperty(Target& target, const Source& source, const Source& left, const Source& right)
{
    if (areMembersDeeplyEqual(left, right)) {
        target = source;
    }
}

/// An absent reference and one that holds the type's default value agree as well, but only where `target` and
/// `replacement` are both present: this never makes an absent target present.
template <class V>
void rebaseProperty(boost::optional<V>& target, const boost::optional<V>& replacement,
                    const boost::optional<V>& left, const boost::optional<V>& right)
{
    if (areMembersDeeplyEqual(left, right)) {
        target = replacement;
    }
    if (replacement && target &&
        areMembersDeeplyEqual(ResolveDetails::valueOrDefault(left), ResolveDetails::valueOrDefault(right))) {
        target = replacement;
    }
}

/// A property set, or a line that is replaced whole: always leaves an object, an empty one where nothing is said. Another
/// object that is replaced whole, and one behind a pointer to its family: replaced by a copy when the references agree.
template <class V>
void rebaseProperty(std::shared_ptr<const V>& target, const std::shared_ptr<const V>& replacement,
                    const std::shared_ptr<const V>& left, const std::shared_ptr<const V>& right)
{
    const bool agree = arePointersDeeplyEqual(left, right);
    if constexpr (HasRebase<V> || ResolveDetails::ConcreteFamilyMember<V>) {
        auto copy = ResolveDetails::copyPointee(agree ? replacement : target);
        if (!copy) {
            copy = std::make_shared<V>();
        }
        const V source = ResolveDetails::valueOrDefault(replacement);
        const V leftValue = ResolveDetails::valueOrDefault(left);
        const V rightValue = ResolveDetails::valueOrDefault(right);
        if constexpr (HasRebase<V>) {
            rebaseProperty(*copy, source, leftValue, rightValue);
        } else {
            rebaseAtomicProperty(*copy, source, leftValue, rightValue);
        }
        target = std::move(copy);
    } else if (agree) {
        target = ResolveDetails::copyPointee(replacement);
    } else if constexpr (ResolveDetails::Polymorphic<V>) {
        target = ResolveDetails::copyPointee(target);
    }
}

// Whole classes

template <class T>
concept BlankVariant = requires(const T& value)
{
    []<class... Ts>(const boost::variant<boost::blank, Ts...>&) {}(value);
};

template <class T>
concept ConstSharedPtr = requires(const T& value)
{
    []<class V>(const std::shared_ptr<const V>&) {}(value);
};

/// A member that can be absent and has rules of its own; any other member is plain, unless its class has the operation
/// itself: then that goes into it.
template <class T>
concept AbsentCapable = std::is_same_v<T, BoolOpt> || IsOptional<T> || BlankVariant<T> || ConstSharedPtr<T>;

template <class T>
void overrideMember(T& target, const T& other)
{
    if constexpr (AbsentCapable<T> || HasOverride<T>) {
        override(target, other);
    } else {
        target = other;
    }
}

template <class T>
void excludeMember(T& target, const T& other)
{
    if constexpr (AbsentCapable<T> || HasExclude<T>) {
        exclude(target, other);
    }
}

template <class T>
void intersectMember(T& target, const T& other)
{
    if constexpr (AbsentCapable<T> || HasIntersect<T>) {
        intersect(target, other);
    } else {
        ResolveDetails::requireDeeplyEqual(target, other);
    }
}

template <class T>
void rebaseMember(T& target, const T& replacement, const T& left, const T& right)
{
    if constexpr (IsOptional<T> || ConstSharedPtr<T> || HasRebase<T>) {
        rebaseProperty(target, replacement, left, right);
    } else {
        rebaseAtomicProperty(target, replacement, left, right);
    }
}

template <Described T>
void overrideAllMembers(T& target, const T& other)
{
    forEachMember<T>([&](auto member) { overrideMember(target.*member.pointer, other.*member.pointer); });
}

template <Described T>
void excludeAllMembers(T& target, const T& other)
{
    forEachMember<T>([&](auto member) { excludeMember(target.*member.pointer, other.*member.pointer); });
}

template <Described T>
void intersectAllMembers(T& target, const T& other)
{
    forEachMember<T>([&](auto member) { intersectMember(target.*member.pointer, other.*member.pointer); });
}

template <Described T>
void rebaseAllMembers(T& target, const T& replacement, const T& left, const T& right)
{
    forEachMember<T>([&](auto member) {
        rebaseMember(target.*member.pointer, replacement.*member.pointer, left.*member.pointer,
                     right.*member.pointer);
    });
}

} // namespace QN::DOM

#define QN_DEFINE_OVERRIDE(Class)                                                                            \
    void override(Class& target, const Class& other)                                                         \
    {                                                                                                        \
        overrideAllMembers(target, other);                                                                   \
    }

#define QN_DEFINE_EXCLUDE(Class)                                                                             \
    void exclude(Class& target, const Class& other)                                                          \
    {                                                                                                        \
        excludeAllMembers(target, other);                                                                    \
    }

#define QN_DEFINE_INTERSECT(Class)                                                                           \
    void intersect(Class& target, const Class& other)                                                        \
    {                                                                                                        \
        intersectAllMembers(target, other);                                                                  \
    }

#define QN_DEFINE_REBASE(Class)                                                                              \
    void rebaseProperty(Class& target, const Class& replacement, const Class& left, const Class& right)      \
    {                                                                                                        \
        rebaseAllMembers(target, replacement, left, right);                                                  \
    }

#define QN_DEFINE_ALGEBRA(Class)                                                                             \
    QN_DEFINE_OVERRIDE(Class)                                                                                \
    QN_DEFINE_EXCLUDE(Class)                                                                                 \
    QN_DEFINE_INTERSECT(Class)                                                                               \
    QN_DEFINE_REBASE(Class)
