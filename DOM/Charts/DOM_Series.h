#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_DataLabel.h"
#include "DOM/Charts/DOM_DataPoint.h"
#include "DOM/Charts/DOM_GroupDataLabel.h"
#include "DOM/Tables/DOM_Formula.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class AreaSeries;
class BarSeries;
class LineSeries;
class PieSeries;
class ScatterSeries;
class RunProps;

/// The root of the series of charts. A series refers to the cells that hold its data and keeps no numbers of its own.
/// Copies are deep but for the run properties, which are immutable and shared (`copyBaseProperties` alone copies them);
/// equality looks into them.
class DOM_API Series : public Clonable<Series>, public Reflectable<> {
public:
    using Types = TypeList<AreaSeries, BarSeries, LineSeries, PieSeries, ScatterSeries>;
    QN_FAMILY_ROOT(Series)

    Series& operator=(const Series&) = delete;

    /// Takes over all that is declared here, and nothing that a class of the family adds. Shares nothing with `other`:
    /// the run properties are copied, too. Only what each copy of these shares stays shared, their font and underline,
    /// and what each copy of a label's text shares: its styles, and what its frames show. `other` may be the series
    /// itself, or stand in the text of one of its labels and go with it. An exception leaves the series as it was.
    void copyBaseProperties(const Series& other);

    unsigned long getIdx() const { return _idx; }
    void setIdx(unsigned long idx) { _idx = idx; }

    unsigned long getOrder() const { return _order; }
    void setOrder(unsigned long order) { _order = order; }

    const boost::optional<Formula>& getName() const { return _name; }
    boost::optional<Formula>& getName() { return _name; }
    void setName(boost::optional<Formula> name) { _name = std::move(name); }

    const std::vector<Formula>& getValues() const { return _values; }
    std::vector<Formula>& getValues() { return _values; }
    void setValues(std::vector<Formula> values) { _values = std::move(values); }

    const boost::optional<GroupDataLabel>& getGroupDataLabel() const { return _groupDataLabel; }
    void setGroupDataLabel(boost::optional<GroupDataLabel> label) { _groupDataLabel = std::move(label); }

    /// Sparse: only for points whose label differs.
    ReadonlyPtrVector<DataLabel> getDataLabels() const { return _dataLabels; }
    std::vector<std::unique_ptr<DataLabel>>& getDataLabels() { return _dataLabels; }

    /// Sparse: only for points that differ.
    ReadonlyPtrVector<DataPoint> getDataPoints() const { return _dataPoints; }
    std::vector<std::unique_ptr<DataPoint>>& getDataPoints() { return _dataPoints; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    std::shared_ptr<const RunProps> getRunProps() const { return _runProps; }
    /// The name is spelt so, here alone.
    void setRunPorps(std::shared_ptr<const RunProps> runProps) { _runProps = std::move(runProps); }

    /// Compares what is declared here; `areDeeplyEqual` compares whole series.
    QN_EQUALITY(Series)
    QN_SERIALIZE(Series)

protected:
    Series() = default;
    Series(const Series& other);
    Series(Series&&) noexcept = default;
    Series& operator=(Series&&) noexcept = default;

private:
    unsigned long _idx = 0;
    unsigned long _order = 0;
    boost::optional<Formula> _name;
    std::vector<Formula> _values;
    boost::optional<GroupDataLabel> _groupDataLabel;
    std::vector<std::unique_ptr<DataLabel>> _dataLabels;
    std::vector<std::unique_ptr<DataPoint>> _dataPoints;
    boost::optional<ChartGraphicProps> _graphicProps;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(Series, (), (), (),
                         (_idx, _order, _name, _values, _groupDataLabel, _dataLabels, _dataPoints,
                          _graphicProps, _runProps))
};

/// Of one dynamic class and equal by its `==`.
DOM_API bool areDeeplyEqual(const Series& left, const Series& right);

} // namespace QN::DOM
