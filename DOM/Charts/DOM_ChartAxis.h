#pragma once

#include <boost/blank.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <memory>
#include <utility>

#include "DOM/Charts/DOM_ChartAxisLabels.h"
#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_ChartLines.h"
#include "DOM/Charts/DOM_ChartTitle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class CategoryAxis;
class SeriesAxis;
class ValueAxis;
class DateAxis;
class RunProps;

// Of the enumerations below, any other number passes through unchanged.

/// From the least value to the greatest, or the other way.
enum class ChartAxisOrientation : unsigned char { MaxMin = 0, MinMax = 1 };

/// The side of the plot area.
enum class ChartAxisPosition : unsigned char { Top = 0, Left = 1, Bottom = 2, Right = 3 };

/// Where on the crossed axis an axis stands.
enum class ChartAxisCrossing : unsigned char { AutoZero = 0, Max = 1, Min = 2 };

enum class ChartAxisTickMark : unsigned char { Cross = 0, In = 1, None = 2, Out = 3 };

/// The root of the axes. They live in the plot area, whose charts share them, and are referred to by their positions
/// there. Nothing is checked: the least value may exceed the greatest. Copies are deep but for the run properties, which
/// are immutable and shared; equality looks into them.
class DOM_API ChartAxis : public Clonable<ChartAxis>, public Reflectable<> {
public:
    using Types = TypeList<CategoryAxis, SeriesAxis, ValueAxis, DateAxis>;
    QN_FAMILY_ROOT(ChartAxis)

    /// Nothing said, a named crossing, or a value of the crossed axis.
    using Crossing = boost::variant<boost::blank, ChartAxisCrossing, double>;

    ChartAxis& operator=(const ChartAxis&) = delete;

    /// Absent for a linear axis.
    boost::optional<double> getLogBase() const { return _logBase; }
    void setLogBase(boost::optional<double> logBase) { _logBase = logBase; }

    boost::optional<ChartAxisOrientation> getOrientation() const { return _orientation; }
    void setOrientation(boost::optional<ChartAxisOrientation> orientation) { _orientation = orientation; }

    boost::optional<double> getMin() const { return _min; }
    void setMin(boost::optional<double> min) { _min = min; }

    boost::optional<double> getMax() const { return _max; }
    void setMax(boost::optional<double> max) { _max = max; }

    /// Null for none, here and below.
    const ChartLines* getMajorGridLines() const { return _majorGridLines.get(); }
    ChartLines* getMajorGridLines() { return _majorGridLines.get(); }
    void setMajorGridLines(std::unique_ptr<ChartLines> lines) { _majorGridLines = std::move(lines); }

    const ChartLines* getMinorGridLines() const { return _minorGridLines.get(); }
    ChartLines* getMinorGridLines() { return _minorGridLines.get(); }
    void setMinorGridLines(std::unique_ptr<ChartLines> lines) { _minorGridLines = std::move(lines); }

    ChartAxisPosition getPosition() const { return _position; }
    void setPosition(ChartAxisPosition position) { _position = position; }

    const ChartTitle* getTitle() const { return _title.get(); }
    ChartTitle* getTitle() { return _title.get(); }
    void setTitle(std::unique_ptr<ChartTitle> title) { _title = std::move(title); }

    const boost::optional<ChartAxisLabels>& getLabels() const { return _labels; }
    void setLabels(boost::optional<ChartAxisLabels> labels) { _labels = std::move(labels); }

    /// The position in the plot area of the axis that this one crosses. It is not checked.
    unsigned long getCrossingAxisIndex() const { return _crossingAxisIndex; }
    void setCrossingAxisIndex(unsigned long index) { _crossingAxisIndex = index; }

    const Crossing& getCrossing() const { return _crossing; }
    void setCrossing(Crossing crossing) { _crossing = std::move(crossing); }

    ChartAxisTickMark getMajorTickMark() const { return _majorTickMark; }
    void setMajorTickMark(ChartAxisTickMark tickMark) { _majorTickMark = tickMark; }

    ChartAxisTickMark getMinorTickMark() const { return _minorTickMark; }
    void setMinorTickMark(ChartAxisTickMark tickMark) { _minorTickMark = tickMark; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    /// True from the start.
    bool isVisible() const { return _visible; }
    void setVisible(bool visible) { _visible = visible; }

    std::shared_ptr<const RunProps> getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> runProps) { _runProps = std::move(runProps); }

    /// Compares what is declared here; `areDeeplyEqual` compares whole axes.
    QN_EQUALITY(ChartAxis)
    QN_SERIALIZE(ChartAxis)

protected:
    ChartAxis() = default;
    ChartAxis(const ChartAxis& other);
    ChartAxis(ChartAxis&&) noexcept = default;
    ChartAxis& operator=(ChartAxis&&) noexcept = default;

private:
    boost::optional<double> _logBase;
    boost::optional<ChartAxisOrientation> _orientation;
    boost::optional<double> _min;
    boost::optional<double> _max;
    std::unique_ptr<ChartLines> _majorGridLines;
    std::unique_ptr<ChartLines> _minorGridLines;
    ChartAxisPosition _position = ChartAxisPosition::Bottom;
    std::unique_ptr<ChartTitle> _title;
    boost::optional<ChartAxisLabels> _labels;
    unsigned long _crossingAxisIndex = 0;
    Crossing _crossing;
    ChartAxisTickMark _majorTickMark{};
    ChartAxisTickMark _minorTickMark{};
    boost::optional<ChartGraphicProps> _graphicProps;
    bool _visible = true;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(ChartAxis, (), (), (),
                         (_logBase, _orientation, _min, _max, _majorGridLines, _minorGridLines, _position,
                          _title, _labels, _crossingAxisIndex, _crossing, _majorTickMark, _minorTickMark,
                          _graphicProps, _visible, _runProps))
};

/// Of one dynamic class and equal by its `==`.
DOM_API bool areDeeplyEqual(const ChartAxis& left, const ChartAxis& right);

} // namespace QN::DOM
