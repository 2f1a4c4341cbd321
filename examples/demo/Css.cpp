#include "Css.h"

#include <array>
#include <cmath>

#include "Text.h"

namespace Demo {

using namespace QN::DOM;

namespace {

using Rgba = cinder::ColorAT<unsigned char>;

/// Mixes a colour with white or black: a share of 1 is all of the colour.
Rgba mix(const Rgba& color, double share, double other)
{
    const auto mixOne = [&](unsigned char channel) {
        return static_cast<unsigned char>(std::lround(channel * share + other * (1.0 - share)));
    };
    return {mixOne(color.r), mixOne(color.g), mixOne(color.b), color.a};
}

/// The slot of the colour scheme that a name of the document stands for.
ThemeColorId findSlot(ThemeColorId id, const Document& document)
{
    if (document.getColorMap() != nullptr) {
        if (const auto mapped = document.getColorMap()->getMapping(id)) {
            return *mapped;
        }
    }
    switch (id) {
    case ThemeColorId::Text1:
        return ThemeColorId::Dark1;
    case ThemeColorId::Text2:
        return ThemeColorId::Dark2;
    case ThemeColorId::Background1:
        return ThemeColorId::Light1;
    case ThemeColorId::Background2:
        return ThemeColorId::Light2;
    default:
        return id;
    }
}

Rgba resolve(const Color& color, const Document& document)
{
    constexpr Rgba Black(0, 0, 0, 255);
    Rgba resolved = Black;
    if (const auto* const literal = boost::get<Rgba>(&color.getValue())) {
        resolved = *literal;
    } else if (const auto* const id = boost::get<ThemeColorId>(&color.getValue());
               id != nullptr && document.getTheme() != nullptr) {
        resolved = resolve(document.getTheme()->getColorScheme().getColor(findSlot(*id, document)), document);
    }
    for (const ColorTransform& transform : color.getTransforms()) {
        if (const auto* const tint = boost::get<Tint>(&transform)) {
            resolved = mix(resolved, tint->get(), 255.0);
        } else if (const auto* const shade = boost::get<Shade>(&transform)) {
            resolved = mix(resolved, shade->get(), 0.0);
        }
    }
    return resolved;
}

std::string toCss(const FontProps& font, const Document& document)
{
    std::string css;
    std::string family;
    if (const auto* const name = boost::get<std::string>(&font.getFont())) {
        family = *name;
    } else if (const auto* const id = boost::get<ThemeFontId>(&font.getFont());
               id != nullptr && document.getTheme() != nullptr) {
        const FontScheme& fonts = document.getTheme()->getFontScheme();
        family = *id == ThemeFontId::Major ? fonts.getMajorFontName() : fonts.getMinorFontName();
    }
    if (!family.empty()) {
        css += "font-family:'" + family + "',Charter,Palatino,Georgia,serif;";
    }
    if (font.getSize()) {
        css += "font-size:" + toFixed(*font.getSize(), 1) + "pt;";
    }
    if (font.getBold()) {
        css += *font.getBold() ? "font-weight:bold;" : "font-weight:normal;";
    }
    if (font.getItalic()) {
        css += *font.getItalic() ? "font-style:italic;" : "font-style:normal;";
    }
    return css;
}

std::string declareLength(const char* name, float points)
{
    return std::string(name) + ':' + toFixed(points, 1) + "pt;";
}

} // namespace

std::string toCss(const Color& color, const Document& document)
{
    const Rgba rgba = resolve(color, document);
    return "rgba(" + std::to_string(rgba.r) + ',' + std::to_string(rgba.g) + ',' + std::to_string(rgba.b) +
           ',' + toFixed(rgba.a / 255.0, 2) + ')';
}

std::string toCss(const Fill* fill, const Document& document)
{
    const auto* const solid = dynamic_cast<const SolidFill*>(fill);
    return solid != nullptr && solid->getColor() ? toCss(*solid->getColor(), document) : "none";
}

std::string toCss(const RunProps* props, const Document& document)
{
    std::string css;
    if (props != nullptr) {
        if (props->getFontProps()) {
            css += toCss(*props->getFontProps(), document);
        }
        if (props->getColor()) {
            css += "color:" + toCss(*props->getColor(), document) + ';';
        }
        if (props->getUnderline()) {
            css += "text-decoration:underline;";
        }
    }
    return css;
}

std::string toCss(const ParaProps* props)
{
    std::string css;
    if (props == nullptr) {
        return css;
    }
    if (props->getBeforeSpacing() && !props->getBeforeSpacing()->isAuto()) {
        css += declareLength("margin-top", props->getBeforeSpacing()->getValue());
    }
    if (props->getAfterSpacing() && !props->getAfterSpacing()->isAuto()) {
        css += declareLength("margin-bottom", props->getAfterSpacing()->getValue());
    }
    if (props->getLeftIndent()) {
        css += declareLength("margin-left", *props->getLeftIndent());
    }
    if (props->getFirstLineIndent()) {
        css += declareLength("text-indent", *props->getFirstLineIndent());
    }
    if (props->getLineSpacing() && props->getLineSpacing()->getRule() == LineSpacingRule::Multiple) {
        css += "line-height:" + toFixed(props->getLineSpacing()->getValue() * 1.2, 2) + ';';
    }
    if (props->getAlignment()) {
        constexpr std::array<const char*, 5> Alignments = {"left", "center", "right", "justify", "justify"};
        const auto alignment = static_cast<std::size_t>(*props->getAlignment());
        css += std::string("text-align:") + (alignment < Alignments.size() ? Alignments[alignment] : "left") +
               ';';
    }
    if (props->getTabStops() && !props->getTabStops()->empty()) {
        // A browser has tab stops at equal distances only.
        css += declareLength("tab-size", props->getTabStops()->begin()->first);
    }
    return css;
}

std::string toCss(const CellProps* props, const Document& document)
{
    std::string css;
    if (props != nullptr && props->getFill()) {
        css += "background:" + toCss(props->getFill().get(), document) + ';';
    }
    return css;
}

} // namespace Demo
