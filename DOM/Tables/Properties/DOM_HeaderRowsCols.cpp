#include "DOM/Tables/Properties/DOM_HeaderRowsCols.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(HeaderRowsCols)

HeaderRowsCols::HeaderRowsCols(const RowRange& rowRange, const ColumnRange& colRange)
{
    setRowRange(rowRange);
    setColRange(colRange);
}

HeaderRowsCols::RowRange HeaderRowsCols::getRowRange() const
{
    if (!_beginRowID || !_lastRowID) {
        return boost::none;
    }
    return IDRange<boost::optional<RowID>>{_beginRowID, _lastRowID};
}

HeaderRowsCols::ColumnRange HeaderRowsCols::getColRange() const
{
    if (!_beginColID || !_lastColID) {
        return boost::none;
    }
    return IDRange<boost::optional<ColumnID>>{_beginColID, _lastColID};
}

void HeaderRowsCols::setRowRange(const RowRange& rowRange)
{
    if (!rowRange) {
        _beginRowID.reset();
        _lastRowID.reset();
        return;
    }
    QN_ASSERT(rowRange->begin && rowRange->last);
    _beginRowID = rowRange->begin;
    _lastRowID = rowRange->last;
}

void HeaderRowsCols::setColRange(const ColumnRange& colRange)
{
    if (!colRange) {
        _beginColID.reset();
        _lastColID.reset();
        return;
    }
    QN_ASSERT(colRange->begin && colRange->last);
    _beginColID = colRange->begin;
    _lastColID = colRange->last;
}

} // namespace QN::DOM
