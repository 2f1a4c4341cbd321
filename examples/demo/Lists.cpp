#include "Lists.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace Demo {

using namespace QN::DOM;
using QN::UUID;

namespace {

std::string toRoman(unsigned long number)
{
    constexpr std::array<std::pair<unsigned long, const char*>, 13> Digits{{{1000, "M"},
                                                                            {900, "CM"},
                                                                            {500, "D"},
                                                                            {400, "CD"},
                                                                            {100, "C"},
                                                                            {90, "XC"},
                                                                            {50, "L"},
                                                                            {40, "XL"},
                                                                            {10, "X"},
                                                                            {9, "IX"},
                                                                            {5, "V"},
                                                                            {4, "IV"},
                                                                            {1, "I"}}};
    std::string text;
    for (const auto& [value, digit] : Digits) {
        for (; number >= value; number -= value) {
            text += digit;
        }
    }
    return text;
}

std::string toLower(std::string text)
{
    for (char& c : text) {
        c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

std::string toText(unsigned long number, NumberFormatType type)
{
    // A, B and so on to Z, then AA, BB and so on.
    const std::string letters((number + 25) / 26, static_cast<char>('A' + (number + 25) % 26));
    switch (type) {
    case NumberFormatType::UpperRoman:
        return toRoman(number);
    case NumberFormatType::LowerRoman:
        return toLower(toRoman(number));
    case NumberFormatType::UpperLetter:
        return letters;
    case NumberFormatType::LowerLetter:
        return toLower(letters);
    default:
        return std::to_string(number);
    }
}

/// The glyphs of the predefined lists are those of symbol fonts, which a browser does not have.
std::string toUnicode(const std::string& glyph)
{
    static const std::map<std::string, std::string> Glyphs = {
        {"\uF0B7", "\u2022"}, {"\uF0A7", "\u25AA"}, {"\uF0D8", "\u27A2"},
        {"\uF076", "\u2756"}, {"\uF0FC", "\u2713"}, {"o", "\u25E6"},
    };
    const auto known = Glyphs.find(glyph);
    return known == Glyphs.end() ? glyph : known->second;
}

NumberFormatType getType(const NumberingLevel& level)
{
    const auto& marker = level.getListMarker();
    return marker ? marker->getType().value_or(NumberFormatType::Decimal) : NumberFormatType::Bullet;
}

} // namespace

std::unique_ptr<NumberingRef> makeNumberingRef(const Document& document, NumberedListName name,
                                               const UUID& tag, unsigned long level)
{
    const NumberedList* const list = getListByName(document.getNumLists(), name);
    if (list == nullptr) {
        throw std::runtime_error("the document lacks a predefined list");
    }
    auto ref = std::make_unique<NumberingRef>();
    ref->setListTagUUID(ListTagUUID(tag));
    ref->setNumListUUID(NumListUUID(list->getUUID()));
    ref->setLevel(level);
    return ref;
}

const NumberedList* ListMarkers::findList(const NumberingRef& ref) const
{
    for (const NumberedList& list : _document.getNumLists()) {
        if (ref.getNumListUUID() && list.getUUID() == ref.getNumListUUID()->get()) {
            return &list;
        }
    }
    return nullptr;
}

const NumberingLevel* ListMarkers::findLevel(const Paragraph& paragraph) const
{
    const auto& ref = paragraph.getNumRef();
    const NumberedList* const list = ref ? findList(*ref) : nullptr;
    const unsigned long index = ref ? ref->getLevel().value_or(0) : 0;
    const bool isThere = list != nullptr && index < list->getNumberingLevels().size();
    return isThere ? list->getNumberingLevels().getPointer(index) : nullptr;
}

std::string ListMarkers::getNext(const Paragraph& paragraph)
{
    const NumberingLevel* const level = findLevel(paragraph);
    if (level == nullptr || !level->getListMarker()) {
        return {};
    }
    const std::string expr = level->getListMarker()->getTextExpr().value_or("");
    if (getType(*level) == NumberFormatType::Bullet) {
        return toUnicode(expr);
    }

    const NumberingRef& ref = *paragraph.getNumRef();
    const auto levels = findList(ref)->getNumberingLevels();
    const unsigned long index = ref.getLevel().value_or(0);
    auto& counts = _counts[ref.getListTagUUID() ? ref.getListTagUUID()->get() : ref.getNumListUUID()->get()];
    // This level goes on, those above it have begun, those below it begin anew.
    while (counts.size() <= index) {
        const auto& marker = levels[counts.size()].getListMarker();
        const unsigned long first = marker ? marker->getStartIndex().value_or(1) : 1;
        counts.push_back(counts.size() == index ? first - 1 : first);
    }
    counts.resize(index + 1);
    ++counts.back();

    std::string text;
    for (std::size_t i = 0; i < expr.size(); ++i) {
        const std::size_t named = i + 1 < expr.size() ? static_cast<std::size_t>(expr[i + 1] - '1') : 9;
        if (expr[i] == '%' && named < counts.size()) {
            text += toText(counts[named], getType(levels[named]));
            ++i;
        } else {
            text += expr[i];
        }
    }
    return text;
}

} // namespace Demo
