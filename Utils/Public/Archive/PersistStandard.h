#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/get.hpp>
#include <boost/variant/variant.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "Utils/Public/Archive/Persist.h"
#include "Utils/Public/ClassScheme/TypeTraits.h"

/// Pairs, optionals, variants and containers.

namespace QN {

namespace PersistDetails {

/// Makes room for the elements of an array, up to a mebibyte before any of them was read: an element may take a
/// thousand times the bytes that a malformed text spends on it.
template <class Container>
void reserveForLoad(Container& container, std::size_t size)
{
    constexpr std::size_t Largest = (std::size_t{1} << 20U) / sizeof(typename Container::value_type) + 1;
    container.reserve(std::min(size, Largest));
}

} // namespace PersistDetails

/// An object with the keys "first" and "second".
template <class First, class Second>
struct Persist<std::pair<First, Second>> {
    static void save(cereal::JSONOutputArchive& archive, const std::pair<First, Second>& value)
    {
        archive.startObject();
        archive.member("first", value.first);
        archive.member("second", value.second);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, std::pair<First, Second>& value)
    {
        archive.enterObject();
        archive.member("first", value.first);
        archive.member("second", value.second);
        archive.leave();
    }
};

/// "hasValue", followed by "value" when it is true.
template <class T>
struct Persist<boost::optional<T>> {
    static void save(cereal::JSONOutputArchive& archive, const boost::optional<T>& value)
    {
        archive.startObject();
        archive.member("hasValue", value.has_value());
        if (value) {
            archive.member("value", *value);
        }
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, boost::optional<T>& value)
    {
        bool hasValue = false;
        archive.enterObject();
        archive.member("hasValue", hasValue);
        if (hasValue) {
            value.emplace();
            archive.member("value", *value);
        } else {
            value.reset();
        }
        archive.leave();
    }
};

template <>
struct Persist<boost::blank> {
    static void save(cereal::JSONOutputArchive& archive, const boost::blank& /*value*/)
    {
        archive.startObject();
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, boost::blank& /*value*/)
    {
        archive.enterObject();
        archive.leave();
    }
};

/// "which", the index of the alternative, and "data", its value.
template <class... Ts>
struct Persist<boost::variant<Ts...>> {
    using Variant = boost::variant<Ts...>;

    static void save(cereal::JSONOutputArchive& archive, const Variant& value)
    {
        archive.startObject();
        archive.member("which", value.which());
        boost::apply_visitor([&](const auto& alternative) { archive.member("data", alternative); }, value);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, Variant& value)
    {
        using Loader = void (*)(cereal::JSONInputArchive&, Variant&);
        static constexpr std::array<Loader, sizeof...(Ts)> Loaders{&loadAlternative<Ts>...};

        int which = 0;
        archive.enterObject();
        archive.member("which", which);
        if (which < 0) {
            throw cereal::Exception("Error traversing variant during load");
        }
        if (static_cast<std::size_t>(which) >= Loaders.size()) {
            throw cereal::Exception("Invalid 'which' selector when deserializing boost::variant");
        }
        Loaders[static_cast<std::size_t>(which)](archive, value);
        archive.leave();
    }

private:
    template <class T>
    static void loadAlternative(cereal::JSONInputArchive& archive, Variant& value)
    {
        value = T{};
        archive.member("data", *boost::relaxed_get<T>(&value));
    }
};

/// An array of the elements.
template <IsVector T>
struct Persist<T> {
    static void save(cereal::JSONOutputArchive& archive, const T& value)
    {
        archive.startArray();
        for (const auto& element : value) {
            archive.separate();
            Persist<typename T::value_type>::save(archive, element);
        }
        archive.endArray();
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        const std::size_t size = archive.enterArray();
        value.clear();
        PersistDetails::reserveForLoad(value, size);
        for (std::size_t index = 0; index < size; ++index) {
            archive.unnamed(value.emplace_back());
        }
        archive.leave();
    }
};

/// An array of the elements, of which a file must state as many as there are.
template <class T, std::size_t Size>
struct Persist<std::array<T, Size>> {
    static void save(cereal::JSONOutputArchive& archive, const std::array<T, Size>& value)
    {
        archive.startArray();
        for (const T& element : value) {
            archive.unnamed(element);
        }
        archive.endArray();
    }

    static void load(cereal::JSONInputArchive& archive, std::array<T, Size>& value)
    {
        if (archive.enterArray() != Size) {
            throw cereal::Exception("An array of " + std::to_string(Size) + " elements has another size");
        }
        for (T& element : value) {
            archive.unnamed(element);
        }
        archive.leave();
    }
};

/// An array of objects with the keys "key" and "value". Of two entries with one key the first stays. A hash map is
/// written in the order of its keys, so that equal maps give the same text.
template <IsMap T>
struct Persist<T> {
    static void save(cereal::JSONOutputArchive& archive, const T& value)
    {
        archive.startArray();
        if constexpr (IsHashMap<T>) {
            std::vector<const typename T::value_type*> entries;
            entries.reserve(value.size());
            for (const auto& entry : value) {
                entries.push_back(&entry);
            }
            std::sort(entries.begin(), entries.end(),
                      [](const auto* left, const auto* right) { return left->first < right->first; });
            for (const auto* const entry : entries) {
                saveEntry(archive, *entry);
            }
        } else {
            for (const auto& entry : value) {
                saveEntry(archive, entry);
            }
        }
        archive.endArray();
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        const std::size_t size = archive.enterArray();
        value.clear();
        if constexpr (requires { value.reserve(size); }) {
            PersistDetails::reserveForLoad(value, size);
        }
        for (std::size_t index = 0; index < size; ++index) {
            typename T::key_type key{};
            typename T::mapped_type mapped{};
            archive.seekUnnamed();
            archive.enterObject();
            archive.member("key", key);
            archive.member("value", mapped);
            archive.leave();
            value.emplace(std::move(key), std::move(mapped));
        }
        archive.leave();
    }

private:
    static void saveEntry(cereal::JSONOutputArchive& archive, const typename T::value_type& entry)
    {
        archive.separate();
        archive.startObject();
        archive.member("key", entry.first);
        archive.member("value", entry.second);
        archive.endObject();
    }
};

/// An array of the elements in their order.
template <IsSet T>
struct Persist<T> {
    static void save(cereal::JSONOutputArchive& archive, const T& value)
    {
        archive.startArray();
        for (const auto& element : value) {
            archive.unnamed(element);
        }
        archive.endArray();
    }

    static void load(cereal::JSONInputArchive& archive, T& value)
    {
        const std::size_t size = archive.enterArray();
        value.clear();
        for (std::size_t index = 0; index < size; ++index) {
            typename T::value_type element{};
            archive.unnamed(element);
            value.insert(value.end(), std::move(element));
        }
        archive.leave();
    }
};

} // namespace QN
