#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>

#include "Utils/Public/Archive/JSONArchives.h"
#include "Utils/Public/Archive/PersistPointers.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/Archive/PersistUtils.h"
#include "Utils/Public/ClassScheme/Equality.h"

/// What every persisted class goes through in its tests.

namespace QN::Test {

/// Rewrites every object of a JSON text: its members in another order, with unknown members among them.
std::string shuffleMembers(const std::string& json, unsigned seed);

/// Calls `visit(text, key)` once for each member of each object at any level, with the text that lacks that member.
void forEachMissingMember(const std::string& json,
                          const std::function<void(const std::string& text, const std::string& key)>& visit);

/// Calls `visit(text)` with each value at any level replaced by a value of each kind: numbers at the limits of types, texts,
/// empty and full containers.
void forEachReplacedValue(const std::string& json, const std::function<void(const std::string& text)>& visit);

/// Whether loading a text may end with this message, whatever the class.
bool isStatedLoadError(const std::string& message);

/// Whether a class writes its own keys into the root object; other values are written under the key "object".
template <class T>
concept HasKeys = requires(T& value, cereal::JSONInputArchive& archive)
{
    value.serialize(archive);
};

template <class T>
std::string toJson(const T& value)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        if constexpr (HasKeys<T>) {
            value.serialize(archive);
        } else {
            archive.member("object", value);
        }
    }
    return stream.str();
}

template <class T>
void loadJson(const std::string& json, T& value)
{
    std::istringstream stream(json);
    cereal::JSONInputArchive archive(stream);
    if constexpr (HasKeys<T>) {
        value.serialize(archive);
    } else {
        archive.member("object", value);
    }
}

template <class T>
T fromJson(const std::string& json)
{
    T value{};
    loadJson(json, value);
    return value;
}

/// The message of the `cereal::Exception` that a load ends with, or a text that says that it did not.
template <class T>
std::string loadError(const std::string& json)
{
    try {
        fromJson<T>(json);
    } catch (const cereal::Exception& error) {
        return error.what();
    }
    return "<loaded>";
}

/// Saves, loads, compares, and saves again to the same bytes.
template <class T>
void expectRoundTrip(const T& value)
{
    const std::string json = toJson(value);
    const T loaded = fromJson<T>(json);
    EXPECT_TRUE(areMembersDeeplyEqual(value, loaded)) << json;
    EXPECT_EQ(toJson(loaded), json);
}

/// The order of the keys does not matter and unknown keys are ignored, at every level.
template <class T>
void expectOrderDoesNotMatter(const T& value, unsigned rounds = 4)
{
    const std::string json = toJson(value);
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        const std::string shuffled = shuffleMembers(json, seed);
        EXPECT_EQ(toJson(fromJson<T>(shuffled)), json) << shuffled;
    }
}

/// Each key, at every level, must be there.
template <class T>
void expectMissingKeysFail(const T& value)
{
    forEachMissingMember(toJson(value), [](const std::string& text, const std::string& key) {
        EXPECT_EQ(loadError<T>(text), "JSON Parsing failed - provided NVP (" + key + ") not found") << text;
    });
}

/// All of the above.
template <class T>
void expectPersists(const T& value)
{
    expectRoundTrip(value);
    expectOrderDoesNotMatter(value);
    expectMissingKeysFail(value);
}

} // namespace QN::Test
