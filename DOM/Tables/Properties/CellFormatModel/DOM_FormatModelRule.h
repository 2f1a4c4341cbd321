#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <cstdint>
#include <utility>
#include <vector>

#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCondition.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCurrencyItem.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelExtraItem.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelNumberItem.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelTextItem.h"
#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeItem.h"
#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// The calendar that dates are counted in: the list of spreadsheet calendar types of ECMA-376 in its order. Any other
/// number passes through unchanged.
enum class Calendar : std::int32_t {
    None = 0,
    Gregorian = 1,
    GregorianUs = 2,
    Japan = 3,
    Taiwan = 4,
    Korea = 5,
    Hijri = 6,
    Thai = 7,
    Hebrew = 8,
    GregorianMeFrench = 9,
    GregorianArabic = 10,
    GregorianXlitEnglish = 11,
    GregorianXlitFrench = 12,
};

/// How digits are written in another script: the styles of transliteration of ODF number styles. Any other number
/// passes through unchanged.
enum class Transliteration : std::int32_t { Short = 0, Medium = 1, Long = 2 };

/// One section of a format: its items in the order in which they are shown, which values it is for, and how it is
/// written. A rule without items is valid.
class DOM_API Rule {
public:
    using Item = boost::variant<CurrencyItem, DateTimeItem, ExtraItem, NumberItem, TextItem>;
    using Color = cinder::ColorAT<unsigned char>;

    Rule() = default;
    Rule(std::vector<Item> items, boost::optional<Color> color) : _items(std::move(items)), _color(color) {}

    const std::vector<Item>& getItems() const { return _items; }
    void setItems(std::vector<Item> items) { _items = std::move(items); }

    const boost::optional<Condition>& getCondition() const { return _condition; }
    void setCondition(boost::optional<Condition> condition) { _condition = condition; }

    const boost::optional<Color>& getColor() const { return _color; }
    void setColor(boost::optional<Color> color) { _color = color; }

    const boost::optional<Calendar>& getCalendar() const { return _calendar; }
    void setCalendar(boost::optional<Calendar> calendar) { _calendar = calendar; }

    /// The number of a locale.
    const boost::optional<unsigned int>& getLanguage() const { return _language; }
    void setLanguage(boost::optional<unsigned int> language) { _language = language; }

    const boost::optional<Transliteration>& getTransliteration() const { return _transliteration; }
    void setTransliteration(boost::optional<Transliteration> transliteration)
    {
        _transliteration = transliteration;
    }

    QN_ORDERED_VALUE(Rule)

private:
    std::vector<Item> _items;
    boost::optional<Condition> _condition;
    boost::optional<Color> _color;
    boost::optional<Calendar> _calendar;
    boost::optional<unsigned int> _language;
    boost::optional<Transliteration> _transliteration;

    BOOST_DESCRIBE_CLASS(Rule, (), (), (),
                         (_items, _condition, _color, _calendar, _language, _transliteration))
};

} // namespace QN::DOM::CellFormatModel
