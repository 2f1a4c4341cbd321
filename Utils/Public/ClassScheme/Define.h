#pragma once

/// The source-file half of a class's member list: what saves, loads, compares, orders, copies and clones it is
/// instantiated here, once, in the class's own source. Heavy: not for headers.

#include <compare>
#include <memory>
#include <utility>

#include "Utils/Public/Archive/Persist.h"
#include "Utils/Public/Archive/PersistPointers.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/Archive/PersistUtils.h"
#include "Utils/Public/ClassScheme/Copy.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ClassScheme/DeepComparison.h"
#include "Utils/Public/ClassScheme/Equality.h"
#include "Utils/Public/ClassScheme/Members.h"
#include "Utils/Public/ClassScheme/Ordering.h"

#define QN_DEFINE_SERIALIZE(Class)                                                                           \
    void Class::serialize([[maybe_unused]] cereal::JSONOutputArchive& archive) const                         \
    {                                                                                                        \
        ::QN::saveMembers(archive, *this);                                                                   \
    }                                                                                                        \
    void Class::serialize([[maybe_unused]] cereal::JSONInputArchive& archive)                                \
    {                                                                                                        \
        ::QN::loadMembers(archive, *this);                                                                   \
    }

#define QN_DEFINE_EQUALITY(Class)                                                                            \
    bool Class::operator==(const Class& other) const                                                         \
    {                                                                                                        \
        return ::QN::areAllMembersEqual(*this, other);                                                       \
    }

#define QN_DEFINE_ORDER(Class)                                                                               \
    std::partial_ordering Class::compare(const Class& other, ::QN::NanOrder nanOrder) const                  \
    {                                                                                                        \
        return ::QN::compareAllMembers(*this, other, nanOrder);                                              \
    }

#define QN_DEFINE_VALUE(Class)                                                                               \
    QN_DEFINE_EQUALITY(Class)                                                                                \
    QN_DEFINE_SERIALIZE(Class)

#define QN_DEFINE_ORDERED_VALUE(Class)                                                                       \
    QN_DEFINE_VALUE(Class)                                                                                   \
    QN_DEFINE_ORDER(Class)

#define QN_DEFINE_DEEP_COPY(Class)                                                                           \
    Class::Class(const Class& other)                                                                         \
    {                                                                                                        \
        ::QN::copyAllMembers(*this, other);                                                                  \
    }                                                                                                        \
    QN_DEFINE_COPY_ASSIGNMENT(Class)

/// For a class with a base that is copied by its own copy constructor.
#define QN_DEFINE_DEEP_COPY_WITH_BASE(Class, ...)                                                            \
    Class::Class(const Class& other) : __VA_ARGS__(other)                                                    \
    {                                                                                                        \
        ::QN::copyAllMembers(*this, other);                                                                  \
    }                                                                                                        \
    QN_DEFINE_COPY_ASSIGNMENT(Class)

#define QN_DEFINE_COPY_ASSIGNMENT(Class)                                                                     \
    Class& Class::operator=(const Class& other)                                                              \
    {                                                                                                        \
        if (this != &other) {                                                                                \
            Class copy(other);                                                                               \
            *this = std::move(copy);                                                                         \
        }                                                                                                    \
        return *this;                                                                                        \
    }

#define QN_DEFINE_CONCRETE(Class, Root)                                                                      \
    void Class::cloneTo(std::shared_ptr<Root>& target) const                                                 \
    {                                                                                                        \
        target = std::make_shared<Class>(*this);                                                             \
    }                                                                                                        \
    void Class::cloneTo(std::unique_ptr<Root>& target) const                                                 \
    {                                                                                                        \
        target = std::make_unique<Class>(*this);                                                             \
    }                                                                                                        \
    void Class::accept(Root::Visitor& visitor)                                                               \
    {                                                                                                        \
        visitor.visit(*this);                                                                                \
    }                                                                                                        \
    void Class::accept(Root::ConstVisitor& visitor) const                                                    \
    {                                                                                                        \
        visitor.visit(*this);                                                                                \
    }
