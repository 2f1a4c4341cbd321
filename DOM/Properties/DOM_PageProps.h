#pragma once

#include <boost/blank.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_FitToPages.h"
#include "DOM/Properties/DOM_NumberFormatType.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class Insets;

/// What is said of pages. Each member may be absent.
class DOM_API PageProps {
public:
    /// No scaling said, a scale factor, or a number of pages to fit.
    using FitSettings = boost::variant<boost::blank, float, FitToPages>;

    /// In a file they stand under "_insets".
    const std::shared_ptr<const Insets>& getMargins() const { return _insets; }
    void setMargins(std::shared_ptr<const Insets> margins) { _insets = std::move(margins); }

    boost::optional<float> getWidth() const { return _width; }
    void setWidth(boost::optional<float> width) { _width = width; }

    boost::optional<float> getHeight() const { return _height; }
    void setHeight(boost::optional<float> height) { _height = height; }

    boost::optional<float> getHeaderHeight() const { return _headerHeight; }
    void setHeaderHeight(boost::optional<float> height) { _headerHeight = height; }

    boost::optional<float> getFooterHeight() const { return _footerHeight; }
    void setFooterHeight(boost::optional<float> height) { _footerHeight = height; }

    const FitSettings& getFitSettings() const { return _fitSettings; }
    void setFitSettings(FitSettings settings) { _fitSettings = std::move(settings); }

    boost::optional<NumberFormatType> getPageNumberFormat() const { return _pageNumberFormat; }
    void setPageNumberFormat(boost::optional<NumberFormatType> format) { _pageNumberFormat = format; }

    QN_VALUE(PageProps)

private:
    std::shared_ptr<const Insets> _insets;
    boost::optional<float> _width;
    boost::optional<float> _height;
    boost::optional<float> _headerHeight;
    boost::optional<float> _footerHeight;
    FitSettings _fitSettings;
    boost::optional<NumberFormatType> _pageNumberFormat;

    BOOST_DESCRIBE_CLASS(PageProps, (), (), (),
                         (_insets, _width, _height, _headerHeight, _footerHeight, _fitSettings,
                          _pageNumberFormat))
};

QN_DECLARE_ALGEBRA(PageProps)

} // namespace QN::DOM
