#pragma once

#include <memory>

namespace QN {

/// Marks the classes of polymorphic families.
class ClonableBase {};

/// Deep copy through the root of a family. A clone has the dynamic type, the UUIDs and the identity tokens of its
/// source. The former content of the target is destroyed after the new one is in place.
template <class T>
class Clonable : public ClonableBase {
public:
    virtual ~Clonable() = default;
    virtual void cloneTo(std::shared_ptr<T>& target) const = 0;
    virtual void cloneTo(std::unique_ptr<T>& target) const = 0;

protected:
    Clonable() = default;
    Clonable(const Clonable&) = default;
    Clonable(Clonable&&) noexcept = default;
    Clonable& operator=(const Clonable&) = default;
    Clonable& operator=(Clonable&&) noexcept = default;
};

} // namespace QN

/// Declares what a concrete class of the family of `Root` overrides; QN_DEFINE_CONCRETE is the other half.
#define QN_CONCRETE(Root)                                                                                    \
    void cloneTo(std::shared_ptr<Root>& target) const override;                                              \
    void cloneTo(std::unique_ptr<Root>& target) const override;                                              \
    void accept(Root::Visitor& visitor) override;                                                            \
    void accept(Root::ConstVisitor& visitor) const override;

/// Declares the visiting of a family whose concrete classes stand in the list `Types`.
#define QN_FAMILY_ROOT(Root)                                                                                 \
    using Visitor = ::QN::Visitor<Types>;                                                                    \
    using ConstVisitor = ::QN::Visitor<::QN::ConstTypes<Types>>;                                             \
    virtual void accept(Visitor& visitor) = 0;                                                               \
    virtual void accept(ConstVisitor& visitor) const = 0;
