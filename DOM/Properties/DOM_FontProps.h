#pragma once

#include <boost/blank.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <string>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_ScriptPosition.h"
#include "DOM/Properties/DOM_ThemeFontId.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What is said of the font of characters. Each member may be absent.
class DOM_API FontProps {
public:
    /// No font said, the name of a font family, or a font of the theme.
    using Font = boost::variant<boost::blank, std::string, ThemeFontId>;

    const Font& getFont() const { return _font; }
    void setFont(Font font) { _font = std::move(font); }

    /// In points.
    boost::optional<float> getSize() const { return _fontSize; }
    void setSize(boost::optional<float> size) { _fontSize = size; }

    boost::optional<ScriptPosition> getScriptPosition() const { return _scriptPosition; }
    void setScriptPosition(boost::optional<ScriptPosition> position) { _scriptPosition = position; }

    BoolOpt getBold() const { return _bold; }
    void setBold(BoolOpt bold) { _bold = bold; }

    BoolOpt getItalic() const { return _italic; }
    void setItalic(BoolOpt italic) { _italic = italic; }

    QN_ORDERED_VALUE(FontProps)

private:
    Font _font;
    boost::optional<float> _fontSize;
    boost::optional<ScriptPosition> _scriptPosition;
    BoolOpt _bold;
    BoolOpt _italic;

    BOOST_DESCRIBE_CLASS(FontProps, (), (), (), (_font, _fontSize, _scriptPosition, _bold, _italic))
};

QN_DECLARE_ALGEBRA(FontProps)

} // namespace QN::DOM
