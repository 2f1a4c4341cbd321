#pragma once

#include <string>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Axis.h"
#include "DOM/FormulaSyntaxTree/DOM_BaseReferenceExpr.h"
#include "DOM/FormulaSyntaxTree/DOM_TableAddress.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A reference to a rectangle of cells, both ends included, on one sheet or from one sheet to another. Whole rows have
/// all columns of the largest table, from position 0 to the last, both fixed, and whole columns all rows.
class DOM_API CellRange final : public Reflectable<BaseReferenceExpr> {
public:
    using Columns = std::pair<ColumnAxis, ColumnAxis>;
    using Rows = std::pair<RowAxis, RowAxis>;

    /// The cell in position 0, 0 of a sheet without a name.
    CellRange() = default;
    CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
              Columns columns, Rows rows);
    /// Whole columns.
    CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
              Columns columns);
    /// Whole rows.
    CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress, Rows rows);
    /// One cell.
    CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
              const std::pair<ColumnAxis, RowAxis>& cell);
    /// One whole column.
    CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
              const ColumnAxis& column);
    /// One whole row.
    CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
              const RowAxis& row);

    const TableAddress& getFirstTableAddress() const { return _firstTableAddress; }
    const TableAddress& getSecondTableAddress() const { return _secondTableAddress; }

    const Columns& getColumns() const { return _columns; }
    const ColumnAxis& getBeginColumn() const { return _columns.first; }
    void setColumnBegin(ColumnAxis column) { _columns.first = std::move(column); }
    const ColumnAxis& getLastColumn() const { return _columns.second; }
    void setColLast(ColumnAxis column) { _columns.second = std::move(column); }

    const Rows& getRows() const { return _rows; }
    const RowAxis& getBeginRow() const { return _rows.first; }
    void setRowBegin(RowAxis row) { _rows.first = std::move(row); }
    const RowAxis& getLastRow() const { return _rows.second; }
    void setRowLast(RowAxis row) { _rows.second = std::move(row); }

    /// Whether the range is of whole rows. All columns that are not fixed, or are held by identifiers, do not count.
    bool isRowsRange() const;
    /// Whether the range is of whole columns, by the same measure.
    bool isColumnsRange() const;

    QN_VALUE(CellRange)
    QN_CONCRETE(Expr)

private:
    TableAddress _firstTableAddress;
    TableAddress _secondTableAddress;
    Columns _columns;
    Rows _rows;

    BOOST_DESCRIBE_CLASS(CellRange, (BaseReferenceExpr), (), (),
                         (_firstTableAddress, _secondTableAddress, _columns, _rows))
};

} // namespace QN::DOM::FormulaSyntaxTree
