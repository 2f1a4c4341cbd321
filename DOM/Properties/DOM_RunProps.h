#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class FontProps;
class RegularLineProps;

/// What is said of characters. Each member may be absent.
class DOM_API RunProps {
public:
    /// The colour behind the characters.
    const boost::optional<Color>& getBackgroundColor() const { return _backgroundColor; }
    void setBackgroundColor(boost::optional<Color> color) { _backgroundColor = std::move(color); }

    BoolOpt getCaps() const { return _caps; }
    void setCaps(BoolOpt caps) { _caps = caps; }

    const boost::optional<Color>& getColor() const { return _color; }
    void setColor(boost::optional<Color> color) { _color = std::move(color); }

    const std::shared_ptr<const FontProps>& getFontProps() const { return _fontProps; }
    void setFontProps(std::shared_ptr<const FontProps> props) { _fontProps = std::move(props); }

    BoolOpt getSmallCaps() const { return _smallCaps; }
    void setSmallCaps(BoolOpt smallCaps) { _smallCaps = smallCaps; }

    /// What is added to the distance between characters.
    boost::optional<float> getSpacing() const { return _spacing; }
    void setSpacing(boost::optional<float> spacing) { _spacing = spacing; }

    BoolOpt getStrikeThrough() const { return _strikeThrough; }
    void setStrikeThrough(BoolOpt strikeThrough) { _strikeThrough = strikeThrough; }

    BoolOpt getEmbossed() const { return _embossed; }
    void setEmbossed(BoolOpt embossed) { _embossed = embossed; }

    BoolOpt getEngraved() const { return _engraved; }
    void setEngraved(BoolOpt engraved) { _engraved = engraved; }

    const std::shared_ptr<const RegularLineProps>& getUnderline() const { return _underline; }
    void setUnderline(std::shared_ptr<const RegularLineProps> line) { _underline = std::move(line); }

    BoolOpt getShadow() const { return _shadow; }
    void setShadow(BoolOpt shadow) { _shadow = shadow; }

    QN_ORDERED_VALUE(RunProps)

private:
    boost::optional<Color> _backgroundColor;
    BoolOpt _caps;
    boost::optional<Color> _color;
    std::shared_ptr<const FontProps> _fontProps;
    BoolOpt _smallCaps;
    boost::optional<float> _spacing;
    BoolOpt _strikeThrough;
    BoolOpt _embossed;
    BoolOpt _engraved;
    std::shared_ptr<const RegularLineProps> _underline;
    BoolOpt _shadow;

    BOOST_DESCRIBE_CLASS(RunProps, (), (), (),
                         (_backgroundColor, _caps, _color, _fontProps, _smallCaps, _spacing, _strikeThrough,
                          _embossed, _engraved, _underline, _shadow))
};

/// The underline is replaced and excluded whole; two underlines intersect member by member. After a rebase both the font
/// and the underline are present, if empty.
QN_DECLARE_ALGEBRA(RunProps)

} // namespace QN::DOM
