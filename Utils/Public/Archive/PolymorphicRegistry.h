#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <cereal/details/static_object.hpp>

#include <cstdint>
#include <memory>
#include <string_view>
#include <typeindex>
#include <typeinfo>
#include <vector>

#include "Utils/Public/Archive/JSONInputArchive.h"
#include "Utils/Public/Archive/JSONOutputArchive.h"

/// The registration of polymorphic types: their persisted names, how they are saved and loaded, and how a pointer to one
/// becomes a pointer to a base. Everything is entered during static initialisation and only read afterwards, from
/// any thread.

namespace cereal::detail {

/// The persisted name of one type, which is told when the type is registered and not derived from the class's own name.
class DOM_API TypeNameProviderBase {
public:
    /// Records the name, also in the `TypeNameMap`.
    void setName(const std::type_info& type, const char* name);
    const char* getName() const { return _name; }

private:
    const char* _name = nullptr;
};

template <class T>
class TypeNameProvider : public TypeNameProviderBase {
};

// The three tables are exported so that a program's own types are entered in those of the library, and not in copies.

/// From a persisted name to its type.
struct DOM_API TypeNameMap {
    boost::unordered_flat_map<std::string_view, std::type_index> map;
};

/// How objects of one registered type are saved.
struct OutputBinding {
    const TypeNameProviderBase* name;
    void (*save)(JSONOutputArchive& archive, const void* object);
};

/// How objects of one registered type are made and loaded.
struct InputBinding {
    const std::type_info* type;
    void* (*create)();
    std::shared_ptr<void> (*createShared)();
    void (*destroy)(void* object);
    void (*load)(JSONInputArchive& archive, void* object);
};

template <class Archive>
struct DOM_API OutputBindingMap {
    boost::unordered_flat_map<std::type_index, OutputBinding> map;
};

template <class Archive>
struct DOM_API InputBindingMap {
    boost::unordered_flat_map<std::type_index, InputBinding> map;
};

/// The relation of a base and a class that derives directly from it.
class PolymorphicCaster {
public:
    virtual ~PolymorphicCaster() = default;
    virtual const void* downcast(const void* base) const = 0;
    virtual void* upcast(void* derived) const = 0;
};

template <class Base, class Derived>
class PolymorphicVirtualCaster final : public PolymorphicCaster {
public:
    const void* downcast(const void* base) const override
    {
        return &static_cast<const Derived&>(*static_cast<const Base*>(base));
    }
    void* upcast(void* derived) const override
    {
        return &static_cast<Base&>(*static_cast<Derived*>(derived));
    }
};

/// The casters from a base down to a derived class.
using CasterChain = std::vector<const PolymorphicCaster*>;

/// What a pointer is cast for. The message about a missing relation tells it.
enum class CastPurpose : std::uint8_t { Save = 0, Load = 1 };

class DOM_API PolymorphicCasters {
public:
    /// @return the chain between two types, empty for one and the same type.
    /// @throws Exception when the types are not related.
    static CasterChain lookup(const std::type_info& base, const std::type_info& derived, CastPurpose purpose);
    static const void* downcastImpl(const CasterChain& chain, const void* base);
    static void* upcastImpl(const CasterChain& chain, void* derived);

private:
    friend DOM_API void polymorphicVirtualCasterInit(PolymorphicCaster* caster, const std::type_info& base,
                                                     const std::type_info& derived);
    friend class StaticObject<PolymorphicCasters>;

    bool lookupImpl(const std::type_info& base, const std::type_info& derived, CasterChain& chain) const;

    struct Relation {
        const std::type_info* derived;
        const PolymorphicCaster* caster;
    };
    boost::unordered_flat_map<std::type_index, std::vector<Relation>> _derivedByBase;
};

[[noreturn]] DOM_API void throwUnregisteredPolymorphicCastException(const std::type_info& base,
                                                                    const std::type_info& derived,
                                                                    CastPurpose purpose);

/// Enters the caster of a pair of directly related classes.
DOM_API void polymorphicVirtualCasterInit(PolymorphicCaster* caster, const std::type_info& base,
                                          const std::type_info& derived);

/// Registers a type when it is constructed.
template <class T>
struct TypeRegistration {
    explicit TypeRegistration(const char* name)
    {
        auto& provider = StaticObject<TypeNameProvider<T>>::getInstance();
        provider.setName(typeid(T), name);
        StaticObject<OutputBindingMap<JSONOutputArchive>>::getInstance().map.emplace(
            typeid(T), OutputBinding{&provider, [](JSONOutputArchive& archive, const void* object) {
                                         static_cast<const T*>(object)->serialize(archive);
                                     }});
        StaticObject<InputBindingMap<JSONInputArchive>>::getInstance().map.emplace(
            typeid(T), InputBinding{&typeid(T), []() -> void* { return new T; },
                                    []() -> std::shared_ptr<void> { return std::make_shared<T>(); },
                                    [](void* object) { std::default_delete<T>()(static_cast<T*>(object)); },
                                    [](JSONInputArchive& archive, void* object) {
                                        static_cast<T*>(object)->serialize(archive);
                                    }});
    }
};

/// Registers a pair of directly related classes when it is constructed.
template <class Base, class Derived>
struct RelationRegistration {
    RelationRegistration()
    {
        polymorphicVirtualCasterInit(&StaticObject<PolymorphicVirtualCaster<Base, Derived>>::getInstance(),
                                     typeid(Base), typeid(Derived));
    }
};

} // namespace cereal::detail

#define QN_REGISTRY_JOIN_AGAIN(left, right) left##right
#define QN_REGISTRY_JOIN(left, right) QN_REGISTRY_JOIN_AGAIN(left, right)

/// At namespace scope in the source that owns a family, in the order of registration.
#define QN_REGISTER_TYPE(Type, name)                                                                         \
    namespace {                                                                                              \
    const ::cereal::detail::TypeRegistration<Type> QN_REGISTRY_JOIN(typeRegistration, __COUNTER__){name};    \
    }

#define QN_REGISTER_RELATION(Base, Derived)                                                                  \
    namespace {                                                                                              \
    const ::cereal::detail::RelationRegistration<Base, Derived> QN_REGISTRY_JOIN(relationRegistration,       \
                                                                                 __COUNTER__);               \
    }
