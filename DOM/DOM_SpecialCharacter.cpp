#include "DOM/DOM_SpecialCharacter.h"

#include "Utils/Public/UTF8.h"

namespace QN::DOM {

std::string getSpecialCharAsUTF8(SpecialCharacter character)
{
    return getUTF8String(static_cast<char32_t>(character));
}

} // namespace QN::DOM
