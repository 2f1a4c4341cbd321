#include "Utils/Public/UTF8.h"

namespace QN {

std::string getUTF8String(char32_t codePoint)
{
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (isSurrogate || codePoint > 0x10FFFF) {
        throw BadCodePointError();
    }
    const auto trailing = [codePoint](int shift) {
        return static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
    };
    if (codePoint < 0x80) {
        return {static_cast<char>(codePoint)};
    }
    if (codePoint < 0x800) {
        return {static_cast<char>(0xC0U | (codePoint >> 6U)), trailing(0)};
    }
    if (codePoint < 0x10000) {
        return {static_cast<char>(0xE0U | (codePoint >> 12U)), trailing(6), trailing(0)};
    }
    return {static_cast<char>(0xF0U | (codePoint >> 18U)), trailing(12), trailing(6), trailing(0)};
}

} // namespace QN
