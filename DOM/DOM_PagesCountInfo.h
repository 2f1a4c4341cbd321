#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Properties/DOM_NumberFormatType.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A field that shows the number of pages.
class DOM_API PagesCountInfo {
public:
    PagesCountInfo() = default;
    explicit PagesCountInfo(boost::optional<NumberFormatType>&& type) : _numberFormatType(type) {}

    /// How the number is written; none leaves it to the page.
    const boost::optional<NumberFormatType>& getNumberFormatType() const { return _numberFormatType; }

    QN_VALUE(PagesCountInfo)

private:
    boost::optional<NumberFormatType> _numberFormatType;

    BOOST_DESCRIBE_CLASS(PagesCountInfo, (), (), (), (_numberFormatType))
};

} // namespace QN::DOM
