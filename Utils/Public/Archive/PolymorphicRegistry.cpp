#include "Utils/Public/Archive/PolymorphicRegistry.h"

#include <boost/core/demangle.hpp>

#include <algorithm>
#include <string>

namespace cereal::detail {

void TypeNameProviderBase::setName(const std::type_info& type, const char* name)
{
    _name = name;
    StaticObject<TypeNameMap>::getInstance().map.emplace(name, type);
}

CasterChain PolymorphicCasters::lookup(const std::type_info& base, const std::type_info& derived,
                                       CastPurpose purpose)
{
    CasterChain chain;
    if (base != derived &&
        !StaticObject<PolymorphicCasters>::getInstance().lookupImpl(base, derived, chain)) {
        throwUnregisteredPolymorphicCastException(base, derived, purpose);
    }
    return chain;
}

bool PolymorphicCasters::lookupImpl(const std::type_info& base, const std::type_info& derived,
                                    CasterChain& chain) const
{
    const auto relations = _derivedByBase.find(base);
    if (relations == _derivedByBase.end()) {
        return false;
    }
    // A class that is related to the base directly and through another one is cast in one step.
    for (const Relation& relation : relations->second) {
        if (*relation.derived == derived) {
            chain.push_back(relation.caster);
            return true;
        }
    }
    for (const Relation& relation : relations->second) {
        chain.push_back(relation.caster);
        if (lookupImpl(*relation.derived, derived, chain)) {
            return true;
        }
        chain.pop_back();
    }
    return false;
}

const void* PolymorphicCasters::downcastImpl(const CasterChain& chain, const void* base)
{
    for (const PolymorphicCaster* const caster : chain) {
        base = caster->downcast(base);
    }
    return base;
}

void* PolymorphicCasters::upcastImpl(const CasterChain& chain, void* derived)
{
    std::for_each(chain.rbegin(), chain.rend(),
                  [&](const PolymorphicCaster* caster) { derived = caster->upcast(derived); });
    return derived;
}

void throwUnregisteredPolymorphicCastException(const std::type_info& base, const std::type_info& derived,
                                               CastPurpose purpose)
{
    throw Exception(std::string("Trying to ") + (purpose == CastPurpose::Save ? "save" : "load") +
                    " a registered polymorphic type with an unregistered polymorphic cast.\n"
                    "Could not find a path to a base class (" +
                    boost::core::demangle(base.name()) +
                    ") for type: " + boost::core::demangle(derived.name()));
}

void polymorphicVirtualCasterInit(PolymorphicCaster* caster, const std::type_info& base,
                                  const std::type_info& derived)
{
    StaticObject<PolymorphicCasters>::getInstance()._derivedByBase[base].push_back({&derived, caster});
}

} // namespace cereal::detail
