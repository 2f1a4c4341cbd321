#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

std::unique_ptr<Table> Table::getRangeCustomCopy(const Table& source, RowIndex beginRow,
                                                 ColumnIndex beginColumn, RowIndex endRow,
                                                 ColumnIndex endColumn,
                                                 const CallableRef<Cell::Blocks(const CellInfo&)>& callable)
{
    const TableRange range(beginRow, endRow, beginColumn, endColumn);
    auto copy = std::make_unique<Table>(RowIndex(range.getRowCount()), ColumnIndex(range.getColumnCount()));
    copy->setUUID(source.getUUID());
    copy->_name = source._name;
    copy->_style = source._style;
    copy->_maxChunkSize = source._maxChunkSize;

    const auto iterators = source.getRangeLogicalIterators(range);
    for (auto position = iterators.first; !(position == iterators.second); ++position) {
        const CellInfo info = position.getCellInfo();
        Cell::Blocks blocks = callable(info);
        std::unique_ptr<Cell> cell;
        if (info.getPivotRoot()) {
            cell = std::make_unique<Cell>();
        } else if (info.getCell() != nullptr) {
            cell = std::make_unique<Cell>(*info.getCell(), Cell::CopyStrategy::WithoutText);
        } else {
            continue;
        }
        cell->getRawBlocks() = std::move(blocks);
        copy->setCell(info.getRowIndex() - beginRow.get(), info.getColIndex() - beginColumn.get(),
                      std::move(cell));
    }
    for (RowIndex row = beginRow; row < endRow; ++row) {
        copy->setSharedStyle(source.getSharedStyle(row), row - beginRow.get());
    }
    for (ColumnIndex column = beginColumn; column < endColumn; ++column) {
        copy->setSharedStyle(source.getSharedStyle(column), column - beginColumn.get());
    }
    return copy;
}

} // namespace QN::DOM
