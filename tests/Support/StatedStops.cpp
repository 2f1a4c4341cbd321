#include "Support/StatedStops.h"

#include <algorithm>
#include <vector>

#include "Utils/Public/Archive/RapidJSON.h"

namespace QN::Test {

namespace {

using Value = rapidjson::Value;

/// The numbers under "_value" in all members of that name, since a text can repeat a key.
std::vector<std::uint64_t> findPositions(const Value& object, std::string_view name)
{
    std::vector<std::uint64_t> positions;
    for (const auto& member : object.GetObject()) {
        if (std::string_view(member.name.GetString(), member.name.GetStringLength()) == name &&
            member.value.IsObject()) {
            for (const auto& inner : member.value.GetObject()) {
                if (std::string_view(inner.name.GetString(), inner.name.GetStringLength()) == "_value" &&
                    inner.value.IsUint64()) {
                    positions.push_back(inner.value.GetUint64());
                }
            }
        }
    }
    return positions;
}

bool isReversedRange(const Value& object)
{
    for (const std::uint64_t begin : findPositions(object, "_begin")) {
        for (const std::uint64_t end : findPositions(object, "_end")) {
            if (begin >= end) {
                return true;
            }
        }
    }
    return false;
}

/// Whether a check holds for any value at any level of a text; false for what is no JSON.
template <class Check>
bool anyValue(std::string_view json, const Check& check)
{
    constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNanAndInfFlag;
    rapidjson::Document document;
    document.Parse<Flags>(json.data(), json.size());
    if (document.HasParseError()) {
        return false;
    }
    std::vector<const Value*> open{&document};
    while (!open.empty()) {
        const Value& value = *open.back();
        open.pop_back();
        if (check(value)) {
            return true;
        }
        if (value.IsArray()) {
            for (const Value& element : value.GetArray()) {
                open.push_back(&element);
            }
        } else if (value.IsObject()) {
            for (const auto& member : value.GetObject()) {
                open.push_back(&member.value);
            }
        }
    }
    return false;
}

} // namespace

bool holdsReversedIndexRange(std::string_view json)
{
    return anyValue(json, [](const Value& value) { return value.IsObject() && isReversedRange(value); });
}

bool lacksOperand(std::string_view saved)
{
    const auto isNull = [](const Value& operand) {
        return operand["this->getPtr()"]["polymorphic_id"].GetUint() == 0;
    };
    return anyValue(saved, [&](const Value& value) {
        if (!value.IsObject()) {
            return false;
        }
        const auto operands = value.FindMember("_args");
        return operands != value.MemberEnd() &&
               (operands->value.Empty() ||
                std::any_of(operands->value.Begin(), operands->value.End(), isNull));
    });
}

} // namespace QN::Test
