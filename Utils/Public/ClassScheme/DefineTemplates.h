#pragma once

#include "Utils/Public/ClassScheme/Define.h"

/// The macros of Define.h for class templates. The head of the template and the class with its parameters come in
/// parentheses, since either may hold commas: ((template <int a, int b>), (Class<a, b>)). Only for the source that
/// instantiates the template.

#define QN_UNWRAP(...) __VA_ARGS__

#define QN_DEFINE_VALUE_TEMPLATE(Head, Class)                                                                \
    QN_UNWRAP Head bool QN_UNWRAP Class::operator==(const QN_UNWRAP Class& other) const                      \
    {                                                                                                        \
        return ::QN::areAllMembersEqual(*this, other);                                                       \
    }                                                                                                        \
    QN_UNWRAP Head void QN_UNWRAP Class::serialize(cereal::JSONOutputArchive& archive) const                 \
    {                                                                                                        \
        ::QN::saveMembers(archive, *this);                                                                   \
    }                                                                                                        \
    QN_UNWRAP Head void QN_UNWRAP Class::serialize(cereal::JSONInputArchive& archive)                        \
    {                                                                                                        \
        ::QN::loadMembers(archive, *this);                                                                   \
    }

#define QN_DEFINE_CONCRETE_TEMPLATE(Head, Class, Root)                                                       \
    QN_UNWRAP Head void QN_UNWRAP Class::cloneTo(std::shared_ptr<Root>& target) const                        \
    {                                                                                                        \
        target = std::make_shared<QN_UNWRAP Class>(*this);                                                   \
    }                                                                                                        \
    QN_UNWRAP Head void QN_UNWRAP Class::cloneTo(std::unique_ptr<Root>& target) const                        \
    {                                                                                                        \
        target = std::make_unique<QN_UNWRAP Class>(*this);                                                   \
    }                                                                                                        \
    QN_UNWRAP Head void QN_UNWRAP Class::accept(Root::Visitor& visitor)                                      \
    {                                                                                                        \
        visitor.visit(*this);                                                                                \
    }                                                                                                        \
    QN_UNWRAP Head void QN_UNWRAP Class::accept(Root::ConstVisitor& visitor) const                           \
    {                                                                                                        \
        visitor.visit(*this);                                                                                \
    }

/// The name is that of the template alone, without its parameters.
#define QN_DEFINE_DEEP_COPY_TEMPLATE(Head, Class, Name, ...)                                                 \
    QN_UNWRAP Head QN_UNWRAP Class::Name(const Name& other) : __VA_ARGS__(other)                             \
    {                                                                                                        \
        ::QN::copyAllMembers(*this, other);                                                                  \
    }                                                                                                        \
    QN_UNWRAP Head QN_UNWRAP Class& QN_UNWRAP Class::operator=(const Name& other)                            \
    {                                                                                                        \
        if (this != &other) {                                                                                \
            Name copy(other);                                                                                \
            *this = std::move(copy);                                                                         \
        }                                                                                                    \
        return *this;                                                                                        \
    }
