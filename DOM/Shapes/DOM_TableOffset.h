#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM {

/// A place in a table, relative to the origin of one of its cells. Nothing checks that the cell exists.
class DOM_API TableOffset {
public:
    TableOffset() = default;
    TableOffset(ColumnIndex columnIndex, float columnOffset, RowIndex rowIndex, float rowOffset)
        : _columnIndex(columnIndex), _columnOffset(columnOffset), _rowIndex(rowIndex), _rowOffset(rowOffset)
    {
    }

    ColumnIndex getColumnIndex() const { return _columnIndex; }
    void setColumnIndex(ColumnIndex index) { _columnIndex = index; }

    float getColumnOffset() const { return _columnOffset; }
    void setColumnOffset(float offset) { _columnOffset = offset; }

    RowIndex getRowIndex() const { return _rowIndex; }
    void setRowIndex(RowIndex index) { _rowIndex = index; }

    float getRowOffset() const { return _rowOffset; }
    void setRowOffset(float offset) { _rowOffset = offset; }

    QN_ORDERED_VALUE(TableOffset)

private:
    ColumnIndex _columnIndex;
    float _columnOffset = 0.0F;
    RowIndex _rowIndex;
    float _rowOffset = 0.0F;

    BOOST_DESCRIBE_CLASS(TableOffset, (), (), (), (_columnIndex, _columnOffset, _rowIndex, _rowOffset))
};

} // namespace QN::DOM
