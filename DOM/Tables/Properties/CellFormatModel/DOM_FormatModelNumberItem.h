#pragma once

#include <boost/variant/variant.hpp>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCurrencyItem.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelTextItem.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// The digits of a number, or of a part of one, as a pattern of digit places.
class DOM_API NumberItem {
public:
    /// Which part of the number it shows. Any other number passes through unchanged.
    enum class Role : std::int32_t {
        Number = 0,
        IntegerPart = 1,
        Numerator = 2,
        Denominator = 3,
        Mantissa = 4,
        Exponent = 5,
    };

    /// What stands inside the digits, with its position in the pattern.
    using EmbeddedItem = std::pair<std::uint64_t, boost::variant<CurrencyItem, TextItem>>;

    NumberItem() = default;

    Role getRole() const { return _role; }
    void setRole(Role role) { _role = role; }

    const std::string& getPattern() const { return _pattern; }
    void setPattern(std::string pattern) { _pattern = std::move(pattern); }

    bool hasGrouping() const { return _hasGrouping; }
    void setGrouping(bool hasGrouping) { _hasGrouping = hasGrouping; }

    std::uint64_t getDisplayFactor() const { return _displayFactor; }
    void setDisplayFactor(std::uint64_t displayFactor) { _displayFactor = displayFactor; }

    const std::vector<EmbeddedItem>& getEmbeddedItems() const { return _embeddedItems; }
    void setEmbeddedItems(std::vector<EmbeddedItem> embeddedItems)
    {
        _embeddedItems = std::move(embeddedItems);
    }

    QN_ORDERED_VALUE(NumberItem)

private:
    Role _role{};
    std::string _pattern;
    bool _hasGrouping = false;
    std::uint64_t _displayFactor = 0;
    std::vector<EmbeddedItem> _embeddedItems;

    BOOST_DESCRIBE_CLASS(NumberItem, (), (), (),
                         (_role, _pattern, _hasGrouping, _displayFactor, _embeddedItems))
};

} // namespace QN::DOM::CellFormatModel
