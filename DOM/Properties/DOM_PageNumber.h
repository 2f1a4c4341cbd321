#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <utility>

#include "DOM/Properties/DOM_NumberFormatType.h"
#include "DOM/Properties/DOM_RunStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Where a page number stands in its header or footer. Any other number passes through unchanged.
enum class HeaderFooterAlignment : std::int32_t {
    Left = 0,
    Center = 1,
    Right = 2,
    Inside = 3,
    Outside = 4,
};

/// The page number of a header or footer.
class DOM_API PageNumber {
public:
    PageNumber() = default;
    PageNumber(HeaderFooterAlignment alignment, RunStyle style, boost::optional<NumberFormatType> format)
        : _alignment(alignment), _style(std::move(style)), _format(format)
    {
    }

    HeaderFooterAlignment getAlignment() const { return _alignment; }
    void setAlignment(HeaderFooterAlignment alignment) { _alignment = alignment; }

    const RunStyle& getRunStyle() const { return _style; }
    void setRunStyle(RunStyle style) { _style = std::move(style); }

    boost::optional<NumberFormatType> getNumberFormatType() const { return _format; }
    void setNumberFormatType(boost::optional<NumberFormatType> format) { _format = format; }

    QN_VALUE(PageNumber)

private:
    HeaderFooterAlignment _alignment = HeaderFooterAlignment::Left;
    RunStyle _style;
    boost::optional<NumberFormatType> _format;

    BOOST_DESCRIBE_CLASS(PageNumber, (), (), (), (_alignment, _style, _format))
};

} // namespace QN::DOM
