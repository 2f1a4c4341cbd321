#pragma once

#include <string>

#include "Utils/Public/BaseRuntimeError.h"
#include "Utils/Public/Export.h"

namespace QN {

/// A number that is no Unicode scalar value: a surrogate, or one past U+10FFFF.
class DOM_API BadCodePointError : public BaseRuntimeError {
public:
    BadCodePointError() : BaseRuntimeError("Invalid code point") {}
};

/// The UTF-8 encoding of one code point, 1 to 4 bytes. Throws `BadCodePointError`.
DOM_API std::string getUTF8String(char32_t codePoint);

/// Whether a code point ends a line: line feed, carriage return, next line, line separator and paragraph separator.
/// A form feed does not; it is a break within a paragraph.
constexpr bool isEOL(char32_t codePoint)
{
    return codePoint == U'\n' || codePoint == U'\r' || codePoint == U'\u0085' || codePoint == U'\u2028' ||
           codePoint == U'\u2029';
}

} // namespace QN
