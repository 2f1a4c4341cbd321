#include "Utils/Public/UUID.h"

#include <array>

#include "Utils/Public/Environment.h"
#include "Utils/Public/MixBits.h"

namespace QN {

namespace {

constexpr std::size_t TextLength = 36;
constexpr std::size_t DigitsPerHalf = 16;

constexpr bool isHyphenPosition(std::size_t position)
{
    return position == 8 || position == 13 || position == 18 || position == 23;
}

/// The value of a hexadecimal digit, or -1.
constexpr int getDigitValue(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    if (digit >= 'a' && digit <= 'f') {
        return digit - 'a' + 10;
    }
    if (digit >= 'A' && digit <= 'F') {
        return digit - 'A' + 10;
    }
    return -1;
}

[[noreturn]] void failOn(boost::string_ref text)
{
    throw BadUUIDError("Malformed UUID: \"" + std::string(text.data(), text.size()) + "\"");
}

/// A permutation of the 128-bit values: a Feistel network, so that no two values fall together.
constexpr void permute(std::uint64_t& high, std::uint64_t& low)
{
    for (std::uint64_t round = 0; round < 3; ++round) {
        low ^= mixBits(high + 2 * round);
        high ^= mixBits(low + 2 * round + 1);
    }
}

} // namespace

UUID::UUID(boost::string_ref text)
{
    if (text.size() != TextLength) {
        failOn(text);
    }
    std::array<std::uint64_t, 2> halves{};
    std::size_t digits = 0;
    for (std::size_t position = 0; position < TextLength; ++position) {
        if (isHyphenPosition(position)) {
            if (text[position] != '-') {
                failOn(text);
            }
            continue;
        }
        const int digit = getDigitValue(text[position]);
        if (digit < 0) {
            failOn(text);
        }
        std::uint64_t& half = halves[digits++ / DigitsPerHalf];
        half = half << 4U | static_cast<std::uint64_t>(digit);
    }
    _high = halves[0];
    _low = halves[1];
}

UUID UUID::generate()
{
    // Version 4, variant 1: the fixed bits alone keep the value from being nil.
    return Environment::processWithRandomNumberGenerator<UUID>(
        [](Environment::RandomNumberGenerator& generator) {
            const std::uint64_t high = generator();
            const std::uint64_t low = generator();
            return UUID((high & 0xffffffffffff0fffU) | 0x4000U,
                        (low & 0x3fffffffffffffffU) | 0x8000000000000000U);
        });
}

UUID UUID::combine(const UUID& other) const
{
    // Permuting one operand before they meet tells the two apart; each step alone loses nothing.
    std::uint64_t high = _high;
    std::uint64_t low = _low;
    permute(high, low);
    high ^= other._high;
    low ^= other._low;
    permute(high, low);
    return {high, low};
}

std::size_t UUID::getHash(std::uint64_t seed) const
{
    return mixBits(mixBits(_high ^ seed) ^ _low);
}

std::string UUID::toString() const
{
    constexpr const char* Digits = "0123456789abcdef";
    std::string text(TextLength, '-');
    std::size_t digits = 0;
    for (std::size_t position = 0; position < TextLength; ++position) {
        if (!isHyphenPosition(position)) {
            const std::uint64_t half = digits < DigitsPerHalf ? _high : _low;
            const std::size_t shift = 4 * (DigitsPerHalf - 1 - digits++ % DigitsPerHalf);
            text[position] = Digits[(half >> shift) & 0xfU];
        }
    }
    return text;
}

} // namespace QN
