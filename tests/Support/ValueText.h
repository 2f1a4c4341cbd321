#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>

#include "Support/RoundTrip.h"

/// The JSON text of a value by itself, whatever its kind, without the object around it.

namespace QN::Test {

inline constexpr std::string_view ValueTextBegin = "{\"object\":";

template <class T>
std::string toText(const T& value, const cereal::JSONOutputArchive::Options& options = {})
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream, options);
        archive.member("object", value);
    }
    const std::string json = stream.str();
    EXPECT_EQ(json.substr(0, ValueTextBegin.size()), ValueTextBegin);
    EXPECT_EQ(json.back(), '}');
    return json.substr(ValueTextBegin.size(), json.size() - ValueTextBegin.size() - 1);
}

template <class T>
void loadText(std::string_view text, T& value, const cereal::JSONInputArchive::Options& options = {})
{
    std::istringstream stream(std::string(ValueTextBegin) + std::string(text) + "}");
    cereal::JSONInputArchive archive(stream, options);
    archive.member("object", value);
}

template <class T>
T fromText(std::string_view text)
{
    T value{};
    loadText(text, value);
    return value;
}

/// The message of the exception of exactly the class `Error` that a load ends with, or a text that says what else
/// came of it.
template <class T, class Error = cereal::Exception>
std::string textError(std::string_view text)
{
    T value{};
    try {
        loadText(text, value);
    } catch (const Error& error) {
        return typeid(error) == typeid(Error) ? error.what() : "<another exception>";
    }
    return "<loaded>";
}

/// What a failed check of a value's type or range raises.
template <class T>
std::string typeError(std::string_view text)
{
    constexpr std::string_view Begin = "rapidjson internal assertion failure: ";
    const std::string message = textError<T, cereal::RapidJSONException>(text);
    return message.substr(0, Begin.size()) == Begin ? message.substr(Begin.size()) : "<" + message + ">";
}

/// The value has exactly this text, loads from it, and lives up to what every persisted value must.
template <class T>
void expectText(const T& value, std::string_view text)
{
    EXPECT_EQ(toText(value), text);
    EXPECT_TRUE(areMembersDeeplyEqual(fromText<T>(text), value)) << text;
    const std::string json = std::string(ValueTextBegin) + std::string(text) + "}";
    for (unsigned seed = 1; seed <= 4; ++seed) {
        std::istringstream stream(shuffleMembers(json, seed));
        T loaded{};
        {
            cereal::JSONInputArchive archive(stream);
            archive.member("object", loaded);
        }
        EXPECT_EQ(toText(loaded), text) << stream.str();
    }
    forEachMissingMember(json, [](const std::string& lacking, const std::string& key) {
        std::istringstream stream(lacking);
        T loaded{};
        cereal::JSONInputArchive archive(stream);
        try {
            archive.member("object", loaded);
            ADD_FAILURE() << "loaded: " << lacking;
        } catch (const cereal::Exception& error) {
            EXPECT_EQ(error.what(), "JSON Parsing failed - provided NVP (" + key + ") not found") << lacking;
        }
    });
}

} // namespace QN::Test
