#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace boost {
template <typename T, std::size_t NumDims, typename TPtr>
class const_multi_array_ref;
} // namespace boost

namespace cinder {
template <typename T>
struct ColorT;
} // namespace cinder

namespace QN::DOM {

/// The author of a comment or of a change.
class DOM_API UserInfo {
public:
    /// One row of colours; `boost::const_multi_array_ref` makes it of an array.
    using PaletteColor = cinder::ColorT<unsigned char>;
    using Palette = boost::const_multi_array_ref<PaletteColor, 1, const PaletteColor*>;

    UserInfo() = default;
    UserInfo(std::string name, std::string email) : _name(std::move(name)), _email(std::move(email)) {}

    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

    const std::string& getEmail() const { return _email; }
    void setEmail(std::string email) { _email = std::move(email); }

    /// The name and the address, as in "Jane Roe <jane@example.org>"; one alone where the other is empty.
    std::string toString() const;

    /// Reads what `toString` writes. An address stands in angle brackets, holds an "@" with text on both sides, ends the
    /// text or a line of it, and begins it or follows a white space, which belongs to neither part. The first bracket
    /// that can begin one does, so that brackets in a name can go to the address. A text without an address is a name as
    /// a whole. So is a text on which the search gives up for its cost: one of many thousand characters with an "@" for
    /// most of them.
    static UserInfo fromString(std::string text);

    /// One colour for as long as the address, or, without an address, the name stays the same. An empty palette fails the
    /// contract "!palette.empty()".
    PaletteColor getPaletteColor(Palette palette) const;

    QN_ORDERED_VALUE(UserInfo)

private:
    std::string _name;
    std::string _email;

    BOOST_DESCRIBE_CLASS(UserInfo, (), (), (), (_name, _email))
};

} // namespace QN::DOM
