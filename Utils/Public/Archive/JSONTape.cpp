#include "Utils/Public/Archive/JSONTape.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

#include "Utils/Public/Archive/JSONText.h"
#include "Utils/Public/Archive/RapidJSON.h"

namespace cereal::detail {

namespace {

using Kind = TapeNode::Kind;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The value of a hexadecimal digit, 16 for anything else.
unsigned hexValue(char c)
{
    if (isDigit(c)) {
        return static_cast<unsigned>(c - '0');
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? static_cast<unsigned>(lower - 'a') + 10 : 16;
}

/// What the character behind a backslash stands for, 0 where it stands for nothing.
char unescape(char c)
{
    switch (c) {
    case '"':
    case '\\':
    case '/':
        return c;
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return '\0';
    }
}

} // namespace

/// Parses by RFC 8259, with the tokens `NaN`, `Infinity` and `-Infinity` for numbers that are not finite. The text ends in
/// NULs, which no value holds unescaped, so that no step looks for the end.
class TapeParser {
public:
    TapeParser(JSONTape& tape, char* text, std::uint32_t limit) : _tape(tape), _in(text), _limit(limit) {}

    /// @return where the value and the space behind it end.
    const char* parse()
    {
        parseValue();
        while (!_open.empty()) {
            continueContainer();
        }
        skipSpace();
        return _in;
    }

private:
    /// A container whose end has not come yet.
    struct Open {
        std::size_t node;
        std::size_t count;
        bool isObject;
    };

    [[noreturn]] static void fail() { throwFailedCheck("IsObject()"); }

    void skipSpace()
    {
        while (*_in == ' ' || *_in == '\n' || *_in == '\r' || *_in == '\t') {
            ++_in;
        }
    }

    /// One scalar, or the opening bracket of a container.
    void parseValue()
    {
        skipSpace();
        switch (*_in) {
        case '{':
            open(Kind::Object);
            break;
        case '[':
            open(Kind::Array);
            break;
        case '"':
            parseString();
            break;
        case 't':
            parseToken("true", Kind::True, 0);
            break;
        case 'f':
            parseToken("false", Kind::False, 0);
            break;
        case 'n':
            parseToken("null", Kind::Null, 0);
            break;
        case 'N':
            parseDoubleToken("NaN", std::numeric_limits<double>::quiet_NaN());
            break;
        case 'I':
            parseDoubleToken("Infinity", std::numeric_limits<double>::infinity());
            break;
        default:
            parseNumber();
        }
    }

    void open(Kind kind)
    {
        ++_in;
        _open.push_back({_tape._size, 0, kind == Kind::Object});
        append(kind, 0, 0);
    }

    /// The next member or element of the innermost container, or its closing bracket.
    void continueContainer()
    {
        Open& container = _open.back();
        skipSpace();
        if (*_in == (container.isObject ? '}' : ']')) {
            ++_in;
            close();
            return;
        }
        if (container.count++ != 0) {
            if (*_in++ != ',') {
                fail();
            }
            skipSpace();
        }
        if (container.isObject) {
            if (*_in != '"') {
                fail();
            }
            parseString();
            skipSpace();
            if (*_in++ != ':') {
                fail();
            }
        }
        parseValue();
    }

    void close()
    {
        const Open container = _open.back();
        _open.pop_back();
        const std::size_t size = _tape._size - container.node;
        if (size > _limit) {
            fail();
        }
        TapeNode& node = _tape._nodes.get()[container.node];
        node.payload = container.count;
        node.size = static_cast<std::uint32_t>(size);
    }

    void parseToken(std::string_view token, Kind kind, std::uint64_t payload)
    {
        if (std::strncmp(_in, token.data(), token.size()) != 0) {
            fail();
        }
        _in += token.size();
        append(kind, payload, 0);
    }

    void parseDoubleToken(std::string_view token, double value)
    {
        parseToken(token, Kind::Double, std::bit_cast<std::uint64_t>(value));
    }

