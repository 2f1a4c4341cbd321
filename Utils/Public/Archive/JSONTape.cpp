#include "Utils/Public/Archive/JSONTape.h"

#include <bit>
#include <limits>
#include <new>
#include <vector>

#include "Utils/Public/Archive/RapidJSON.h"

namespace cereal::detail {

namespace {

constexpr unsigned ParseFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseInsituFlag |
                                rapidjson::kParseFullPrecisionFlag | rapidjson::kParseNanAndInfFlag;

} // namespace

/// Takes what the parser meets and appends it to the tape.
struct TapeBuilder {
    using Ch = char;
    using Kind = TapeNode::Kind;

    bool Null() { return append(Kind::Null, 0, 0); }
    bool Bool(bool value) { return append(value ? Kind::True : Kind::False, 0, 0); }
    bool Int(int value) { return Int64(value); }
    bool Uint(unsigned value) { return Uint64(value); }
    bool Int64(std::int64_t value)
    {
        return append(value < 0 ? Kind::Negative : Kind::NonNegative, static_cast<std::uint64_t>(value), 0);
    }
    bool Uint64(std::uint64_t value) { return append(Kind::NonNegative, value, 0); }
    bool Double(double value) { return append(Kind::Double, std::bit_cast<std::uint64_t>(value), 0); }
    bool RawNumber(const char* /*digits*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return false; }
    bool String(const char* bytes, rapidjson::SizeType length, bool /*copy*/)
    {
        return append(Kind::String, reinterpret_cast<std::uint64_t>(bytes), length);
    }
    bool Key(const char* bytes, rapidjson::SizeType length, bool copy) { return String(bytes, length, copy); }
    bool StartObject() { return start(Kind::Object); }
    bool EndObject(rapidjson::SizeType count) { return end(count); }
    bool StartArray() { return start(Kind::Array); }
    bool EndArray(rapidjson::SizeType count) { return end(count); }

    bool start(Kind kind)
    {
        open.push_back(tape._size);
        return append(kind, 0, 0);
    }

    bool end(std::size_t count)
    {
        const std::size_t size = tape._size - open.back();
        TapeNode& node = tape._nodes.get()[open.back()];
        open.pop_back();
        node.payload = count;
        node.size = static_cast<std::uint32_t>(size);
        return size <= std::numeric_limits<std::uint32_t>::max();
    }

    bool append(Kind kind, std::uint64_t payload, std::uint32_t size)
    {
        if (tape._size == capacity) {
            grow();
        }
        ::new (tape._nodes.get() + tape._size++) TapeNode{payload, size, kind};
        return true;
    }

    /// By `realloc`, which moves the pages of a large block and not its bytes.
    void grow()
    {
        constexpr std::size_t FirstCapacity = 64;
        const std::size_t larger = capacity == 0 ? FirstCapacity : capacity * 2;
        void* const nodes = std::realloc(tape._nodes.get(), larger * sizeof(TapeNode));
        if (nodes == nullptr) {
            throw std::bad_alloc();
        }
        static_cast<void>(tape._nodes.release());
        tape._nodes.reset(static_cast<TapeNode*>(nodes));
        capacity = larger;
    }

    JSONTape& tape;
    std::size_t capacity = 0;
    std::vector<std::size_t> open{};
};

JSONTape::JSONTape(std::string text) : _text(std::move(text))
{
    rapidjson::InsituStringStream stream(_text.data());
    TapeBuilder builder{*this};
    rapidjson::Reader reader;
    const rapidjson::ParseResult result = reader.Parse<ParseFlags>(stream, builder);
    if (result.IsError() || stream.Tell() != _text.size()) {
        throwFailedCheck("IsObject()");
    }
}

} // namespace cereal::detail
