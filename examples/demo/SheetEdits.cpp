#include "SheetEdits.h"

#include <iomanip>
#include <memory>
#include <ostream>
#include <string>
#include <utility>

#include "CellText.h"
#include "FormulaText.h"
#include "SheetLayout.h"
#include "SheetValues.h"
#include "Text.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using QN::CellIndex;
using QN::ColumnIndex;
using QN::RowIndex;
using QN::CollaborationUtils::IndexIncludingTombstones;

/// A formula of the table that is followed through the edits, by the identifiers of its cell.
class WatchedFormula {
public:
    WatchedFormula(const Table& table, const CellIndex& cell)
        : _table(table), _row(table.getID(cell.getRow())), _column(table.getID(cell.getColumn()))
    {
    }

    /// "I7 =G7-H7 gives 9.1".
    std::string describe() const
    {
        const Cell* const cell = _table.getCellById(_row, _column);
        if (cell == nullptr || cell->getFormula() == nullptr) {
            return "gone";
        }
        const CellIndex place(*_table.getIndex(_row), *_table.getIndex(_column));
        const Value value = SheetValues(_table).get(place.getRow(), place.getColumn());
        return toColumnName(place.getColumn()) + std::to_string(place.getRow().get() + 1) + ' ' +
               toText(*cell->getFormula()->getSyntaxTree(), _table) + " gives " +
               toText(value, findFormat(_table, place));
    }

private:
    const Table& _table;
    RowID _row;
    ColumnID _column;
};

/// A filter holds positions, not identifiers: who edits a table keeps its filter in step. This remembers the identifiers of
/// a filter's rows and columns, and puts the filter to where they are.
class FilterKeeper {
public:
    explicit FilterKeeper(Table& table) : _table(table)
    {
        const TableFilterInfo& info = *table.getFilterInfo();
        const QN::TableRange& range = info.getFilterRange();
        _range = convertToTableRangeByID(table, range);
        if (const auto* const filter = dynamic_cast<const ByColumnTableFilter*>(info.getFilter().get())) {
            _column = table.getID(filter->getColumnIndex());
        }
    }

    void update()
    {
        const auto range = convertToTableRange(_table, _range);
        if (!range || range->getRowCount() < 2) {
            _table.setFilterInfo(boost::none);
            return;
        }
        std::unique_ptr<TableFilter> filter;
        if (const auto& former = _table.getFilterInfo()->getFilter()) {
            former->cloneTo(filter);
        }
        if (auto* const byColumn = dynamic_cast<ByColumnTableFilter*>(filter.get())) {
            byColumn->setColumnIndex(_table.getIndex(*_column).value_or(ColumnIndex(0)));
        }
        TableFilterInfo info(*range);
        info.setFilter(std::move(filter));
        _table.setFilterInfo(std::move(info));
    }

private:
    Table& _table;
    TableRangeByID _range;
    boost::optional<ColumnID> _column;
};

/// A copy of a row for another place. Its formulas refer to the new row where those of the source refer to the source.
RowData copyRow(const Table& table, RowIndex source)
{
    const RowID sourceID = table.getID(source);
    RowData copy;
    copy.id = table.generateID<RowID>();
    const auto modify = [&](std::unique_ptr<FormulaSyntaxTree::Expr> node) {
        auto* const address = dynamic_cast<FormulaSyntaxTree::CellAddress*>(node.get());
        if (address != nullptr && address->getRow().getID() == Table::RowReference(sourceID)) {
            address->setRow(FormulaSyntaxTree::RowAxis(copy.id, address->getRow().isFixed()));
        }
        return node;
    };
    for (ColumnIndex column; column < table.getLiveColsCount(); ++column) {
        if (const Cell* const cell = table.getCell(source, column)) {
            auto copied = std::make_unique<Cell>(*cell);
            if (const Formula* const formula = cell->getFormula()) {
                auto tree = cloneToSyntaxTree(toExprStack(*formula->getSyntaxTree()), modify);
                copied->getRawBlocks().clear();
                copied->getRawBlocks().push_back(
                    std::make_unique<FieldBlock>(Formula(std::move(tree), formula->isForceFormula())));
            }
            copy.cells.emplace_back(column, std::move(copied));
        }
    }
    return copy;
}

