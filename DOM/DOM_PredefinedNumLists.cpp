#include "DOM/DOM_PredefinedNumLists.h"

#include <boost/optional/optional.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include "DOM/DOM_NumListMarker.h"
#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "Utils/Public/ClassScheme/Equality.h"
#include "Utils/Public/UTF8.h"

namespace QN::DOM {

namespace {

constexpr unsigned LevelCount = 9;
constexpr float IndentStep = 36.0F;
constexpr float HalfStep = 18.0F;

struct Bullet {
    char32_t glyph;
    const char* font;
};

// The private code points are glyphs of the two symbol fonts.
constexpr Bullet FilledCircle{U'\uF0B7', "Symbol"};
constexpr Bullet HollowCircle{U'o', "Courier New"};
constexpr Bullet FilledSquare{U'\uF0A7', "Wingdings"};
constexpr Bullet Arrowhead{U'\uF0D8', "Wingdings"};
constexpr Bullet FourDiamonds{U'\uF076', "Wingdings"};
constexpr Bullet CheckMark{U'\uF0FC', "Wingdings"};
constexpr Bullet Hyphen{U'-', "Calibri"};

/// What repeats over the levels of a list.
constexpr unsigned Period = 3;

struct BulletList {
    NumberedListName name;
    std::array<Bullet, Period> bullets;
};

constexpr std::array<BulletList, 7> BulletLists{{
    {NumberedListName::FilledCircleBullets, {{FilledCircle, HollowCircle, FilledSquare}}},
    {NumberedListName::HollowCircleBullets, {{HollowCircle, Arrowhead, FilledSquare}}},
    {NumberedListName::FilledSquareBullets, {{FilledSquare, HollowCircle, Arrowhead}}},
    {NumberedListName::HyphenBullets, {{Hyphen, HollowCircle, FilledSquare}}},
    {NumberedListName::FourDiamondBullets, {{FourDiamonds, Arrowhead, FilledSquare}}},
    {NumberedListName::ArrowheadBullets, {{Arrowhead, FourDiamonds, CheckMark}}},
    {NumberedListName::CheckMarkBullets, {{CheckMark, FilledSquare, HollowCircle}}},
}};

using Format = NumberFormatType;

struct CountedList {
    NumberedListName name;
    std::array<Format, Period> types;
    const char* closings; // one character a level
};

constexpr const char* FullStops = ".........";
constexpr const char* Parentheses = ")))))))))";

constexpr std::array<CountedList, 7> CountedLists{{
    {NumberedListName::DecimalWithFullStop,
     {{Format::Decimal, Format::LowerLetter, Format::LowerRoman}},
     FullStops},
    {NumberedListName::DecimalWithParenthesis,
     {{Format::Decimal, Format::LowerLetter, Format::LowerRoman}},
     "))))))..."}, // parentheses down to level 6 only, on purpose
    {NumberedListName::UpperRomanWithFullStop,
     {{Format::UpperRoman, Format::LowerLetter, Format::Decimal}},
     FullStops},
    {NumberedListName::UpperLetterWithFullStop,
     {{Format::UpperLetter, Format::Decimal, Format::LowerRoman}},
     FullStops},
    {NumberedListName::LowerLetterWithParenthesis,
     {{Format::LowerLetter, Format::Decimal, Format::LowerRoman}},
     Parentheses},
    {NumberedListName::LowerLetterWithFullStop,
     {{Format::LowerLetter, Format::Decimal, Format::LowerRoman}},
     FullStops},
    {NumberedListName::LowerRomanWithFullStop,
     {{Format::LowerRoman, Format::LowerLetter, Format::Decimal}},
     FullStops},
}};

constexpr std::array<float, LevelCount> OutlineIndents{18.0F,   39.5F,  61.25F,  86.5F, 111.5F,
                                                       136.75F, 162.0F, 187.25F, 216.0F};

struct LevelDescription {
    Format type;
    std::string textExpr;
    boost::optional<std::string> font;
    float firstLineIndent;
    float leftIndent;
};

void appendLevel(NumberedList& list, const SharedObjectFactory& factory, LevelDescription description)
{
    auto marker = std::make_shared<NumListMarker>();
    marker->setType(description.type);
    if (description.type != Format::Bullet) {
        marker->setStartIndex(1UL);
    }
    marker->setTextExpr(std::move(description.textExpr));

    auto paraProps = std::make_shared<ParaProps>();
    paraProps->setLeftIndent(description.leftIndent);
    paraProps->setFirstLineIndent(description.firstLineIndent);

    std::shared_ptr<RunProps> runProps;
    if (description.font) {
        auto fontProps = std::make_shared<FontProps>();
        fontProps->setFont(*std::move(description.font));
        runProps = std::make_shared<RunProps>();
        runProps->setFontProps(std::move(fontProps));
    }

    auto level = std::make_unique<NumberingLevel>();
    level->setListMarker(std::move(marker));
    level->getSharedStyle() = factory.create(NumberingLevelStyle(std::move(paraProps), std::move(runProps)));
    list.getNumberingLevels().push_back(std::move(level));
}

NumberedList makeBulletList(const SharedObjectFactory& factory, const BulletList& description)
{
    NumberedList list;
    list.setName(description.name);
    for (unsigned level = 1; level <= LevelCount; ++level) {
        const Bullet& bullet = description.bullets[(level - 1) % Period];
        const float indent = static_cast<float>(level) * IndentStep;
        appendLevel(list, factory,
                    {Format::Bullet, getUTF8String(bullet.glyph), std::string(bullet.font), indent - HalfStep,
                     indent});
    }
    return list;
}

NumberedList makeCountedList(const SharedObjectFactory& factory, const CountedList& description)
{
    NumberedList list;
    list.setName(description.name);
    for (unsigned level = 1; level <= LevelCount; ++level) {
        const float indent = static_cast<float>(level) * IndentStep;
        appendLevel(list, factory,
                    {description.types[(level - 1) % Period],
                     fmt::format("%{}{}", level, description.closings[level - 1]), boost::none,
                     indent - HalfStep, indent});
    }
    return list;
}

NumberedList makeOutlineList(const SharedObjectFactory& factory)
{
    NumberedList list;
    list.setName(NumberedListName::Outline);
    std::string textExpr;
    for (unsigned level = 1; level <= LevelCount; ++level) {
        textExpr += fmt::format("%{}.", level);
        appendLevel(list, factory,
                    {Format::Decimal, textExpr, boost::none, static_cast<float>(level) * HalfStep,
                     OutlineIndents[level - 1]});
    }
    return list;
}

} // namespace

std::vector<NumberedList> createPredefinedNumLists(const SharedObjectFactory& factory)
{
    std::vector<NumberedList> lists;
    lists.reserve(BulletLists.size() + CountedLists.size() + 1);
    for (const BulletList& description : BulletLists) {
        lists.push_back(makeBulletList(factory, description));
    }
    for (const CountedList& description : CountedLists) {
        lists.push_back(makeCountedList(factory, description));
    }
    lists.push_back(makeOutlineList(factory));
    return lists;
}

void appendPredefinedNumLists(const SharedObjectFactory& factory, std::vector<NumberedList>& lists)
{
    for (NumberedList& predefined : createPredefinedNumLists(factory)) {
        // The const form could not look at a null level.
        const bool isThere = std::any_of(lists.begin(), lists.end(), [&](NumberedList& list) {
            return areMembersDeeplyEqual(list.getNumberingLevels(), predefined.getNumberingLevels());
        });
        if (!isThere) {
            lists.push_back(std::move(predefined));
        }
    }
}

} // namespace QN::DOM
