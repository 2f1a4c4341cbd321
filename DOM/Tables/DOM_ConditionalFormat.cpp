#include "DOM/Tables/DOM_ConditionalFormat.h"

#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ConditionalFormat)

bool isIndexInConditionalFormatRanges(const Table& table, const CellIndex& cell)
{
    for (const ConditionalFormat& format : table.getLiveConditionalFormats()) {
        if (table.isInRanges(format.getRanges(), cell)) {
            return true;
        }
    }
    return false;
}

} // namespace QN::DOM
