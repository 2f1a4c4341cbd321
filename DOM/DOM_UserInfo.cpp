#include "DOM/DOM_UserInfo.h"

#include <boost/regex.hpp>

#include <locale>
#include <stdexcept>

#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/PaletteColor.h"

namespace QN::DOM {

namespace {

/// Reads bytes in the classic locale, whatever the global one is: in a locale with an 8-bit encoding a byte of a character
/// in UTF-8 can be a white space, and the text would be split inside that character.
boost::regex makeAddressRegex()
{
    boost::regex regex;
    regex.imbue(std::locale::classic());
    regex.assign(R"((^|\s)<(?<email>.+@.+)>$)");
    return regex;
}

/// Whether an address was found. A text on which the search gives up for its cost has none.
bool findAddress(const std::string& text, boost::smatch& match)
{
    static const boost::regex Address = makeAddressRegex();
    try {
        return boost::regex_search(text, match, Address);
    } catch (const std::runtime_error&) {
        return false;
    }
}

} // namespace

std::string UserInfo::toString() const
{
    std::string text = _name;
    if (_email.empty()) {
        return text;
    }
    if (!text.empty()) {
        text += ' ';
    }
    return text + '<' + _email + '>';
}

UserInfo UserInfo::fromString(std::string text)
{
    boost::smatch match;
    if (!findAddress(text, match)) {
        return UserInfo(std::move(text), std::string());
    }
    return UserInfo(match.prefix().str(), match["email"].str());
}

UserInfo::PaletteColor UserInfo::getPaletteColor(Palette palette) const
{
    return getPaletteColorForString(_email.empty() ? _name : _email, palette);
}

QN_DEFINE_ORDERED_VALUE(UserInfo)

} // namespace QN::DOM
