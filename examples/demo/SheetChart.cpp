#include "SheetChart.h"

#include <memory>
#include <utility>
#include <vector>

#include "Formulas.h"
#include "SheetLayout.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using QN::CellIndex;
using QN::ColumnIndex;
using QN::RowIndex;

Formula makeFormula(FormulaSyntaxTree::ExprPtr reference)
{
    return {std::move(reference), false};
}

std::vector<Formula> makeFormulas(FormulaSyntaxTree::ExprPtr reference)
{
    std::vector<Formula> formulas;
    formulas.push_back(makeFormula(std::move(reference)));
    return formulas;
}

/// A title that shows what stands in a cell.
std::unique_ptr<ChartTitle> makeTitle(const Table& table, const CellIndex& cell)
{
    auto title = std::make_unique<ChartTitle>();
    title->getText() = ChartTitle::Text(makeFormulas(makeReference(table, cell)));
    return title;
}

ChartGraphicProps makeLine(Color color, float width)
{
    auto line = std::make_unique<RegularLineProps>();
    line->setColor(std::move(color));
    line->setWidth(width);
    line->setDashStyle(DashStyle::Solid);
    ChartGraphicProps props;
    props.setLineProps(std::move(line));
    return props;
}

std::unique_ptr<Chart> makeLineChart(const Table& table, const SheetLayout& layout)
{
    const auto getColumn = [&](ColumnIndex column) {
        return makeReference(table, CellIndex(layout.firstRow, column), CellIndex(layout.lastRow, column));
    };
    auto chart = std::make_unique<LineChart>();
    chart->getAxisIndexes() = {0, 1};
    chart->setCategories(makeFormulas(getColumn(ColumnIndex(0))));

    std::unique_ptr<Series> series = makeCompatibleSeries(*chart);
    series->setName(makeFormula(makeReference(table, CellIndex(layout.header, *layout.formulas))));
    series->setValues(makeFormulas(getColumn(*layout.formulas)));
    series->setGraphicProps(makeLine(Color(ThemeColorId::Accent1), 1.0F));
    chart->getLiveSeries().push_back(std::move(series));
    return chart;
}

void addAxes(PlotArea& plotArea, const Table& table, const SheetLayout& layout)
{
    auto categories = std::make_unique<CategoryAxis>();
    categories->setPosition(ChartAxisPosition::Bottom);
    categories->setCrossingAxisIndex(1);
    categories->setMajorTickMark(ChartAxisTickMark::Out);
    categories->setTitle(makeTitle(table, CellIndex(layout.header, ColumnIndex(0))));

    auto gridLines = std::make_unique<ChartLines>();
    gridLines->setGraphicProps(makeLine(Color(ThemeColorId::Light2), 0.75F));
    auto values = std::make_unique<ValueAxis>();
    values->setPosition(ChartAxisPosition::Left);
    values->setCrossingAxisIndex(0);
    values->setMajorTickMark(ChartAxisTickMark::None);
    values->setMajorGridLines(std::move(gridLines));
    values->setTitle(makeTitle(table, CellIndex(layout.header, *layout.formulas)));

    plotArea.getAxes().push_back(std::move(categories));
    plotArea.getAxes().push_back(std::move(values));
}

} // namespace

void addChart(Table& table)
{
    const auto layout = getLayout(table);
    if (!layout || !layout->formulas) {
        return;
    }
    auto space = std::make_unique<ChartSpace>();
    space->setExtent(QN::Size2D<float>(640.0F, 230.0F));
    space->setTitle(makeTitle(table, CellIndex(RowIndex(0), ColumnIndex(0))));
    space->getPlotArea().getCharts().push_back(makeLineChart(table, *layout));
    addAxes(space->getPlotArea(), table, *layout);

    // Beside the data, its upper left corner in a cell.
    const TableOffset corner(layout->lastColumn + 2, 0.0F, layout->header, 0.0F);
    auto frame = std::make_unique<Frame>();
    frame->setAnchor(OneCellAnchor(corner, space->getExtent()));
    frame->setExtent(space->getExtent());
    frame->setGraphicalObject(std::move(space));
    table.getFrames().getElements().push_back(std::move(frame));
}

} // namespace Demo
