#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "Utils/Public/Archive/JSONInputArchive.h"
#include "Utils/Public/Archive/JSONOutputArchive.h"
#include "Utils/Public/ClassScheme/Members.h"

/// How each kind of value stands in a JSON text: one specialisation of `Persist` a kind, with a `save` and a `load`.
/// This header has classes, numbers, enumerations and strings; its siblings have the rest.

namespace QN {

/// Writes the persisted bases under "value0", "value1"... and then the members under their names.
template <Described T>
void saveMembers(cereal::JSONOutputArchive& archive, const T& object)
{
    forEachBase<T>(
        [&](auto base) { archive.unnamed(static_cast<const typename decltype(base)::type&>(object)); });
    forEachKey<T>([&](auto member) {
        constexpr std::string_view key = decltype(member)::name;
        archive.member(key, object.*member.pointer);
    });
}

template <Described T>
void loadMembers(cereal::JSONInputArchive& archive, T& object)
{
    forEachBase<T>([&](auto base) { archive.unnamed(static_cast<typename decltype(base)::type&>(object)); });
    forEachKey<T>([&](auto member) {
        constexpr std::string_view key = decltype(member)::name;
        archive.member(key, object.*member.pointer);
    });
}

/// A class: an object of its keys, by its own `serialize` or else by its member list.
template <class T>
struct Persist {
    static void save(cereal::JSONOutputArchive& archive, const T& value)
    {
        archive.startObject();
        if constexpr (requires { value.serialize(archive); }) {
            value.serialize(archive);
        } else {
            saveMembers(archive, value);
        }
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        archive.enterObject();
        if constexpr (requires { value.serialize(archive); }) {
            value.serialize(archive);
        } else {
            loadMembers(archive, value);
        }
        archive.leave();
    }
};

template <>
struct Persist<bool> {
    static void save(cereal::JSONOutputArchive& archive, bool value) { archive.saveValue(value); }
    static void load(cereal::JSONInputArchive& archive, bool& value) { archive.loadValue(value); }
};

/// Integers are plain numbers; one outside its type's range raises `RapidJSONException`. A `char` is a number of a
/// `signed char` also where it has no sign, so that files do not depend on the platform.
template <std::integral T>
struct Persist<T> {
    using Number = std::conditional_t<std::is_same_v<T, char>, signed char, T>;
    using Widest = std::conditional_t<std::is_signed_v<Number>, std::int64_t, std::uint64_t>;
    using Read =
        std::conditional_t<sizeof(Number) == 8, Widest,
                           std::conditional_t<std::is_signed_v<Number>, std::int32_t, std::uint32_t>>;

    static void save(cereal::JSONOutputArchive& archive, T value)
    {
        archive.saveValue(static_cast<Widest>(static_cast<Number>(value)));
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        Read read = 0;
        archive.loadValue(read);
        if (!std::in_range<Number>(read)) {
            archive.throwOutOfRange();
        }
        value = static_cast<T>(read);
    }
};

/// A `float` is widened; a number beyond its range reads as an infinity.
template <std::floating_point T>
struct Persist<T> {
    static void save(cereal::JSONOutputArchive& archive, T value)
    {
        archive.saveValue(static_cast<double>(value));
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        double read = 0;
        archive.loadValue(read);
        constexpr auto Largest = static_cast<double>(std::numeric_limits<T>::max());
        if (std::isfinite(read) && std::abs(read) > Largest) {
            read = std::copysign(std::numeric_limits<double>::infinity(), read);
        }
        value = static_cast<T>(read);
    }
};

template <class T>
requires std::is_enum_v<T>
struct Persist<T> {
    using Number = std::underlying_type_t<T>;

    static void save(cereal::JSONOutputArchive& archive, T value)
    {
        Persist<Number>::save(archive, static_cast<Number>(value));
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        Number number{};
        Persist<Number>::load(archive, number);
        value = static_cast<T>(number);
    }
};

template <>
struct Persist<std::string> {
    static void save(cereal::JSONOutputArchive& archive, const std::string& value)
    {
        archive.saveValue(std::string_view(value));
    }
    static void load(cereal::JSONInputArchive& archive, std::string& value) { archive.loadValue(value); }
};

} // namespace QN
