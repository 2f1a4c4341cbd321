#include "DOM/DOM_UserInfo.h"

#include <boost/regex.hpp>

#include <stdexcept>

#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/PaletteColor.h"

namespace QN::DOM {

namespace {

/// Whether an address was found. A text on which the search gives up for its cost has none.
bool findAddress(const std::string& text, boost::smatch& match)
{
    static const boost::regex Address(R"((^|\s)<(?<email>.+@.+)>$)");
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
