#include "ChartSvg.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "CellText.h"
#include "Css.h"
#include "Text.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using QN::CellIndex;
using QN::ColumnIndex;
using QN::RowIndex;

/// What a reference of a chart means now: the cells that its identifiers name.
std::vector<CellIndex> findCells(const Formula& formula, const Table& table)
{
    std::vector<CellIndex> cells;
    const FormulaSyntaxTree::Expr* const tree = formula.getSyntaxTree().get();
    if (const auto* const range = dynamic_cast<const FormulaSyntaxTree::CellRange*>(tree)) {
        const auto rows = table.resolveRange(range->getBeginRow().getID(), range->getLastRow().getID());
        const auto columns =
            table.resolveRange(range->getBeginColumn().getID(), range->getLastColumn().getID());
        if (rows && columns) {
            for (RowIndex row = rows->first; row <= rows->second; ++row) {
                for (ColumnIndex column = columns->first; column <= columns->second; ++column) {
                    cells.emplace_back(row, column);
                }
            }
        }
    } else if (const auto* const cell = dynamic_cast<const FormulaSyntaxTree::CellAddress*>(tree)) {
        const auto row = table.resolveRowIndex(cell->getRow().getID(), false);
        const auto column = table.resolveColIndex(cell->getCol().getID(), false);
        if (row && column) {
            cells.emplace_back(*row, *column);
        }
    }
    return cells;
}

std::vector<CellIndex> findCells(const std::vector<Formula>& formulas, const Table& table)
{
    std::vector<CellIndex> cells;
    for (const Formula& formula : formulas) {
        const auto more = findCells(formula, table);
        cells.insert(cells.end(), more.begin(), more.end());
    }
    return cells;
}

