#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "Utils/Public/Export.h"

namespace cereal::detail {

/// One value of a parsed text, or one key of an object.
struct TapeNode {
    enum class Kind : std::uint8_t {
        Null,
        False,
        True,
        NonNegative,
        Negative,
        Double,
        String,
        Object,
        Array
    };

    /// The number, the address of a string's bytes, or how many members or elements follow.
    std::uint64_t payload;
    /// The length of a string; of an object or array, how many nodes it takes, itself included.
    std::uint32_t size;
    Kind kind;

    bool isContainer() const { return kind >= Kind::Object; }
    const TapeNode* next() const { return this + (isContainer() ? size : 1); }
    std::string_view string() const { return {reinterpret_cast<const char*>(payload), size}; }
};

/// A JSON text in parsed form: the nodes of all values one behind the other, in the order of the text, a member as its key
/// and its value. Parsed in one pass and without recursion, whatever the nesting. Strings stay where they stand in
/// the text, which is changed in place.
class DOM_API JSONTape {
public:
    /// So many NULs stand behind the text, that it can be read in words.
    static constexpr std::size_t Padding = sizeof(std::uint64_t);
    /// The most bytes of a string, and nodes of a container, that a node can count.
    static constexpr std::uint32_t MaxSize = std::numeric_limits<std::uint32_t>::max();

    /// @throws RapidJSONException when the text is not one JSON value, or has a string or container above the limit.
    explicit JSONTape(std::string text, std::uint32_t limit = MaxSize);
    JSONTape(const JSONTape&) = delete;
    JSONTape& operator=(const JSONTape&) = delete;
    ~JSONTape() = default;

    const TapeNode& root() const { return *_nodes; }

private:
    friend class TapeParser;

    struct Release {
        void operator()(TapeNode* nodes) const { std::free(nodes); }
    };

    std::string _text;
    std::unique_ptr<TapeNode, Release> _nodes;
    std::size_t _size = 0;
};

} // namespace cereal::detail
