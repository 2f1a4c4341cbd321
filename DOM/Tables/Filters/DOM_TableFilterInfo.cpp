#include "DOM/Tables/Filters/DOM_TableFilterInfo.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(TableFilterInfo)
QN_DEFINE_DEEP_COPY(TableFilterInfo)

TableFilterInfo::TableFilterInfo(const TableRange& filterRange) : _filterRange(filterRange)
{
    QN_ASSERT(filterRange.getRowCount() > 1);
}

TableRange TableFilterInfo::getFilterRangeWithoutHeader() const
{
    return {_filterRange.getBeginRow() + 1, _filterRange.getEndRow(), _filterRange.getBeginColumn(),
            _filterRange.getEndColumn()};
}

} // namespace QN::DOM