/// A round number of which a few make up a length: 1, 2 or 5 times a power of 10.
double getRoundStep(double length)
{
    constexpr double Steps = 5.0;
    const double power = std::pow(10.0, std::floor(std::log10(length / Steps)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power * Steps >= length) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

class ChartWriter {
public:
    ChartWriter(const ChartSpace& chart, SheetValues& values, const Document& document)
        : _chart(chart), _values(values), _table(values.getTable()), _document(document),
          _width(chart.getExtent().getWidth()), _height(chart.getExtent().getHeight()), _right(_width - 12.0),
          _bottom(_height - 44.0)
    {
    }

    std::string write()
    {
        _svg = "<svg class=\"chart\" viewBox=\"0 0 " + toFixed(_width, 0) + ' ' + toFixed(_height, 0) +
               "\" role=\"img\">\n";
        writeText(_width / 2.0, 17.0, "middle", "chart-title", getTitle(_chart.getTitle()));
        findExtremes();
        for (const ChartAxis& axis : _chart.getPlotArea().getAxes()) {
            if (dynamic_cast<const ValueAxis*>(&axis) != nullptr) {
                writeValueAxis(axis);
            } else {
                writeCategoryAxis(axis);
            }
        }
        for (const Chart& chart : _chart.getPlotArea().getCharts()) {
            for (const Series& series : chart.getLiveSeries()) {
                writeLine(series);
            }
        }
        return _svg + "</svg>\n";
    }

private:
    static constexpr double Left = 46.0;
    static constexpr double Top = 30.0;

    void findExtremes()
    {
        bool isFirst = true;
        for (const Chart& chart : _chart.getPlotArea().getCharts()) {
            for (const Series& series : chart.getLiveSeries()) {
                const auto cells = findCells(series.getValues(), _table);
                _pointsCount = std::max(_pointsCount, cells.size());
                for (const CellIndex& cell : cells) {
                    const Value value = _values.get(cell.getRow(), cell.getColumn());
                    if (const double* const number = std::get_if<double>(&value)) {
                        _min = isFirst ? *number : std::min(_min, *number);
                        _max = isFirst ? *number : std::max(_max, *number);
                        isFirst = false;
                    }
                }
            }
        }
        // From 0 on, if that is not far off, and to the next round numbers.
        _min = _min > 0.0 && _min < 0.6 * _max ? 0.0 : _min;
        _max = _max > _min ? _max : _min + 1.0;
        _step = getRoundStep(_max - _min);
        _min = std::floor(_min / _step) * _step;
        _max = std::ceil(_max / _step) * _step;
    }

    double getX(std::size_t point) const
    {
        const auto last = static_cast<double>(std::max<std::size_t>(_pointsCount, 2) - 1);
        return Left + (_right - Left) * static_cast<double>(point) / last;
    }
    double getY(double value) const { return _bottom - (_bottom - Top) * (value - _min) / (_max - _min); }

    void writeValueAxis(const ChartAxis& axis)
    {
        const int decimals = _step < 1.0 ? static_cast<int>(std::ceil(-std::log10(_step))) : 0;
        for (double value = _min; value < _max + _step / 2.0; value += _step) {
            if (axis.getMajorGridLines() != nullptr) {
                writeLine(Left, getY(value), _right, getY(value),
                          axis.getMajorGridLines()->getGraphicProps());
            }
            writeText(Left - 6.0, getY(value) + 3.5, "end", "chart-label", toFixed(value, decimals));
        }
        const std::string turn = "rotate(-90) ";
        writeText(-(Top + _bottom) / 2.0, 12.0, "middle", "chart-axis", getTitle(axis.getTitle()), turn);
    }

    void writeCategoryAxis(const ChartAxis& axis)
    {
        writeLine(Left, _bottom, _right, _bottom, boost::none);
        const auto& categories = _chart.getPlotArea().getCharts().front().getCategories();
        const auto cells = categories ? findCells(*categories, _table) : std::vector<CellIndex>();
        constexpr std::size_t Labels = 7;
        const std::size_t step = std::max<std::size_t>(1, (cells.size() + Labels - 2) / (Labels - 1));
        for (std::size_t i = 0; i < cells.size(); i += step) {
            const Value value = _values.get(cells[i].getRow(), cells[i].getColumn());
            const double x = getX(i);
            writeLine(x, _bottom, x, _bottom + 4.0, boost::none);
            writeText(x, _bottom + 15.0, i == 0 ? "start" : "middle", "chart-label",
                      toText(value, findFormat(_table, cells[i])));
        }
        writeText((Left + _right) / 2.0, _height - 8.0, "middle", "chart-axis", getTitle(axis.getTitle()));
    }

    /// The points of a series; a cell without a number interrupts the line.
    void writeLine(const Series& series)
    {
        std::string data;
        bool isDrawing = false;
        const auto cells = findCells(series.getValues(), _table);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const Value value = _values.get(cells[i].getRow(), cells[i].getColumn());
            const double* const number = std::get_if<double>(&value);
            if (number != nullptr) {
                data += (isDrawing ? 'L' : 'M') + toFixed(getX(i), 1) + ' ' + toFixed(getY(*number), 1);
            }
            isDrawing = number != nullptr;
        }
        _svg += "<path d=\"" + data + "\" fill=\"none\" stroke-linejoin=\"round\"" +
                getStroke(series.getGraphicProps()) + "/>\n";
    }

    void writeLine(double x1, double y1, double x2, double y2,
                   const boost::optional<ChartGraphicProps>& props)
    {
        _svg += "<path d=\"M" + toFixed(x1, 1) + ' ' + toFixed(y1, 1) + 'L' + toFixed(x2, 1) + ' ' +
                toFixed(y2, 1) + '"' + getStroke(props) + "/>\n";
    }

    std::string getStroke(const boost::optional<ChartGraphicProps>& props) const
    {
        const auto* const line =
            props ? dynamic_cast<const RegularLineProps*>(props->getLineProps()) : nullptr;
        if (line == nullptr || !line->getColor()) {
            return " stroke=\"#888\" stroke-width=\"0.75\"";
        }
        return " stroke=\"" + toCss(*line->getColor(), _document) + "\" stroke-width=\"" +
               toFixed(line->getWidth().value_or(1.0F), 2) + '"';
    }

    void writeText(double x, double y, const char* anchor, const char* style, const std::string& text,
                   const std::string& transform = {})
    {
        if (!text.empty()) {
            _svg += std::string("<text class=\"") + style + "\" text-anchor=\"" + anchor + "\" transform=\"" +
                    transform + "translate(" + toFixed(x, 1) + ' ' + toFixed(y, 1) + ")\">" +
                    escapeHtml(text) + "</text>\n";
        }
    }

    /// Literal text, or the cells that a title refers to.
    std::string getTitle(const ChartTitle* title) const
    {
        std::string text;
        if (title != nullptr && title->getText()) {
            if (const auto* const literal = boost::get<QN::DOM::TextWithTombstones>(&*title->getText())) {
                return getTextFromParagraphs(literal->getBlocks());
            }
            for (const CellIndex& cell :
                 findCells(boost::get<std::vector<Formula>>(*title->getText()), _table)) {
                text += toText(_values.get(cell.getRow(), cell.getColumn()), findFormat(_table, cell));
            }
        }
        return text;
    }

    const ChartSpace& _chart;
    SheetValues& _values;
    const Table& _table;
    const Document& _document;
    double _width;
    double _height;
    double _right;
    double _bottom;
    double _min = 0.0;
    double _max = 0.0;
    double _step = 1.0;
    std::size_t _pointsCount = 0;
    std::string _svg;
};

} // namespace

std::string drawChart(const ChartSpace& chart, SheetValues& values, const Document& document)
{
    return ChartWriter(chart, values, document).write();
}

} // namespace Demo
