#pragma once

#include "DOM/Tables/DOM_SparseData.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

class Table;

namespace Utils {

/// A copy of a row or a column, to be inserted elsewhere: its identifier, its style and those of its cells that are not
/// empty. A cell is not empty when it has tombstones, but a pivot table alone does not count.
///
/// A style that hides the row or column is left out whole, so that the copy shows.
///
/// An empty table fails the contract "_beginColumn < _endColumn" for a row and "_beginRow < _endRow" for a column. A position
/// behind the last row or column gives no cells; but the largest index of 64 bits fails "_beginRow < _endRow" for a row and
/// "_beginColumn < _endColumn" for a column, also in a table that is not empty.
DOM_API RowData getSparseDataWithProps(const Table& table, RowIndex index);
DOM_API ColumnData getSparseDataWithProps(const Table& table, ColumnIndex index);

} // namespace Utils

} // namespace QN::DOM
