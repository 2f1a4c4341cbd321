#include <fmt/format.h>

#include "DOM/Tables/DOM_PivotTable.h"
#include "DOM/Utils/DOM_TableNameUtils.h"
#include "DOM/Validator/DOM_BusinessLogicChecks.h"
#include "DOM/Validator/DOM_ValidatorTableLevel.h"

/// The rules of tables and their cells.

namespace QN::DOM {

namespace {

CellIndex getRootIndex(const TableRange& range)
{
    return {range.getBeginRow(), range.getBeginColumn()};
}

/// Whether the cell at the root of an area carries a pivot table of just its size.
bool holdsPivotTable(const Table& table, const TableRange& area)
{
    const Cell* const root = table.getCell(getRootIndex(area));
    const PivotTable* const pivotTable = root != nullptr ? root->getPivotTable() : nullptr;
    return pivotTable != nullptr && pivotTable->getSize().getHeight() == area.getRowCount() &&
           pivotTable->getSize().getWidth() == area.getColumnCount();
}

} // namespace

void ValidatorWalk::enter(const Table& table)
{
    checkTable(table);
    _levels.emplace_back(std::make_unique<TableLevel>(table, _address.size()));
}

void ValidatorWalk::checkTable(const Table& table)
{
    table.validate([&](const char* file, int line, const char* expression) {
        report({file, line, expression}, {});
    });

    const std::string& tableName = table.getName();
    if (!validateTableName(tableName)) {
        report(ValidatorRules::ValidTableName,
               fmt::format(fmt::runtime(ValidatorRules::ValidTableName.message), tableName));
    }
    if (!_tableNames.insert(tableName).second) {
        report(ValidatorRules::UniqueTableName,
               fmt::format(fmt::runtime(ValidatorRules::UniqueTableName.message), tableName));
    }

    if (const auto& filterInfo = table.getFilterInfo()) {
        check(table.getLiveRowsCount() > filterInfo->getFilterRange().getLastRow(),
              ValidatorRules::FilterInsideRows);
        check(table.getLiveColsCount() > filterInfo->getFilterRange().getLastColumn(),
              ValidatorRules::FilterInsideColumns);
    }
}

/// Entering a cell moves the levels.
void ValidatorWalk::walkToNextCell()
{
    TableLevel& level = *std::get<std::unique_ptr<TableLevel>>(_levels.back());
    _address.cutToPosition(level.addressSize);
    if (level.cells.isAtEnd()) {
        _levels.pop_back();
        return;
    }
    const Cell* const cell = *level.cells;
    const CellIndex index(level.cells.getRowIndex(), level.cells.getColIndex());
    ++level.cells;

    _address.appendItems(NodeAddressing::AddressInTable(index));
    if (!check(cell != nullptr, ValidatorRules::NoNullPointer)) {
        return;
    }
    checkMergedRange(level, *cell, index);
    checkPivotTables(level, *cell, index);
    if (!cell->isEmpty(CollaborationUtils::WithTombstones::No)) {
        enter(*cell);
    }
}

void ValidatorWalk::checkMergedRange(TableLevel& level, const Cell& cell, const CellIndex& index)
{
    const TableRange* const mergedRange = level.mergedRanges.find(index.getRow(), index.getColumn());
    if (mergedRange == nullptr) {
        return;
    }
    check(getRootIndex(*mergedRange) == index || cell.isEmpty(CollaborationUtils::WithTombstones::No),
          ValidatorRules::EmptyMergedCell);
    if (const auto& filterInfo = level.table.getFilterInfo()) {
        check(!BusinessLogicChecks::isIntersectedAndNotContained(filterInfo->getFilterRange(), *mergedRange),
              ValidatorRules::MergedRangeInsideFilter);
    }
}

void ValidatorWalk::checkPivotTables(TableLevel& level, const Cell& cell, const CellIndex& index)
{
    const TableRange* const area = level.pivotRanges.find(index.getRow(), index.getColumn());
    if (cell.getPivotTable() != nullptr) {
        check(area != nullptr && getRootIndex(*area) == index, ValidatorRules::KnownPivotTable);
    }
    if (area != nullptr && level.checkedPivotRanges.insert(area).second) {
        check(holdsPivotTable(level.table, *area), ValidatorRules::PivotTableRange);
    }
}

} // namespace QN::DOM
