#include "DOM/Tables/DOM_CellInfo.h"

#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

CellID CellInfo::getCellID() const
{
    return {_table != nullptr ? _table->getUUID() : UUID(), _rowID, _columnID};
}

boost::optional<CellIndex> CellInfo::getPivotRoot() const
{
    return _table != nullptr ? _table->getPivotRoot(_row, _column) : boost::none;
}

} // namespace QN::DOM
