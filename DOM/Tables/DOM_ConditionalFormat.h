#pragma once

#include <utility>
#include <vector>

#include "DOM/Tables/DOM_ConditionalFormatOperator.h"
#include "DOM/Tables/DOM_TableRangeByID.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TableIndices/CellIndex.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class Table;

/// A style that applies to some ranges of a sheet when a condition holds. The ranges are held by identifiers and follow
/// their rows and columns. The model stores conditions and evaluates none. Copies are deep:
/// see `FormulaSyntaxTree::BaseCompoundExpr` for trees that cannot be copied. The order of the ranges counts in
/// equality.
class DOM_API ConditionalFormat {
public:
    const UUID& getStyleUUID() const { return _styleUUID; }
    void setStyleUUID(const UUID& uuid) { _styleUUID = uuid; }

    /// Whether later conditional formats are left out where this one holds.
    bool getStopCalculateConditions() const { return _stopCalculateConditions; }
    void setStopCalculateConditions(bool stop) { _stopCalculateConditions = stop; }

    const ConditionalFormatOperator& getOperator() const { return _operator; }
    void setOperator(ConditionalFormatOperator condition) { _operator = std::move(condition); }

    const std::vector<TableRangeByID>& getRanges() const { return _ranges; }
    std::vector<TableRangeByID>& getRanges() { return _ranges; }
    void setRanges(std::vector<TableRangeByID> ranges) { _ranges = std::move(ranges); }

    QN_VALUE(ConditionalFormat)

private:
    UUID _styleUUID;
    bool _stopCalculateConditions = false;
    ConditionalFormatOperator _operator;
    std::vector<TableRangeByID> _ranges;

    BOOST_DESCRIBE_CLASS(ConditionalFormat, (), (), (),
                         (_styleUUID, _stopCalculateConditions, _operator, _ranges))
};

/// Whether a cell lies in a range of one of the table's live conditional formats. A null one fails the contract
/// "plainPtr", unless an earlier one has the cell.
DOM_API bool isIndexInConditionalFormatRanges(const Table& table, const CellIndex& cell);

} // namespace QN::DOM
