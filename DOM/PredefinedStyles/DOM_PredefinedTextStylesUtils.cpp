#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"

#include <boost/utility/string_ref.hpp>

#include <fmt/format.h>

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

#include "DOM/PredefinedStyles/DOM_PredefinedStylesUtils.h"
#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Properties/DOM_Styles.h"
#include "Utils/Public/Assert.h"

namespace QN::DOM {

namespace {

constexpr const char* SourceFile = "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils";
constexpr const char* NoSuchStyle = "No named text style with such type.";
constexpr const char* FontFamily = "Quillon Serif";

constexpr std::array<const char*, 26> UUIDTexts{
    "219be34f-66e7-4590-8db5-375443207e49", "8b7a892e-b199-47bf-ba6d-139900efb7f5",
    "f60f239d-8df8-4dd8-892b-55f74995936b", "273d8959-017a-4c27-b9e1-b81cb2524c77",
    "ee1f0a89-da9e-49a9-99e6-c36bfa31a163", "82e87e7a-7e31-42a4-ac28-c3cc6337b790",
    "fda2f9c0-3d74-400e-b4df-77d0912ff13b", "0f213e29-9f13-48c2-80ea-12a35d8ad787",
    "95e06b7f-20a2-48c7-80f5-6d6991318aa3", "3eb14657-95e4-4c1a-a878-c91e512dc36e",
    "f2ae6ada-0216-44b0-b985-3655fdd434ff", "ed5825ee-6c33-4507-aba2-958216b80f01",
    "e4690313-4b3a-40ca-906b-d457e5e4f350", "9d83c8fe-e233-4037-8bdf-871d27fd8346",
    "9574b549-5c70-4985-94f7-ac18455eb524", "9873b549-c711-46c2-9758-a3e84caa6dd4",
    "06065b5d-94e4-4ab7-9193-da11fead378a", "65b96f49-75df-4d6e-b99c-6917a9f9ded0",
    "0cfaf5c8-8dd0-461d-ad22-0043191d272d", "ce91792a-016a-4f7d-b222-190b7bcbd8e2",
    "14500f5c-ddb3-446c-b3f3-640322400cae", "1644f979-b726-4fe4-8ac0-97841c8c143b",
    "ba2a9c56-bd4b-4473-9c89-c3b5c5bda944", "aacbe393-8615-4ad5-bad0-9585b3d95ab9",
    "ea3ad9b9-f450-464b-8ac6-219f144e1be8",
    "9574b549-5c70-4985-94f7-ac18455eb523", // differs from that of footnotes in its last digit only
};

std::array<UUID, UUIDTexts.size()> parseUUIDs()
{
    std::array<UUID, UUIDTexts.size()> uuids;
    for (std::size_t index = 0; index < uuids.size(); ++index) {
        uuids[index] = UUID(boost::string_ref(UUIDTexts[index]));
    }
    return uuids;
}

constexpr unsigned toNumber(PredefinedStyleName styleType)
{
    return static_cast<unsigned>(styleType);
}

constexpr PredefinedStyleName fromNumber(unsigned number)
{
    return static_cast<PredefinedStyleName>(number);
}

bool isHeading(PredefinedStyleName styleType)
{
    return styleType >= PredefinedStyleName::Heading1 && styleType <= PredefinedStyleName::Heading10;
}

bool isContents(PredefinedStyleName styleType)
{
    return styleType >= PredefinedStyleName::Contents1 && styleType <= PredefinedStyleName::Contents10;
}

Color makeColor(unsigned char red, unsigned char green, unsigned char blue)
{
    return Color(cinder::ColorAT<unsigned char>(red, green, blue, 255));
}

struct RunDescription {
    boost::optional<float> size;
    bool isBold = false;
    bool isItalic = false;
    boost::optional<Color> color;
};

boost::optional<RunDescription> describeRun(PredefinedStyleName styleType)
{
    switch (styleType) {
    case PredefinedStyleName::Normal:
        return RunDescription{12.0F, false, false, boost::none};
    case PredefinedStyleName::Heading1:
        return RunDescription{16.0F, true, false, boost::none};
    case PredefinedStyleName::Heading2:
        return RunDescription{13.0F, true, false, makeColor(0, 160, 255)};
    case PredefinedStyleName::Heading3:
        return RunDescription{boost::none, true, true, makeColor(0, 0, 0)};
    case PredefinedStyleName::Heading4:
        return RunDescription{13.0F, true, false, makeColor(89, 89, 89)};
    case PredefinedStyleName::Title:
        return RunDescription{26.0F, true, false, boost::none};
    case PredefinedStyleName::Subtitle:
        return RunDescription{12.0F, false, true, makeColor(97, 97, 97)};
    case PredefinedStyleName::HeaderAndFooter:
        return RunDescription{10.0F, false, false, boost::none};
    case PredefinedStyleName::Footnote:
        return RunDescription{10.0F, false, false, makeColor(117, 117, 117)};
    case PredefinedStyleName::Contents1:
        return RunDescription{boost::none, true, false, boost::none};
    default:
        if (isHeading(styleType)) {
            return RunDescription{11.0F, true, false, makeColor(0, 0, 0)};
        }
        return boost::none;
    }
}

std::shared_ptr<const RunProps> makeRunProps(PredefinedStyleName styleType)
{
    if (styleType == PredefinedStyleName::Hyperlink) {
        return std::make_shared<RunProps>(createHyperlinkRunProps());
    }
    const auto description = describeRun(styleType);
    if (!description) {
        return nullptr;
    }
    auto fontProps = std::make_shared<FontProps>();
    fontProps->setFont(std::string(FontFamily));
    fontProps->setSize(description->size);
    if (description->isBold) {
        fontProps->setBold(true);
    }
    if (description->isItalic) {
        fontProps->setItalic(true);
    }
    auto runProps = std::make_shared<RunProps>();
    runProps->setFontProps(std::move(fontProps));
    runProps->setColor(description->color);
    return runProps;
}

std::shared_ptr<const ParaProps> makeParaProps(PredefinedStyleName styleType)
{
    auto props = std::make_shared<ParaProps>();
    if (isHeading(styleType)) {
        if (styleType != PredefinedStyleName::Heading3) {
            props->setBeforeSpacing(SpacingValue(6.0F));
            props->setAfterSpacing(SpacingValue(6.0F));
        }
        props->setOutlineLevel(toNumber(styleType) - toNumber(PredefinedStyleName::Heading1));
    } else if (isContents(styleType)) {
        const unsigned level = toNumber(styleType) - toNumber(PredefinedStyleName::Contents1);
        const float indent = static_cast<float>(level) * 10.0F;
        props->setFirstLineIndent(indent);
        props->setLeftIndent(indent);
    } else if (styleType == PredefinedStyleName::HeaderAndFooter) {
        props->setLineSpacing(LineSpacing(1.5F, LineSpacingRule::Multiple));
    } else {
        return nullptr;
    }
    return props;
}

void appendStyle(Styles& styles, PredefinedStyleName styleType)
{
    if (findNamedStyle(std::as_const(styles).getTextStyles(), styleType) == nullptr) {
        styles.getTextStyles().insert(makePredefinedTextStyle(styleType));
    }
}

void appendStyles(Styles& styles, PredefinedStyleName first, PredefinedStyleName last)
{
    for (unsigned number = toNumber(first); number <= toNumber(last); ++number) {
        appendStyle(styles, fromNumber(number));
    }
}

} // namespace

std::string makePredefinedTextStyleName(PredefinedStyleName styleType)
{
    QN_CONTRACT(toNumber(styleType) < UUIDTexts.size(), SourceFile, 360, NoSuchStyle);
    if (isHeading(styleType)) {
        return fmt::format("Heading {}", toNumber(styleType) - toNumber(PredefinedStyleName::Heading1) + 1);
    }
    if (isContents(styleType)) {
        return fmt::format("Contents {}", toNumber(styleType) - toNumber(PredefinedStyleName::Contents1) + 1);
    }
    switch (styleType) {
    case PredefinedStyleName::Title:
        return "Title";
    case PredefinedStyleName::Subtitle:
        return "Subtitle";
    case PredefinedStyleName::HeaderAndFooter:
        return "Header and Footer";
    case PredefinedStyleName::Footnote:
        return "Footnote";
    case PredefinedStyleName::Hyperlink:
        return "Hyperlink";
    default:
        return "Normal";
    }
}

UUID makePredefinedTextStyleUUID(PredefinedStyleName styleType)
{
    QN_CONTRACT(toNumber(styleType) < UUIDTexts.size(), SourceFile, 316, NoSuchStyle);
    static const auto uuids = parseUUIDs();
    return uuids[toNumber(styleType)];
}

NamedTextStyle makePredefinedTextStyle(PredefinedStyleName styleType)
{
    NamedTextStyle style(makePredefinedTextStyleUUID(styleType));
    style.setName(styleType);
    style.setRunProps(makeRunProps(styleType));
    style.setParaProps(makeParaProps(styleType));
    return style;
}

UUID getPredefinedTextStyleUUID(const Styles& styles, PredefinedStyleName styleType)
{
    const NamedTextStyle* const style = findNamedStyle(styles.getTextStyles(), styleType);
    return style != nullptr ? style->getUUID() : UUID();
}

void appendPredefinedTextStyles(Styles& styles)
{
    appendStyles(styles, PredefinedStyleName::Normal, PredefinedStyleName::Heading5);
    appendStyles(styles, PredefinedStyleName::Title, PredefinedStyleName::Footnote);
    appendStyle(styles, PredefinedStyleName::Hyperlink);
    appendStyles(styles, PredefinedStyleName::Contents1, PredefinedStyleName::Contents10);
    if (!styles.getDefaultParagraphStyleUUID()) {
        const NamedTextStyle* const normalStyle =
            findNamedStyle(std::as_const(styles).getTextStyles(), PredefinedStyleName::Normal);
        QN_CONTRACT(normalStyle, SourceFile, 466, "normalStyle");
        styles.setDefaultParagraphStyleUUID(normalStyle->getUUID());
    }
}

RunProps createHyperlinkRunProps()
{
    auto underline = std::make_shared<RegularLineProps>();
    underline->setDashStyle(DashStyle::Solid);
    RunProps props;
    props.setUnderline(std::move(underline));
    return props;
}

} // namespace QN::DOM
