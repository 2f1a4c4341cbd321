#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Fill.h"
#include "DOM/Properties/DOM_LineProps.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The paint of an element of a chart. An element that can be painted holds it as an optional, so that paint of which
/// neither part is stated differs from no paint at all. Copies are deep.
class DOM_API ChartGraphicProps {
public:
    ChartGraphicProps() = default;
    QN_DEEP_COPY(ChartGraphicProps)

    /// Null when it is not stated.
    const Fill* getFill() const { return _fill.get(); }
    Fill* getFill() { return _fill.get(); }
    void setFill(std::unique_ptr<Fill> fill) { _fill = std::move(fill); }

    /// Null when it is not stated.
    const LineProps* getLineProps() const { return _lineProps.get(); }
    LineProps* getLineProps() { return _lineProps.get(); }
    void setLineProps(std::unique_ptr<LineProps> lineProps) { _lineProps = std::move(lineProps); }

    QN_VALUE(ChartGraphicProps)

private:
    std::unique_ptr<Fill> _fill;
    std::unique_ptr<LineProps> _lineProps;

    BOOST_DESCRIBE_CLASS(ChartGraphicProps, (), (), (), (_fill, _lineProps))
};

} // namespace QN::DOM
