#pragma once

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "DOM/Properties/DOM_RowColumnStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "DOM/Tables/DOM_Cell.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM {

/// A row or a column on its way out of a table or into one, by the class of its style.
/// Invariant: the cells are sorted by index, which is that of the column for a row and that of the row for a column.
template <class Style>
struct SparseData {
    static constexpr bool IsRow = std::is_same_v<Style, RowStyle>;
    using CellPosition = std::conditional_t<IsRow, ColumnIndex, RowIndex>;
    using ID = std::conditional_t<IsRow, RowID, ColumnID>;

    std::vector<std::pair<CellPosition, std::unique_ptr<Cell>>> cells;
    SharedStylePtr<Style> style;
    ID id{};
};

using RowData = SparseData<RowStyle>;
using ColumnData = SparseData<ColumnStyle>;

} // namespace QN::DOM
