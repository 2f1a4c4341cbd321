#include "DOM/Tables/DOM_Table.h"

#include "DOM/Tables/DOM_RowColIDGenerator.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

Table::Table() : _chunks(1), _rowIDContainer(MaxRows), _colIDContainer(MaxColumns) {}

Table::Table(RowIndex rows, ColumnIndex columns) : Table()
{
    _rowsCount = rows.get();
    _colsCount = columns.get();
}

Table::Table(std::uint64_t maxChunkSize) : Table()
{
    _maxChunkSize = maxChunkSize;
}

Table::~Table() = default;

QN_DEFINE_DEEP_COPY_WITH_BASE(Table, Reflectable<Block, UUIDable>)

// A table always has a chunk and its identifiers, so that one that was moved from can be used as any other. The few
// small allocations for that are the reason why a failure of them ends the process here.

Table::Table(Table&& other) noexcept
    : Reflectable<Block, UUIDable>(static_cast<Reflectable<Block, UUIDable>&&>(other)), _chunks(1),
      _rowIDContainer(MaxRows), _colIDContainer(MaxColumns)
{
    swapMembers(other);
}

Table& Table::operator=(Table&& other) noexcept
{
    Table moved(std::move(other));
    static_cast<Reflectable<Block, UUIDable>&>(*this) = moved;
    swapMembers(moved);
    return *this;
}

void Table::swapMembers(Table& other) noexcept
{
    forEachMember<Table>([&](auto member) {
        using std::swap;
        swap(this->*member.pointer, other.*member.pointer);
    });
}

QN_DEFINE_CONCRETE(Table, Block)

boost::optional<RowIndex> Table::getIndex(RowID id) const
{
    const std::uint64_t index = _rowIDContainer.getIndex(id.get());
    const bool isLive = index != _rowIDContainer.getPredefinedIDsCount() && index < MaxRows;
    return boost::make_optional(isLive, RowIndex(index));
}

boost::optional<ColumnIndex> Table::getIndex(ColumnID id) const
{
    const std::uint64_t index = _colIDContainer.getIndex(id.get());
    const bool isLive = index != _colIDContainer.getPredefinedIDsCount() && index < MaxColumns;
    return boost::make_optional(isLive, ColumnIndex(index));
}

template <class ID>
ID Table::generateID() const
{
    const RowColIDContainer& container = std::is_same_v<ID, RowID> ? _rowIDContainer : _colIDContainer;
    std::uint64_t id = RowColIDGenerator::generate();
    while (container.containsInsertedID(id)) {
        id = RowColIDGenerator::generate();
    }
    return ID(id);
}

template RowID Table::generateID<RowID>() const;
template ColumnID Table::generateID<ColumnID>() const;

void Table::setHeaderRowsCols(RowIndex beginRow, ColumnIndex beginColumn, RowIndex lastRow,
                              ColumnIndex lastColumn)
{
    HeaderRowsCols headers;
    headers.setBeginRow(getID(beginRow));
    headers.setLastRow(getID(lastRow));
    headers.setBeginCol(getID(beginColumn));
    headers.setLastCol(getID(lastColumn));
    _headerRowsCols = headers;
}

void Table::validate() const
{
    validate(stopAtContract);
}

void Table::validate(const ContractSink& sink) const
{
    _rowIDContainer.validate(sink);
    _colIDContainer.validate(sink);

    struct Bounds {
        RowIndex rowIndex;
        ColumnIndex colIndex;
    };
    const auto toBounds = [](const CellIndex& cell) { return Bounds{cell.getRow(), cell.getColumn()}; };
    const Bounds mergedCellsBounds = toBounds(_mergedCellsCache.getBottomRightCellIndex());
    QN_REPORT_UNLESS(getLiveRowsCount().get() > mergedCellsBounds.rowIndex.get(), sink);
    QN_REPORT_UNLESS(getLiveColsCount().get() > mergedCellsBounds.colIndex.get(), sink);
    const Bounds pivotTablesBounds = toBounds(_pivotTablesCache.getBottomRightCellIndex());
    QN_REPORT_UNLESS(getLiveRowsCount().get() > pivotTablesBounds.rowIndex.get(), sink);
    QN_REPORT_UNLESS(getLiveColsCount().get() > pivotTablesBounds.colIndex.get(), sink);
}

} // namespace QN::DOM
