#include "Support/RoundTrip.h"

#include <algorithm>
#include <random>
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

} // namespace QN::Test
