#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(CellFormat)

bool areDeeplyEqual(const CellFormat& left, const CellFormat& right)
{
    return left == right;
}

bool areDeeplyLess(const CellFormat& left, const CellFormat& right)
{
    return left < right;
}

} // namespace QN::DOM
