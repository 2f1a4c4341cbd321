#pragma once

#include <boost/optional/optional.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/variant/variant.hpp>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <type_traits>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Utils/Public/ClassScheme/Members.h"
#include "Utils/Public/ClassScheme/TypeTraits.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

/// Fills any class with random content through its member list: every optional both ways, every alternative of every
/// variant, every concrete class of a family, shared objects with one holder and with several. What a class's invariants
/// forbid is mended by a specialisation of `Randomize`.

namespace QN::Test {

class Random {
public:
    explicit Random(std::uint64_t seed) : _engine(seed) {}

    std::uint64_t bits() { return _engine(); }
    /// From 0 to `count` - 1.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(_engine() % count); }
    bool oneIn(std::size_t count) { return below(count) == 0; }

    /// How many pointers may still be followed: containers stay empty and pointers null once none is left.
    int depth = 4;

    /// Whether what an object owns is changed where it stands, in its number and its class, instead of being replaced.
    bool isInPlace = false;

    /// At times lets the pointer share an earlier object, but none deeper than may be made here.
    template <class Ptr>
    bool share(Ptr& pointer)
    {
        const auto& offered = _offered[typeid(Ptr)];
        if (offered.empty() || !oneIn(4)) {
            return false;
        }
        const Offer& offer = offered[below(offered.size())];
        if (offer.depth > depth) {
            return false;
        }
        pointer = *std::static_pointer_cast<const Ptr>(offer.pointer);
        return true;
    }

    /// Lets later pointers share the object of this one.
    template <class Ptr>
    void offer(const Ptr& pointer)
    {
        _offered[typeid(Ptr)].push_back({depth, std::make_shared<const Ptr>(pointer)});
    }

private:
    struct Offer {
        int depth;
        std::shared_ptr<const void> pointer;
    };

    std::mt19937_64 _engine;
    std::unordered_map<std::type_index, std::vector<Offer>> _offered;
};

template <class T>
void randomize(T& value, Random& random);

/// The rule of a type that is not told by its shape.
template <class T>
struct Randomize {
    static void apply(T& value, Random& random)
    {
        static_assert(Described<T>, "a type without a member list needs a rule of its own");
        forEachBase<T>(
            [&](auto base) { randomize(static_cast<typename decltype(base)::type&>(value), random); });
        forEachMember<T>([&](auto member) { randomize(value.*member.pointer, random); });
    }
};

namespace RandomizeDetails {

/// Mostly small numbers, at times the limits of the type.
template <class T>
T randomInteger(Random& random)
{
    switch (random.below(6)) {
    case 0:
        return std::numeric_limits<T>::max();
    case 1:
        return std::numeric_limits<T>::min();
    case 2:
        return static_cast<T>(random.bits());
    default:
        return static_cast<T>(random.below(16));
    }
}

/// Any finite number that the type holds.
template <class T>
T randomFloat(Random& random)
{
    switch (random.below(5)) {
    case 0:
        return static_cast<T>(0.1);
    case 1:
        return std::numeric_limits<T>::max();
    case 2:
        return -std::numeric_limits<T>::denorm_min();
    case 3:
        return static_cast<T>(static_cast<double>(random.bits()) / 1e15 - 9000.0);
    default:
        return static_cast<T>(random.below(400)) / 4;
    }
}

inline std::string randomString(Random& random)
{
    static const std::array<std::string, 6> pieces{
        "", "text", "\"\\\n\t\x01", std::string("\0nul", 4), "\xC3\xA9\xE2\x82\xAC", "\xFF\xFE no UTF-8 "};
    std::string text;
    for (std::size_t count = random.below(4); count > 0; --count) {
        text += pieces[random.below(pieces.size())];
    }
    return text;
}

/// Goes one level down for the life of the object.
class Descent {
public:
    explicit Descent(Random& random) : _random(random) { --_random.depth; }
    Descent(const Descent&) = delete;
    Descent& operator=(const Descent&) = delete;
    ~Descent() { ++_random.depth; }

private:
    Random& _random;
};

template <class Root, class T>
std::unique_ptr<Root> makeConcrete(Random& random)
{
    auto made = std::make_unique<T>();
    randomize(*made, random);
    return made;
}

template <class Root, class... Ts>
std::unique_ptr<Root> randomConcrete(TypeList<Ts...>, Random& random)
{
    using Maker = std::unique_ptr<Root> (*)(Random&);
    static constexpr std::array<Maker, sizeof...(Ts)> Makers{&makeConcrete<Root, Ts>...};
    return Makers[random.below(Makers.size())](random);
}

template <class T>
concept FamilyRoot = std::is_base_of_v<ClonableBase, T> && std::is_abstract_v<T>;

template <class T>
void changeObject(T& object, Random& random)
{
    const Descent descent(random);
    if constexpr (FamilyRoot<T>) {
        visit<void>(object, [&](auto& concrete) { randomize(concrete, random); });
    } else {
        randomize(object, random);
    }
}

template <class T>
std::unique_ptr<T> randomObject(Random& random)
{
    const Descent descent(random);
    if constexpr (FamilyRoot<T>) {
        return randomConcrete<T>(typename T::Types{}, random);
    } else {
        auto made = std::make_unique<T>();
        randomize(*made, random);
        return made;
    }
}

template <class Variant>
struct RandomAlternative;

template <class... Ts>
struct RandomAlternative<boost::variant<Ts...>> {
    using Variant = boost::variant<Ts...>;

