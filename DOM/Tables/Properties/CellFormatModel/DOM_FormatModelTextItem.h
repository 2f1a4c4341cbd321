#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// Text beside or inside a number: as it stands, or the text of the cell in its place.
class DOM_API TextItem {
public:
    /// Any other number passes through unchanged.
    enum class Type : std::int32_t { Literal = 0, CellText = 1 };

    TextItem() = default;
    explicit TextItem(Type type, std::string textValue = {}) : _type(type), _textValue(std::move(textValue))
    {
    }

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    const std::string& getTextValue() const { return _textValue; }
    void setTextValue(std::string textValue) { _textValue = std::move(textValue); }

    QN_ORDERED_VALUE(TextItem)

private:
    Type _type{};
    std::string _textValue;

    BOOST_DESCRIBE_CLASS(TextItem, (), (), (), (_type, _textValue))
};

} // namespace QN::DOM::CellFormatModel