    void parseNumber()
    {
        const char* const begin = _in;
        const bool isNegative = *_in == '-';
        if (isNegative) {
            ++_in;
            if (*_in == 'I') {
                parseDoubleToken("Infinity", -std::numeric_limits<double>::infinity());
                return;
            }
        }
        if (!isDigit(*_in)) {
            fail();
        }
        if (*_in == '0' && isDigit(_in[1])) {
            fail();
        }
        std::uint64_t number = 0;
        bool fits = true;
        while (isDigit(*_in)) {
            const auto digit = static_cast<std::uint64_t>(*_in++ - '0');
            constexpr std::uint64_t Largest = std::numeric_limits<std::uint64_t>::max();
            fits = fits && (number < Largest / 10 || (number == Largest / 10 && digit <= Largest % 10));
            number = number * 10 + digit;
        }
        constexpr std::uint64_t LargestNegative = 1ULL << 63U;
        fits = fits && (!isNegative || number <= LargestNegative);
        if (*_in == '.' || *_in == 'e' || *_in == 'E' || !fits) {
            parseDouble(begin);
        } else if (isNegative && number != 0) {
            append(Kind::Negative, 0 - number, 0);
        } else {
            append(Kind::NonNegative, number, 0);
        }
    }

    /// A number whose integer digits were read already.
    void parseDouble(const char* begin)
    {
        if (*_in == '.') {
            ++_in;
            skipDigits();
        }
        if (*_in == 'e' || *_in == 'E') {
            ++_in;
            if (*_in == '+' || *_in == '-') {
                ++_in;
            }
            skipDigits();
        }
        double value = 0;
        if (std::from_chars(begin, _in, value).ec == std::errc::result_out_of_range) {
            value = roundOutOfRange({begin, static_cast<std::size_t>(_in - begin)});
        }
        append(Kind::Double, std::bit_cast<std::uint64_t>(value), 0);
    }

    void skipDigits()
    {
        if (!isDigit(*_in)) {
            fail();
        }
        while (isDigit(*_in)) {
            ++_in;
        }
    }

    /// A number too small for a double is a zero of its sign, one too large is an error. Which of the two a number is that
    /// no double holds follows from the place of its first digit.
    static double roundOutOfRange(std::string_view number)
    {
        const bool isNegative = number.front() == '-';
        const std::size_t exponentMark = std::min(number.find_first_of("eE"), number.size());
        const std::string_view digits = number.substr(0, exponentMark);
        const std::size_t point = std::min(digits.find('.'), digits.size());
        const std::size_t first = digits.find_first_of("123456789");
        std::string_view exponentText = number.substr(exponentMark);
        constexpr std::int64_t Unbounded = std::numeric_limits<std::int64_t>::max() / 4;
        std::int64_t exponent = 0;
        if (!exponentText.empty()) {
            exponentText.remove_prefix(exponentText[1] == '+' ? 2 : 1);
            const bool isSmall = exponentText.front() == '-';
            if (std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent)
                    .ec == std::errc::result_out_of_range) {
                exponent = isSmall ? -Unbounded : Unbounded;
            }
        }
        const std::int64_t place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
        if (std::clamp(exponent, -Unbounded, Unbounded) + place > 0) {
            fail();
        }
        return isNegative ? -0.0 : 0.0;
    }

    /// Unescapes in place: what a string stands for is never longer than its text.
    void parseString()
    {
        char* const begin = ++_in;
        skipPlainBytes();
        char* out = _in;
        while (*_in != '"') {
            if (*_in != '\\') {
                fail();
            }
            parseEscape(out);
            char* const plain = _in;
            skipPlainBytes();
            const auto length = static_cast<std::size_t>(_in - plain);
            std::memmove(out, plain, length);
            out += length;
        }
        ++_in;
        const auto length = static_cast<std::size_t>(out - begin);
        if (length > _limit) {
            fail();
        }
        append(Kind::String, reinterpret_cast<std::uint64_t>(begin), static_cast<std::uint32_t>(length));
    }

