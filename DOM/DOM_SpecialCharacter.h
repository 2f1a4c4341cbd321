#pragma once

#include <string>

#include "Utils/Public/Export.h"

namespace QN::DOM {

/// Code points of the private use area that stand for inline objects in the text of a paragraph, one for each object.
enum class SpecialCharacter : char32_t {
    Drawing = 0xE000,
    Bookmark = 0xE001,
    Field = 0xE002,
    Anchor = 0xE003,
};

DOM_API std::string getSpecialCharAsUTF8(SpecialCharacter character);

} // namespace QN::DOM
