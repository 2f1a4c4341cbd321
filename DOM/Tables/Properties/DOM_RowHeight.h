#pragma once

#include <cstdint>

#include "DOM/Tables/Properties/DOM_MemberTrait.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How the height of a row is to be understood. Other numbers pass through uninterpreted.
enum class RowHeightRule : std::int32_t { Auto = 0, Exact = 1, AtLeast = 2 };

/// The height of a row and how it binds.
template <MemberTrait Trait>
class RowHeightImpl {
public:
    using Value = TraitedMember<float, Trait>;
    using Rule = TraitedMember<RowHeightRule, Trait>;

    RowHeightImpl() = default;
    RowHeightImpl(const Value& value, const Rule& rule) : _value(value), _rule(rule) {}

    const Value& getValue() const { return _value; }
    void setValue(const Value& value) { _value = value; }

    const Rule& getRule() const { return _rule; }
    void setRule(const Rule& rule) { _rule = rule; }

    QN_EQUALITY(RowHeightImpl)
    QN_ORDER(RowHeightImpl)

    void serialize(cereal::JSONOutputArchive& archive) const requires(Trait == MemberTrait::OptionalMembers);
    void serialize(cereal::JSONInputArchive& archive) requires(Trait == MemberTrait::OptionalMembers);

private:
    Value _value{};
    Rule _rule{};

    BOOST_DESCRIBE_CLASS(RowHeightImpl, (), (), (), (_value, _rule))
};

extern template class DOM_API RowHeightImpl<MemberTrait::OptionalMembers>;
extern template class DOM_API RowHeightImpl<MemberTrait::RequiredMembers>;

} // namespace QN::DOM
