#include "SheetLayout.h"

namespace Demo {

using namespace QN::DOM;
using QN::ColumnIndex;
using QN::RowIndex;

const Table* findSheet(const Document& document)
{
    for (const Block& block : document.getBlocks()) {
        if (const auto* const table = dynamic_cast<const Table*>(&block)) {
            return table;
        }
    }
    return nullptr;
}

Table* findSheet(Document& document)
{
    for (const auto& block : document.getBlocks()) {
        if (auto* const table = dynamic_cast<Table*>(block.get())) {
            return table;
        }
    }
    return nullptr;
}

boost::optional<SheetLayout> getLayout(const Table& table)
{
    if (!table.getFilterInfo()) {
        return boost::none;
    }
    // The filter's range is the header row and the data.
    const QN::TableRange& range = table.getFilterInfo()->getFilterRange();
    SheetLayout layout{range.getBeginRow(), range.getBeginRow() + 1, range.getLastRow(),
                       range.getLastColumn(), boost::none};
    for (ColumnIndex column; column <= layout.lastColumn; ++column) {
        const Cell* const cell = table.getCell(layout.firstRow, column);
        if (cell != nullptr && cell->getFormula() != nullptr) {
            layout.formulas = column;
            break;
        }
    }
    return layout;
}

void mergeTitles(Table& table)
{
    const ColumnIndex first(0);
    table.setMergeProps(RowIndex(0), first, 0, table.getLiveColsCount().get() - 1);
    const auto layout = getLayout(table);
    if (layout && layout->formulas && *layout->formulas > first) {
        table.setMergeProps(layout->header - 1, first, 0, layout->formulas->get() - 1);
    }
}

} // namespace Demo
