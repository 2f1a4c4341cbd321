#include "DOM/DOM_DefaultTheme.h"

#include <initializer_list>
#include <memory>
#include <utility>

#include "DOM/DOM_Document.h"
#include "DOM/DOM_Theme.h"
#include "DOM/Properties/DOM_GradientFill.h"
#include "DOM/Properties/DOM_SolidFill.h"

namespace QN::DOM {

namespace {

Color opaque(unsigned char red, unsigned char green, unsigned char blue)
{
    return Color(cinder::ColorAT<unsigned char>(red, green, blue, 0xFF));
}

Color placeholder(std::initializer_list<ColorTransform> transforms = {})
{
    return {TaggedEmpty<PhClrTag>(), ColorTransforms(transforms)};
}

std::unique_ptr<Fill> makeSolidFill()
{
    auto fill = std::make_unique<SolidFill>();
    fill->setColor(placeholder());
    return fill;
}

struct Stop {
    double position;
    std::initializer_list<ColorTransform> transforms;
};

std::unique_ptr<Fill> makeGradientFill(std::initializer_list<Stop> stops)
{
    auto fill = std::make_unique<GradientFill>();
    fill->getGradientStops().reserve(stops.size());
    for (const auto& [position, transforms] : stops) {
        GradientStop& stop = fill->getGradientStops().emplace_back();
        stop.setPosition(position);
        stop.setColor(placeholder(transforms));
    }
    return fill;
}

std::unique_ptr<RegularLineProps> makeLine(Color color)
{
    auto line = std::make_unique<RegularLineProps>();
    line->setColor(std::move(color));
    return line;
}

ColorScheme makeColorScheme()
{
    ColorScheme scheme;
    scheme.setName("Office");
    scheme.setColor(ThemeColorId::Dark1, DefaultDark1Color);
    scheme.setColor(ThemeColorId::Dark2, DefaultDark2Color);
    scheme.setColor(ThemeColorId::Light1, DefaultLight1Color);
    scheme.setColor(ThemeColorId::Light2, DefaultLight2Color);
    scheme.setColor(ThemeColorId::Accent1, DefaultAccent1Color);
    scheme.setColor(ThemeColorId::Accent2, DefaultAccent2Color);
    scheme.setColor(ThemeColorId::Accent3, DefaultAccent3Color);
    scheme.setColor(ThemeColorId::Accent4, DefaultAccent4Color);
    scheme.setColor(ThemeColorId::Accent5, DefaultAccent5Color);
    scheme.setColor(ThemeColorId::Accent6, DefaultAccent6Color);
    scheme.setColor(ThemeColorId::Hyperlink, DefaultHyperlinkColor);
    scheme.setColor(ThemeColorId::FollowedHyperlink, DefaultFollowedHyperlinkColor);
    return scheme;
}

FontScheme makeFontScheme()
{
    FontScheme scheme;
    scheme.setName("Office");
    scheme.setMajorFontName("Calibri");
    scheme.setMinorFontName("Cambria");
    return scheme;
}

FormatScheme makeFormatScheme()
{
    using Saturate = SaturationModulation;
    FormatScheme scheme;
    scheme.setName("Office");

    auto& fills = scheme.getFills();
    fills.push_back(makeSolidFill());
    fills.push_back(makeGradientFill({{0.0, {Tint(0.5), Saturate(3.0)}},
                                      {0.35, {Tint(0.37), Saturate(3.0)}},
                                      {1.0, {Tint(0.15), Saturate(3.5)}}}));
    fills.push_back(makeGradientFill({{0.0, {Shade(0.51), Saturate(1.3)}},
                                      {0.8, {Shade(0.93), Saturate(1.3)}},
                                      {1.0, {Shade(0.94), Saturate(1.35)}}}));

    auto& lines = scheme.getLinePropsContainer();
    lines.push_back(makeLine(placeholder({Shade(0.95), Saturate(1.05)})));
    lines.push_back(makeLine(placeholder()));
    lines.push_back(makeLine(placeholder()));

    auto& backgroundFills = scheme.getBackgroundFills();
    backgroundFills.push_back(makeSolidFill());
    backgroundFills.push_back(makeGradientFill({{0.0, {Tint(0.4), Saturate(3.5)}},
                                                {0.4, {Tint(0.45), Shade(0.99), Saturate(3.5)}},
                                                {1.0, {Shade(0.2), Saturate(2.55)}}}));
    backgroundFills.push_back(
        makeGradientFill({{0.0, {Tint(0.8), Saturate(3.0)}}, {1.0, {Shade(0.3), Saturate(2.0)}}}));
    return scheme;
}

} // namespace

const Color DefaultDark1Color = opaque(0x00, 0x00, 0x00);
const Color DefaultDark2Color = opaque(0x1F, 0x49, 0x7D);
const Color DefaultLight1Color = opaque(0xFF, 0xFF, 0xFF);
const Color DefaultLight2Color = opaque(0xEE, 0xEC, 0xE1);
const Color DefaultAccent1Color = opaque(0x4F, 0x81, 0xBD);
const Color DefaultAccent2Color = opaque(0xC0, 0x50, 0x4D);
const Color DefaultAccent3Color = opaque(0x9B, 0xBB, 0x59);
const Color DefaultAccent4Color = opaque(0x80, 0x64, 0xA2);
const Color DefaultAccent5Color = opaque(0x4B, 0xAC, 0xC6);
const Color DefaultAccent6Color = opaque(0xF7, 0x96, 0x46);
const Color DefaultHyperlinkColor = opaque(0x00, 0x00, 0xFF);
const Color DefaultFollowedHyperlinkColor = opaque(0x80, 0x00, 0x80);

void setDefaultThemeIfNeeded(Document& document)
{
    if (document.getTheme() != nullptr) {
        return;
    }
    auto theme = std::make_unique<Theme>();
    theme->setName("Office Theme");
    theme->setColorScheme(makeColorScheme());
    theme->setFontScheme(makeFontScheme());
    theme->setFormatScheme(makeFormatScheme());
    document.setTheme(std::move(theme));
}

} // namespace QN::DOM