/// A column of its own, with a name and a tick in its first rows.
ColumnData makeColumn(const Table& table, const SheetLayout& layout)
{
    ColumnData column;
    column.id = table.generateID<ColumnID>();
    column.style = table.getSharedStyle(*layout.formulas);

    auto name = std::make_unique<Paragraph>();
    name->getRuns().push_back(std::make_unique<TextRun>("Checked"));
    auto header = std::make_unique<Cell>();
    header->getRawBlocks().push_back(std::move(name));
    header->getSharedStyle() = table.getCell(layout.header, *layout.formulas)->getSharedStyle();
    column.cells.emplace_back(layout.header, std::move(header));

    for (RowIndex row = layout.firstRow; row < layout.firstRow + 3; ++row) {
        auto cell = std::make_unique<Cell>();
        cell->getRawBlocks().push_back(std::make_unique<FieldBlock>(BlockValue<bool>(true)));
        column.cells.emplace_back(row, std::move(cell));
    }
    return column;
}

class Collaborators {
public:
    Collaborators(Table& table, const SheetLayout& layout, std::ostream& report)
        : _table(table), _layout(layout), _report(report), _filter(table),
          _watchedRow(layout.firstRow + (layout.lastRow > layout.firstRow + 8 ? 5 : 1)),
          _watched(table, CellIndex(_watchedRow, *layout.formulas)),
          _sum(table, CellIndex(layout.header - 1, *layout.formulas))
    {
    }

    void edit()
    {
        show("at first");

        // A row like the one above it, and a column.
        _table.insertRow(copyRow(_table, _watchedRow - 1), _table.convertRowIndex(_watchedRow));
        show("row " + std::to_string(_watchedRow.get() + 1) + " inserted");
        const ColumnIndex second(1);
        _table.insertColumn(makeColumn(_table, _layout), _table.convertColIndex(second));
        show("column " + toColumnName(second) + " inserted");

        // A row goes and comes back. Its place, in which removed rows count, is the same for everybody.
        const RowIndex row = _watchedRow + 2;
        const IndexIncludingTombstones rowPlace = _table.convertRowIndex(row);
        RowData removedRow = _table.replaceRowWithTombstone(rowPlace);
        show("row " + std::to_string(row.get() + 1) + " removed");
        _table.restoreRow(std::move(removedRow), rowPlace);
        show("row " + std::to_string(row.get() + 1) + " restored");

        // So does a column, of which the formulas speak.
        const ColumnIndex column(layoutColumn());
        const IndexIncludingTombstones columnPlace = _table.convertColIndex(column);
        ColumnData removedColumn = _table.replaceColWithTombstone(columnPlace);
        show("column " + toColumnName(column) + " removed");
        _table.restoreColumn(std::move(removedColumn), columnPlace);
        show("column " + toColumnName(column) + " restored");

        _table.replaceRowWithTombstone(rowPlace);
        show("row " + std::to_string(row.get() + 1) + " removed");
    }

private:
    /// The column left of the formulas.
    std::uint64_t layoutColumn() const { return getLayout(_table)->formulas->get() - 1; }

    void show(const std::string& edit)
    {
        _filter.update();
        mergeTitles(_table);
        constexpr int EditWidth = 20;
        constexpr int FormulaWidth = 30;
        _report << "         " << std::left << std::setw(EditWidth) << edit << std::setw(FormulaWidth)
                << _watched.describe() + "  " << _sum.describe() << '\n';
    }

    Table& _table;
    SheetLayout _layout;
    std::ostream& _report;
    FilterKeeper _filter;
    RowIndex _watchedRow;
    WatchedFormula _watched;
    WatchedFormula _sum;
};

} // namespace

void editSheet(Table& table, std::ostream& report)
{
    const auto layout = getLayout(table);
    if (!layout || !layout->formulas || *layout->formulas == ColumnIndex(0) ||
        layout->lastRow < layout->firstRow + 3) {
        report << "         the sheet has too few rows or columns for it\n";
        return;
    }
    Collaborators(table, *layout, report).edit();
}

} // namespace Demo