    static void apply(Variant& value, Random& random)
    {
        using Maker = void (*)(Variant&, Random&);
        static constexpr std::array<Maker, sizeof...(Ts)> Makers{&make<Ts>...};
        Makers[random.below(Makers.size())](value, random);
    }

private:
    template <class T>
    static void make(Variant& value, Random& random)
    {
        T made{};
        randomize(made, random);
        value = std::move(made);
    }
};

} // namespace RandomizeDetails

template <class T>
void randomize(T& value, Random& random)
{
    namespace Details = RandomizeDetails;
    const bool isDeep = random.depth <= 0;
    if constexpr (std::is_empty_v<T> && !std::is_polymorphic_v<T>) {
        // Nothing to fill.
    } else if constexpr (std::is_same_v<T, bool>) {
        value = random.oneIn(2);
    } else if constexpr (std::is_integral_v<T>) {
        value = Details::randomInteger<T>(random);
    } else if constexpr (std::is_floating_point_v<T>) {
        value = Details::randomFloat<T>(random);
    } else if constexpr (std::is_enum_v<T>) {
        value = static_cast<T>(Details::randomInteger<std::underlying_type_t<T>>(random));
    } else if constexpr (std::is_same_v<T, std::string>) {
        value = Details::randomString(random);
    } else if constexpr (IsOptional<T>) {
        if (random.isInPlace && value) {
            randomize(*value, random);
            return;
        }
        value = boost::none;
        if (!isDeep && random.oneIn(2)) {
            value.emplace();
            randomize(*value, random);
        }
    } else if constexpr (IsVariant<T>) {
        if (!isDeep) {
            Details::RandomAlternative<T>::apply(value, random);
        }
    } else if constexpr (IsPair<T>) {
        randomize(value.first, random);
        randomize(value.second, random);
    } else if constexpr (IsUniquePtr<T>) {
        if (random.isInPlace && value) {
            Details::changeObject(*value, random);
            return;
        }
        value.reset();
        if (!isDeep && !random.oneIn(3)) {
            value = Details::randomObject<typename T::element_type>(random);
        }
    } else if constexpr (InstanceOf<T, std::shared_ptr> || InstanceOf<T, boost::intrusive_ptr>) {
        value.reset();
        if (!isDeep && !random.oneIn(3) && !random.share(value)) {
            value = T(Details::randomObject<std::remove_const_t<typename T::element_type>>(random).release());
            random.offer(value);
        }
    } else if constexpr (InstanceOf<T, PropagateConstPtr>) {
        randomize(value.getPtr(), random);
    } else if constexpr (InstanceOf<T, SharedConstPtr>) {
        std::shared_ptr<typename T::element_type> object;
        randomize(object, random);
        value = T(std::move(object));
    } else if constexpr (IsVector<T>) {
        if (random.isInPlace && !value.empty()) {
            for (auto& element : value) {
                randomize(element, random);
            }
            return;
        }
        value.clear();
        for (std::size_t count = isDeep ? 0 : random.below(4); count > 0; --count) {
            randomize(value.emplace_back(), random);
        }
    } else if constexpr (requires { std::tuple_size<T>::value; }) {
        for (auto& element : value) {
            randomize(element, random);
        }
    } else if constexpr (IsMap<T>) {
        value.clear();
        for (std::size_t count = isDeep ? 0 : random.below(4); count > 0; --count) {
            typename T::key_type key{};
            typename T::mapped_type mapped{};
            randomize(key, random);
            randomize(mapped, random);
            value.emplace(std::move(key), std::move(mapped));
        }
    } else if constexpr (IsSet<T>) {
        value.clear();
        for (std::size_t count = isDeep ? 0 : random.below(4); count > 0; --count) {
            typename T::value_type element{};
            randomize(element, random);
            value.insert(std::move(element));
        }
    } else if constexpr (requires { value.set(std::remove_cvref_t<decltype(value.get())>{}); }) {
        std::remove_cvref_t<decltype(value.get())> inner{};
        randomize(inner, random);
        value.set(std::move(inner));
    } else {
        Randomize<T>::apply(value, random);
    }
}

} // namespace QN::Test
