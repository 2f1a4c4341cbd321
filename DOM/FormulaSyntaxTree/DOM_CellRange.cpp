#include "DOM/FormulaSyntaxTree/DOM_CellRange.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

namespace {

const CellRange::Columns& allColumns()
{
    static const CellRange::Columns Columns{{ColumnIndex(0), true}, {ColumnIndex(ColumnAxis::Max), true}};
    return Columns;
}

const CellRange::Rows& allRows()
{
    static const CellRange::Rows Rows{{RowIndex(0), true}, {RowIndex(RowAxis::Max), true}};
    return Rows;
}

} // namespace

CellRange::CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
                     Columns columns, Rows rows)
    : Reflectable<BaseReferenceExpr>(std::move(docURL)), _firstTableAddress(std::move(firstTableAddress)),
      _secondTableAddress(std::move(secondTableAddress)), _columns(std::move(columns)), _rows(std::move(rows))
{
}

CellRange::CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
                     Columns columns)
    : CellRange(std::move(docURL), std::move(firstTableAddress), std::move(secondTableAddress),
                std::move(columns), allRows())
{
}

CellRange::CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
                     Rows rows)
    : CellRange(std::move(docURL), std::move(firstTableAddress), std::move(secondTableAddress), allColumns(),
                std::move(rows))
{
}

CellRange::CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
                     const std::pair<ColumnAxis, RowAxis>& cell)
    : CellRange(std::move(docURL), std::move(firstTableAddress), std::move(secondTableAddress),
                Columns(cell.first, cell.first), Rows(cell.second, cell.second))
{
}

CellRange::CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
                     const ColumnAxis& column)
    : CellRange(std::move(docURL), std::move(firstTableAddress), std::move(secondTableAddress),
                Columns(column, column))
{
}

CellRange::CellRange(std::string docURL, TableAddress firstTableAddress, TableAddress secondTableAddress,
                     const RowAxis& row)
    : CellRange(std::move(docURL), std::move(firstTableAddress), std::move(secondTableAddress),
                Rows(row, row))
{
}

bool CellRange::isRowsRange() const
{
    return _columns == allColumns();
}

bool CellRange::isColumnsRange() const
{
    return _rows == allRows();
}

QN_DEFINE_VALUE(CellRange)
QN_DEFINE_CONCRETE(CellRange, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
