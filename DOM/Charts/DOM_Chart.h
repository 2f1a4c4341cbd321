#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "CollaborationUtils/Public/CU_CollectionWithTombstones.h"
#include "DOM/Charts/DOM_GroupDataLabel.h"
#include "DOM/Charts/DOM_Series.h"
#include "DOM/Tables/DOM_Formula.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class AreaChart;
class Area3DChart;
class BarChart;
class Bar3DChart;
class LineChart;
class Line3DChart;
class PieChart;
class Pie3DChart;
class ScatterChart;
class Scatter3DChart;

/// The root of the kinds of charts. The flat and the 3D chart of a kind are siblings under a common base, and take the
/// same class of series. Copies are deep but for the run properties of the series, which are immutable and shared.
class DOM_API Chart : public Clonable<Chart>, public Reflectable<> {
public:
    using Types = TypeList<AreaChart, Area3DChart, BarChart, Bar3DChart, LineChart, Line3DChart, PieChart,
                           Pie3DChart, ScatterChart, Scatter3DChart>;
    QN_FAMILY_ROOT(Chart)

    using SeriesCollection =
        CollaborationUtils::CollectionWithTombstones<std::vector<std::unique_ptr<Series>>>;

    Chart& operator=(const Chart&) = delete;

    /// Takes over all that is declared here, with the series changed to the class that suits this chart: so a chart
    /// becomes one of another kind. What a series' class or a chart's kind adds does not carry over, nor do the
    /// tombstones. Shares with `other` no more than `Series::copyBaseProperties` does. `other` may be the chart itself,
    /// or stand in the text of one of its labels and go with it. An exception leaves the chart as it was. A null series
    /// of `other` fails the contract "plainPtr".
    void copyBaseProperties(const Chart& other);

    ReadonlyPtrVector<Series> getLiveSeries() const { return _series.getElements(); }
    std::vector<std::unique_ptr<Series>>& getLiveSeries() { return _series.getElements(); }

    const SeriesCollection& getSeries() const { return _series; }
    SeriesCollection& getSeries() { return _series; }

    /// Positions among the axes of the plot area. They are not checked.
    const std::vector<unsigned long>& getAxisIndexes() const { return _axesIndexes; }
    std::vector<unsigned long>& getAxisIndexes() { return _axesIndexes; }

    const boost::optional<GroupDataLabel>& getGroupDataLabel() const { return _groupDataLabel; }
    void setGroupDataLabel(boost::optional<GroupDataLabel> label) { _groupDataLabel = std::move(label); }

    const boost::optional<std::vector<Formula>>& getCategories() const { return _categories; }
    boost::optional<std::vector<Formula>>& getCategories() { return _categories; }
    void setCategories(boost::optional<std::vector<Formula>> categories)
    {
        _categories = std::move(categories);
    }

    const boost::optional<std::vector<Formula>>& getXValues() const { return _xValues; }
    boost::optional<std::vector<Formula>>& getXValues() { return _xValues; }
    void setXValues(boost::optional<std::vector<Formula>> xValues) { _xValues = std::move(xValues); }

    /// Whether each point has a colour of its own.
    BoolOpt getVaryColors() const { return _varyColors; }
    void setVaryColors(BoolOpt varyColors) { _varyColors = varyColors; }

    /// Compares what is declared here; `areDeeplyEqual` compares whole charts.
    QN_EQUALITY(Chart)
    QN_SERIALIZE(Chart)

protected:
    Chart() = default;
    Chart(const Chart& other);
    Chart(Chart&&) noexcept = default;
    Chart& operator=(Chart&&) noexcept = default;

private:
    SeriesCollection _series;
    std::vector<unsigned long> _axesIndexes;
    boost::optional<GroupDataLabel> _groupDataLabel;
    boost::optional<std::vector<Formula>> _categories;
    boost::optional<std::vector<Formula>> _xValues;
    BoolOpt _varyColors;

    BOOST_DESCRIBE_CLASS(Chart, (), (), (),
                         (_series, _axesIndexes, _groupDataLabel, _categories, _xValues, _varyColors))
};

/// Of one dynamic class and equal by its `==`.
DOM_API bool areDeeplyEqual(const Chart& left, const Chart& right);

} // namespace QN::DOM
