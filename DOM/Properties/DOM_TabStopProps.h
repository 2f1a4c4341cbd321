#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How text stands at a tab stop. Any other number passes through unchanged.
enum class TabStopType : std::int32_t {
    Left = 0,
    Center = 1,
    Right = 2,
    Decimal = 3, ///< aligns at the decimal separator, or at a character of the tab stop's own
    Bar = 4,     ///< draws a vertical line and stops nothing
    List = 5,    ///< follows a list marker
    Clear = 6,   ///< stops nothing: takes away the tab stop that a lower level has at this position
};

/// What fills the space that a tab leaves. Any other number passes through unchanged.
enum class TabStopLeader : std::int32_t {
    None = 0,
    Dot = 1,
    Hyphen = 2,
    Underscore = 3,
    Heavy = 4,
    MiddleDot = 5,
};

/// What stands at one tab position. A new one has the type `Clear`, which is 6 and not 0.
///
/// Orders by type, then leader, then `getTabStopChar`, then `getLeaderChar`, which is not the order of the keys.
class DOM_API TabStopProps {
public:
    TabStopType getType() const { return _type; }
    void setType(TabStopType type) { _type = type; }

    /// The character that text aligns at.
    const boost::optional<std::string>& getTabStopChar() const { return _tabStopChar; }
    void setTabStopChar(boost::optional<std::string> text) { _tabStopChar = std::move(text); }

    TabStopLeader getLeader() const { return _leader; }
    void setLeader(TabStopLeader leader) { _leader = leader; }

    /// The character that fills the space, in place of one of the leaders.
    const boost::optional<std::string>& getLeaderChar() const { return _leaderChar; }
    void setLeaderChar(boost::optional<std::string> text) { _leaderChar = std::move(text); }

    QN_ORDERED_VALUE(TabStopProps)

private:
    TabStopType _type = TabStopType::Clear;
    boost::optional<std::string> _tabStopChar;
    TabStopLeader _leader = TabStopLeader::None;
    boost::optional<std::string> _leaderChar;

    BOOST_DESCRIBE_CLASS(TabStopProps, (), (), (), (_type, _tabStopChar, _leader, _leaderChar))
};

} // namespace QN::DOM
