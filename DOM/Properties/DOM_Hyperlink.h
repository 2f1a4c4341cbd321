#pragma once

#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Where a run of text leads.
class DOM_API Hyperlink {
public:
    Hyperlink() = default;
    explicit Hyperlink(std::string url) : _url(std::move(url)) {}

    const std::string& getURL() const { return _url; }
    void setURL(std::string url) { _url = std::move(url); }

    /// A place within the target, or, without a URL, within this document.
    const std::string& getAnchor() const { return _anchor; }
    void setAnchor(std::string anchor) { _anchor = std::move(anchor); }

    const std::string& getTooltip() const { return _tooltip; }
    void setTooltip(std::string tooltip) { _tooltip = std::move(tooltip); }

    QN_ORDERED_VALUE(Hyperlink)

private:
    std::string _url;
    std::string _anchor;
    std::string _tooltip;

    BOOST_DESCRIBE_CLASS(Hyperlink, (), (), (), (_url, _anchor, _tooltip))
};

} // namespace QN::DOM
