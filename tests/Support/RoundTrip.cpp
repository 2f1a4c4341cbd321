#include "Support/RoundTrip.h"

#include <algorithm>
#include <array>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

#include "Utils/Public/Archive/RapidJSON.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace QN::Test {

namespace {

constexpr unsigned ParseFlags = rapidjson::kParseFullPrecisionFlag | rapidjson::kParseNanAndInfFlag;

using Value = rapidjson::Value;
using Allocator = rapidjson::Document::AllocatorType;

rapidjson::Document parse(const std::string& json)
{
    rapidjson::Document document;
    document.Parse<ParseFlags>(json.data(), json.size());
    return document;
}

std::string write(const Value& value)
{
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>, rapidjson::CrtAllocator,
                      rapidjson::kWriteNanAndInfFlag>
        writer(buffer);
    value.Accept(writer);
    return {buffer.GetString(), buffer.GetSize()};
}

void shuffle(Value& value, Allocator& allocator, std::mt19937& random)
{
    if (value.IsArray()) {
        for (Value& element : value.GetArray()) {
            shuffle(element, allocator, random);
        }
    }
    if (!value.IsObject()) {
        return;
    }
    std::vector<std::pair<std::string, Value>> members;
    for (rapidjson::SizeType place = 0; place < value.MemberCount(); ++place) {
        auto& member = value.MemberBegin()[static_cast<std::ptrdiff_t>(place)];
        shuffle(member.value, allocator, random);
        members.emplace_back(std::string(member.name.GetString(), member.name.GetStringLength()),
                             std::move(member.value));
    }
    Value unknown(rapidjson::kObjectType);
    unknown.AddMember("value0", Value(rapidjson::kArrayType), allocator);
    members.emplace_back("unknown to everybody", std::move(unknown));
    members.emplace_back("", Value(12.5));
    std::shuffle(members.begin(), members.end(), random);
    value.SetObject();
    for (auto& [name, member] : members) {
        Value key(name.data(), static_cast<rapidjson::SizeType>(name.size()), allocator);
        value.AddMember(key, member, allocator);
    }
}

/// Walks the objects of a document in one order, and counts their members.
void forEachObject(Value& value, const std::function<void(Value& object)>& visit)
{
    if (value.IsArray()) {
        for (Value& element : value.GetArray()) {
            forEachObject(element, visit);
        }
    } else if (value.IsObject()) {
        visit(value);
        for (rapidjson::SizeType place = 0; place < value.MemberCount(); ++place) {
            forEachObject(value.MemberBegin()[static_cast<std::ptrdiff_t>(place)].value, visit);
        }
    }
}

/// Walks all values below the root in one order.
void forEachValue(Value& value, const std::function<void(Value& inner)>& visit)
{
    if (value.IsArray()) {
        for (Value& element : value.GetArray()) {
            visit(element);
            forEachValue(element, visit);
        }
    } else if (value.IsObject()) {
        for (rapidjson::SizeType place = 0; place < value.MemberCount(); ++place) {
            Value& member = value.MemberBegin()[static_cast<std::ptrdiff_t>(place)].value;
            visit(member);
            forEachValue(member, visit);
        }
    }
}

constexpr std::array<const char*, 22> Replacements{
    "null",       "true",       "false",      "0",          "1",
    "-1",         "127",        "256",        "2147483648", "-2147483649",
    "4294967295", "3221225473", "2147483649", "1073741824", "18446744073709551615",
    "1.5",        "NaN",        "-Infinity",  R"("")",      R"("QN")",
    "[]",         "{}"};

} // namespace

std::string shuffleMembers(const std::string& json, unsigned seed)
{
    std::mt19937 random(seed);
    rapidjson::Document document = parse(json);
    shuffle(document, document.GetAllocator(), random);
    return write(document);
}

void forEachMissingMember(const std::string& json,
                          const std::function<void(const std::string& text, const std::string& key)>& visit)
{
    std::size_t count = 0;
    rapidjson::Document whole = parse(json);
    forEachObject(whole, [&](Value& object) { count += object.MemberCount(); });
    for (std::size_t removed = 0; removed < count; ++removed) {
        rapidjson::Document document = parse(json);
        std::string key;
        std::size_t passed = 0;
        bool isDone = false;
        forEachObject(document, [&](Value& object) {
            if (!isDone && removed < passed + object.MemberCount()) {
                const auto member = object.MemberBegin() + static_cast<std::ptrdiff_t>(removed - passed);
                key.assign(member->name.GetString(), member->name.GetStringLength());
                object.EraseMember(member);
                isDone = true;
            }
            passed += object.MemberCount();
        });
        visit(write(document), key);
    }
}

void forEachReplacedValue(const std::string& json, const std::function<void(const std::string& text)>& visit)
{
    std::size_t count = 0;
    rapidjson::Document whole = parse(json);
    forEachValue(whole, [&](Value&) { ++count; });
    for (std::size_t replaced = 0; replaced < count; ++replaced) {
        for (const char* const replacement : Replacements) {
            rapidjson::Document document = parse(json);
            const rapidjson::Document other = parse(replacement);
            std::size_t passed = 0;
            Value* target = nullptr;
            forEachValue(document, [&](Value& value) {
                if (passed++ == replaced) {
                    target = &value;
                }
            });
            target->CopyFrom(other, document.GetAllocator());
            visit(write(document));
        }
    }
}

bool isStatedLoadError(const std::string& message)
{
    constexpr std::array<std::string_view, 12> Beginnings{
        "JSON Parsing failed - provided NVP (",
        "rapidjson internal assertion failure: ",
        "Trying to load an unregistered polymorphic type (",
        "Trying to load a registered polymorphic type with an unregistered polymorphic cast.",
        "Error while trying to deserialize a polymorphic pointer. Could not find type id ",
        "Cannot load a polymorphic type that is not default constructable and does not have a "
        "load_and_construct function",
        "Error while trying to deserialize a smart pointer. Could not find id ",
        "Invalid 'which' selector when deserializing boost::variant",
        "Error traversing variant during load",
        "Invalid Iterator Type!",
        "Malformed UUID: ",
        "Nesting limit of "};
    return std::any_of(Beginnings.begin(), Beginnings.end(),
                       [&](std::string_view beginning) { return message.starts_with(beginning); });
}

} // namespace QN::Test