    /// Up to the next quote, backslash or control character.
    void skipPlainBytes()
    {
        while (true) {
            std::uint64_t bytes;
            std::memcpy(&bytes, _in, sizeof bytes);
            const std::uint64_t special = findSpecialBytes(bytes);
            if (special != 0) {
                static_assert(std::endian::native == std::endian::little);
                _in += std::countr_zero(special) / 8;
                return;
            }
            _in += sizeof bytes;
        }
    }

    void parseEscape(char*& out)
    {
        ++_in;
        if (*_in == 'u') {
            ++_in;
            appendUtf8(out, parseCodePoint());
            return;
        }
        const char plain = unescape(*_in++);
        if (plain == '\0') {
            fail();
        }
        *out++ = plain;
    }

    /// Four hexadecimal digits, or two such escapes that are a surrogate pair.
    std::uint32_t parseCodePoint()
    {
        const std::uint32_t first = parseHex();
        if (first < 0xD800 || first > 0xDFFF) {
            return first;
        }
        if (first > 0xDBFF || _in[0] != '\\' || _in[1] != 'u') {
            fail();
        }
        _in += 2;
        const std::uint32_t second = parseHex();
        if (second < 0xDC00 || second > 0xDFFF) {
            fail();
        }
        return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
    }

    std::uint32_t parseHex()
    {
        std::uint32_t value = 0;
        for (int digit = 0; digit < 4; ++digit) {
            const unsigned hex = hexValue(*_in);
            if (hex > 15) {
                fail();
            }
            value = value * 16 + hex;
            ++_in;
        }
        return value;
    }

    static void appendUtf8(char*& out, std::uint32_t code)
    {
        const auto put = [&](std::uint32_t byte) { *out++ = static_cast<char>(byte); };
        if (code < 0x80) {
            put(code);
            return;
        }
        if (code < 0x800) {
            put(0xC0 | (code >> 6U));
        } else {
            if (code < 0x10000) {
                put(0xE0 | (code >> 12U));
            } else {
                put(0xF0 | (code >> 18U));
                put(0x80 | ((code >> 12U) & 0x3FU));
            }
            put(0x80 | ((code >> 6U) & 0x3FU));
        }
        put(0x80 | (code & 0x3FU));
    }

    void append(Kind kind, std::uint64_t payload, std::uint32_t size)
    {
        if (_tape._size == _capacity) {
            grow();
        }
        ::new (_tape._nodes.get() + _tape._size++) TapeNode{payload, size, kind};
    }

    /// By `realloc`, which moves the pages of a large block and not its bytes.
    void grow()
    {
        constexpr std::size_t FirstCapacity = 64;
        const std::size_t larger = _capacity == 0 ? FirstCapacity : _capacity * 2;
        void* const nodes = std::realloc(_tape._nodes.get(), larger * sizeof(TapeNode));
        if (nodes == nullptr) {     // GCOVR_EXCL_LINE: only without memory
            throw std::bad_alloc(); // GCOVR_EXCL_LINE
        }
        static_cast<void>(_tape._nodes.release());
        _tape._nodes.reset(static_cast<TapeNode*>(nodes));
        _capacity = larger;
    }

    JSONTape& _tape;
    char* _in;
    std::uint32_t _limit;
    std::size_t _capacity = 0;
    std::vector<Open> _open{};
};

JSONTape::JSONTape(std::string text, std::uint32_t limit) : _text(std::move(text))
{
    const std::size_t length = _text.size();
    _text.append(Padding, '\0');
    TapeParser parser(*this, _text.data(), limit);
    if (parser.parse() != _text.data() + length) {
        throwFailedCheck("IsObject()");
    }
}

} // namespace cereal::detail
