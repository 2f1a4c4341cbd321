#pragma once

#include <boost/optional/optional.hpp>
#include <boost/unordered/unordered_map.hpp>
#include <boost/variant/variant.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "CollaborationUtils/Public/CU_CollectionWithTombstones.h"
#include "CollaborationUtils/Public/CU_Indices.h"
#include "DOM/DOM_Block.h"
#include "DOM/FormulaSyntaxTree/DOM_Expr.h"
#include "DOM/Properties/DOM_RowColumnStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "DOM/Properties/DOM_TableStyle.h"
#include "DOM/Shapes/DOM_Frame.h"
#include "DOM/Tables/DOM_Cell.h"
#include "DOM/Tables/DOM_CellInfo.h"
#include "DOM/Tables/DOM_ConditionalFormat.h"
#include "DOM/Tables/DOM_LogicalCellIt.h"
#include "DOM/Tables/DOM_MergedCellsCache.h"
#include "DOM/Tables/DOM_PivotTablesCache.h"
#include "DOM/Tables/DOM_RowColIDContainer.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "DOM/Tables/DOM_SparseData.h"
#include "DOM/Tables/DOM_TableChunk.h"
#include "DOM/Tables/DOM_TombstonesWithIDsStorage.h"
#include "DOM/Tables/Filters/DOM_TableFilterInfo.h"
#include "DOM/Tables/Properties/DOM_HeaderRowsCols.h"
#include "DOM/Tables/Properties/DOM_TableSettings.h"
#include "Utils/Public/BaseRuntimeError.h"
#include "Utils/Public/CallableRef.h"
#include "Utils/Public/ContractSink.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/SeededHash.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/TableIndices/TableRange.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

/// A table in a text document, or a worksheet: up to `MaxRows` by `MaxColumns` cells, stored sparsely.
///
/// Cells stand in chunks of consecutive rows. A cell knows its column by identifier, so that inserting and removing
/// columns moves no cell; inserting and removing rows touches one chunk and a counter of each later one. Rows and columns
/// have identifiers that do not change when others come and go, and removed ones can leave tombstones. References by
/// identifier are resolved at use and never rewritten.
///
/// Any insertion, removal or creation of a cell invalidates the iterators; cells themselves stay where they are in
/// memory until they are removed or replaced.
///
/// An axis has as many positions as a table can have, and an identifier for each while nothing is removed. The positions
/// that removals free at its end have numbers for identifiers that never resolve: a cell that is created there is stored
/// and walked over, but `getCell` does not find it. When all predefined ones of an axis were removed, a position
/// without an inserted one has not even a number, and whatever asks for it fails the contract of
/// `RowColIDContainer::getID`.
class DOM_API Table final : public Reflectable<Block, UUIDable> {
public:
    using IndexIncludingTombstones = CollaborationUtils::IndexIncludingTombstones;
    using Chunk = TableChunk;
    using CellDataByCol = DOM::CellDataByCol;
    using Frames = CollaborationUtils::CollectionWithTombstones<std::vector<std::unique_ptr<Frame>>>;
    using ConditionalFormats =
        CollaborationUtils::CollectionWithTombstones<std::vector<std::unique_ptr<ConditionalFormat>>>;
    using DefinedNames = boost::unordered_map<std::string, FormulaSyntaxTree::ExprPtr>;
    using RowStyles = boost::unordered_map<RowID, SharedStylePtr<RowStyle>, SeededHash>;
    using ColumnStyles = boost::unordered_map<ColumnID, SharedStylePtr<ColumnStyle>, SeededHash>;

    /// One coordinate of a reference: a position, or an identifier.
    using RowReference = boost::variant<RowIndex, RowID>;
    using ColumnReference = boost::variant<ColumnIndex, ColumnID>;

    /// The first and the last index of a run of rows or columns.
    template <class Index>
    using IndexPair = std::pair<Index, Index>;

    /// An identifier that is to be inserted exists already.
    class DOM_API BadRowColIDException : public BaseRuntimeError {
    public:
        using BaseRuntimeError::BaseRuntimeError;
    };

    /// Without rows and columns, which `validate` does not accept.
    Table();
    /// The counts are taken as they are: a table that is larger than one can be cannot be loaded again.
    Table(RowIndex rows, ColumnIndex columns);
    /// The most cells a chunk may hold before it is split. A row is never divided.
    explicit Table(std::uint64_t maxChunkSize);
    Table(const Table& other);
    Table& operator=(const Table& other);
    /// `other` is left as a new table, but for its identity.
    Table(Table&& other) noexcept;
    Table& operator=(Table&& other) noexcept;
    ~Table() override;
    QN_CONCRETE(Block)

    /// The token of the block, beside the identifiers of rows and columns.
    using IDHolder::getID;

    // Cells.

    /// Null where no cell is stored. Logarithmic in the number of chunks and in the cells of the row.
    const Cell* getCell(RowIndex row, ColumnIndex column) const;
    Cell* getCell(RowIndex row, ColumnIndex column);
    const Cell* getCell(const CellIndex& index) const { return getCell(index.getRow(), index.getColumn()); }
    Cell* getCell(const CellIndex& index) { return getCell(index.getRow(), index.getColumn()); }
    /// Null also where an identifier is not live.
    const Cell* getCellById(RowID rowID, ColumnID columnID) const;
    Cell* getCellById(RowID rowID, ColumnID columnID);
    CellInfo getCellInfo(RowIndex row, ColumnIndex column) const;

    /// Stores an empty cell where there is none. A position outside the limits of a table fails the contract
    /// "rowIndex.get() < DOM::MaxRows" or "colIndex.get() < DOM::MaxColumns".
    Cell& getOrCreateCell(RowIndex row, ColumnIndex column);

    /// Stores a cell at a place where none is stored yet, with its merged range and its pivot table's area. The same
    /// contracts as `getOrCreateCell`. A null cell is stored as well, and reads as none.
    ///
    /// WARNING: at a place that holds a cell, this replaces the cell and yet moves the offsets of all later rows of the
    /// chunk, as if a cell had been added: after `setCell` at (0,0), (1,0) and (0,0) again, `getCell(1,0)` is null. This
    /// is fixed behaviour. To change a cell that is there, use `getOrCreateCell` and assign to the cell.
    void setCell(RowIndex row, ColumnIndex column, std::unique_ptr<Cell> cell);
    /// Gives the cell merge properties first.
    void setCell(RowIndex row, ColumnIndex column, std::unique_ptr<Cell> cell,
                 const CellMergeProps& mergeProps);

    /// Drops the cell, if there is one, with its merged range and its pivot table's area. The extent of the table stays.
    void removeCell(RowIndex row, ColumnIndex column);

    // Merged cells.

    /// Merges the cell with so many rows and columns beyond its own, or undoes that where both counts are 0. A position
    /// outside the limits of a table fails a contract in both cases. A range may reach past the limits, which
    /// `validate` then refuses; other ranges that it covers or cuts stay.
    void setMergeProps(RowIndex row, ColumnIndex column, std::uint64_t capturedRows,
                       std::uint64_t capturedColumns);
    /// Nothing for the root of a merged range and for a cell outside all of them.
    boost::optional<CellIndex> getMergedCellRoot(RowIndex row, ColumnIndex column) const;
    boost::optional<TableRange> getMergedRange(RowIndex row, ColumnIndex column) const;
    const MergedCellsCache& getMergedCellsCache() const { return _mergedCellsCache; }

    // Pivot tables.

    /// The area is that of the pivot table's size, which must not be empty.
    void setPivotTable(RowIndex row, ColumnIndex column, std::unique_ptr<PivotTable> pivotTable);
    void removePivotTable(RowIndex row, ColumnIndex column);
    boost::optional<CellIndex> getPivotRoot(RowIndex row, ColumnIndex column) const;
    bool isPivotTablesInRange(const TableRange& range) const;
    /// The roots of all areas that share a cell with the range.
    std::vector<CellIndex> getPivotTablesInRange(const TableRange& range) const;
    /// True when an insertion at the position would cut a pivot table: the opposite of what the names promise.
    bool canInsertRow(RowIndex row) const;
    bool canInsertColumn(ColumnIndex column) const;
    const PivotTablesCache& getPivotTablesCache() const { return _pivotTablesCache; }

    // Rows. A position among tombstones counts them. Where a row or column with the same inserted identifier is live,
    // inserting and restoring throw `BadRowColIDException` and change nothing; a predefined identifier that is live is
    // not detected. An insertion into a full axis goes past its limit, and a table saved so cannot be loaded: who fills a
    // table to its limits checks first. A new row or column has an identifier of `generateID`: with 0, which is never
    // valid, live ones may no longer be found.
    //
    // Merged ranges and pivot tables come and go with their root cells and move as a whole: what happens inside one
    // neither widens nor narrows it. The area of a pivot table whose root's row or column is removed stays, and when the
    // row or column comes back, it moves one on and stands beside the area that came with the root.

    /// A position behind the live rows fails the contract "position.get() <= _rowsCount".
    void insertRow(RowData rowData, RowIndex position);
    void insertRow(RowData rowData, IndexIncludingTombstones position);
    /// Puts a row in the place of a tombstone, which is gone then. A position without one fails a contract.
    void restoreRow(RowData rowData, IndexIncludingTombstones position);
    /// Of a row behind the live ones only the identifier is answered, and nothing changes.
    RowData removeRow(RowIndex index);
    /// Leaves no trace of the position. A tombstone is forgotten: no live row goes, and only the identifier is answered.
    RowData removeRow(IndexIncludingTombstones position);
    /// As `removeRow`, with a tombstone in the row's place. A position that is a tombstone fails the contract "opt"; one
    /// behind the live rows records nothing.
    RowData replaceRowWithTombstone(IndexIncludingTombstones position);

    // Columns, as rows. No stored cell moves; removal looks for a cell in each row that is stored.

    /// A position behind the live columns fails the contract "position.get() <= _colsCount".
    /// The cells are stored as by `setCell`, which raises the extent to the end of their merged ranges and stops at a row
    /// behind the last possible one, as a column has that was taken out after a row too many was inserted.
    void insertColumn(ColumnData columnData, ColumnIndex position);
    void insertColumn(ColumnData columnData, IndexIncludingTombstones position);
    void restoreColumn(ColumnData columnData, IndexIncludingTombstones position);
    ColumnData removeColumn(ColumnIndex index);
    ColumnData removeColumn(IndexIncludingTombstones position);
    ColumnData replaceColWithTombstone(IndexIncludingTombstones position);

    // Tombstones.

    void clearRowTombstones() { _rowsTombstones.clear(); }
    void clearColumnTombstones() { _colsTombstones.clear(); }
    RowIndex getRowIndexToInsertTo(IndexIncludingTombstones position) const;
    ColumnIndex getColIndexToInsertTo(IndexIncludingTombstones position) const;
    IndexIncludingTombstones convertRowIndex(RowIndex index) const;
    IndexIncludingTombstones convertColIndex(ColumnIndex index) const;
    /// Nothing at a tombstone.
    boost::optional<RowIndex> convertRowIndex(IndexIncludingTombstones position) const;
    boost::optional<ColumnIndex> convertColIndex(IndexIncludingTombstones position) const;

    // Extent. Live rows and columns are those in use; all of them are the live ones and the tombstones.

    RowIndex getLiveRowsCount() const { return RowIndex(_rowsCount); }
    ColumnIndex getLiveColsCount() const { return ColumnIndex(_colsCount); }
    IndexIncludingTombstones getAllRowsCount() const
    {
        return IndexIncludingTombstones(_rowsCount + _rowsTombstones.getTombstonesCount());
    }
    IndexIncludingTombstones getAllColsCount() const
    {
        return IndexIncludingTombstones(_colsCount + _colsTombstones.getTombstonesCount());
    }
    /// One past the last row that the storage has an entry for: from there on no cell is stored.
    RowIndex getMaxRowIndex() const;

    /// Raises the extent to at least so many rows and columns, but not past the limits of a table.
    void ensureSize(RowIndex rows, ColumnIndex columns);
    /// Makes the extent as small as its cells, styles, merged ranges, pivot tables and filter allow, but not smaller than
    /// asked for and than (1, 1), and not greater than a table can be. Tombstones stay: before one behind the new extent is
    /// restored, the extent must be raised to it again.
    CellIndex changeSize(RowIndex rows, ColumnIndex columns);

    // Identity.

    RowID getID(RowIndex index) const { return RowID(_rowIDContainer.getID(index.get())); }
    ColumnID getID(ColumnIndex index) const { return ColumnID(_colIDContainer.getID(index.get())); }
    /// Nothing for an identifier that is not live.
    boost::optional<RowIndex> getIndex(RowID id) const;
    boost::optional<ColumnIndex> getIndex(ColumnID id) const;
    /// A fresh random identifier that is not in use.
    template <class ID>
    ID generateID() const;
    const RowColIDContainer& getRowIDContainer() const { return _rowIDContainer; }
    const RowColIDContainer& getColIDContainer() const { return _colIDContainer; }
    /// Gives every row and column the predefined identifier of its position, in the cells and as keys of the styles. What
    /// else holds identifiers, inside and outside the table, is not rewritten.
    void resetRowColumnIDsToPredefined();

    // References. An index stands for itself. The identifier of a removed row or column gives the live index where it
    // would stand, less 1 if it is to be the end of a range; nothing when it is unknown.

    boost::optional<RowIndex> resolveRowIndex(const RowReference& reference, bool asEnd) const;
    boost::optional<ColumnIndex> resolveColIndex(const ColumnReference& reference, bool asEnd) const;
    /// The rows from `begin` to `last`, both inclusive, without the removed ones at its ends; nothing when none is left.
    boost::optional<IndexPair<RowIndex>> resolveRange(const RowReference& begin,
                                                      const RowReference& last) const;
    boost::optional<IndexPair<ColumnIndex>> resolveRange(const ColumnReference& begin,
                                                         const ColumnReference& last) const;
    bool isInRange(const TableRangeByID& range, const CellIndex& cell) const;
    bool isInRanges(const std::vector<TableRangeByID>& ranges, const CellIndex& cell) const;

    /// What the header rows and columns take: an upper left cell and a size, which may be empty. Width is columns.
    struct FrozenRange {
        CellIndex begin;
        Size2D<std::uint64_t> size;
    };
    /// Nothing for a table without header rows and columns.
    boost::optional<FrozenRange> getFrozenRange() const;

    // Styles. A null handle reads as an empty style; setting one for a row or column erases its entry. A row or column
    // past the limits fails the contract "rowIndex.get() < DOM::MaxRows" or "colIndex.get() < DOM::MaxColumns".

    const TableStyle& getStyle() const { return derefSharedStyle(_style); }
    const SharedStylePtr<TableStyle>& getSharedStyle() const { return _style; }
    void setSharedStyle(SharedStylePtr<TableStyle> style) { _style = std::move(style); }

    const RowStyle& getStyle(RowIndex index) const { return derefSharedStyle(getSharedStyle(index)); }
    const SharedStylePtr<RowStyle>& getSharedStyle(RowIndex index) const;
    void setSharedStyle(SharedStylePtr<RowStyle> style, RowIndex rowIndex);
    RowStyles::const_iterator getRowStylesBegin() const { return _rowStyles.begin(); }
    RowStyles::const_iterator getRowStylesEnd() const { return _rowStyles.end(); }

    const ColumnStyle& getStyle(ColumnIndex index) const { return derefSharedStyle(getSharedStyle(index)); }
    const SharedStylePtr<ColumnStyle>& getSharedStyle(ColumnIndex index) const;
    void setSharedStyle(SharedStylePtr<ColumnStyle> style, ColumnIndex colIndex);
    ColumnStyles::const_iterator getColStylesBegin() const { return _columnStyles.begin(); }
    ColumnStyles::const_iterator getColStylesEnd() const { return _columnStyles.end(); }

    // Iterators. `getTableIt` stands at the first stored cell at or behind a position.

    CellIterators<TableCellIt<const Table>> getTableIterators() const;
    CellIterators<TableCellIt<Table>> getTableIterators();
    TableCellIt<const Table> getTableIt(RowIndex row, ColumnIndex column) const;
    TableCellIt<Table> getTableIt(RowIndex row, ColumnIndex column);

    CellIterators<LogicalCellIt<TableCellIt<const Table>>> getTableLogicalIterators() const;
    CellIterators<LogicalCellIt<TableCellIt<Table>>> getTableLogicalIterators();
    LogicalCellIt<TableCellIt<const Table>> getTableLogicalIt(RowIndex row, ColumnIndex column) const;
    LogicalCellIt<TableCellIt<Table>> getTableLogicalIt(RowIndex row, ColumnIndex column);
    LogicalCellIt<TableCellIt<const Table>> getTableLogicalBeginIt() const;
    LogicalCellIt<TableCellIt<Table>> getTableLogicalBeginIt();
    LogicalCellIt<TableCellIt<const Table>> getTableLogicalEndIt() const;
    LogicalCellIt<TableCellIt<Table>> getTableLogicalEndIt();

    CellIterators<CellRangeIt<true>> getRangeIterators(const TableRange& range) const;
    CellIterators<CellRangeIt<false>> getRangeIterators(const TableRange& range);
    CellIterators<LogicalCellIt<CellRangeIt<true>>> getRangeLogicalIterators(const TableRange& range) const;
    CellIterators<LogicalCellIt<CellRangeIt<false>>> getRangeLogicalIterators(const TableRange& range);
    LogicalCellIt<CellRangeIt<true>> getRangeLogicalEndIt(const TableRange& range) const;
    LogicalCellIt<CellRangeIt<false>> getRangeLogicalEndIt(const TableRange& range);

    // The rest of a sheet.

    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

    const DefinedNames& getDefinedNames() const { return _definedNames; }
    DefinedNames& getDefinedNames() { return _definedNames; }
    void setDefinedNames(DefinedNames names) { _definedNames = std::move(names); }

    const Frames& getFrames() const { return _frames; }
    Frames& getFrames() { return _frames; }
    ReadonlyPtrVector<Frame> getLiveFrames() const { return _frames.getElements(); }

    const ConditionalFormats& getConditionalFormats() const { return _conditionalFormats; }
    ConditionalFormats& getConditionalFormats() { return _conditionalFormats; }
    ReadonlyPtrVector<ConditionalFormat> getLiveConditionalFormats() const
    {
        return _conditionalFormats.getElements();
    }

    const boost::optional<TableFilterInfo>& getFilterInfo() const { return _filterInfo; }
    boost::optional<TableFilterInfo>& getFilterInfo() { return _filterInfo; }
    void setFilterInfo(boost::optional<TableFilterInfo> filterInfo) { _filterInfo = std::move(filterInfo); }

    const boost::optional<HeaderRowsCols>& getHeaderRowsCols() const { return _headerRowsCols; }
    void setHeaderRowsCols(boost::optional<HeaderRowsCols> headers) { _headerRowsCols = std::move(headers); }
    /// Stores the identifiers of these rows and columns.
    void setHeaderRowsCols(RowIndex beginRow, ColumnIndex beginColumn, RowIndex lastRow,
                           ColumnIndex lastColumn);

    const TableSettings& getTableSettings() const { return _tableSettings; }
    TableSettings& getTableSettings() { return _tableSettings; }

    // Copies of a part.

    /// A table of the source's identity, name, style and chunk size with the cells and the row and column styles of a
    /// rectangle, end row and end column exclusive. `callable` is called for each position, stored or not, and gives the
    /// blocks of the new cell; a position without a cell has none in the copy, and a cell in a pivot table's area becomes
    /// a plain one. A merged range that reaches out of the rectangle raises the extent of the copy.
    static std::unique_ptr<Table>
    getRangeCustomCopy(const Table& source, RowIndex beginRow, ColumnIndex beginColumn, RowIndex endRow,
                       ColumnIndex endColumn, const CallableRef<Cell::Blocks(const CellInfo&)>& callable);

    // Checks and equality.

    /// Checks the identifiers, and that merged ranges and pivot tables lie inside the live rows and columns. A broken
    /// invariant fails a contract. A table without rows and columns does so, too.
    void validate() const;
    /// Reports each broken invariant instead.
    void validate(const ContractSink& sink) const;

    /// Whether the stored cells of the live rows are equal, empty ones left out: a stored empty cell equals no cell at all.
    /// Linear also where a damaged file makes rows share cells; such a table equals only one with the same rows in the
    /// same chunks.
    bool areCellsEqual(const Table& other) const;
    /// Whether the styles of rows and columns are equal, position by position.
    bool areStylesEqual(const Table& other) const;
    /// Whether every live row and column has the same identifier.
    bool areRowColIDsEqual(const Table& other) const;
    bool areEqualWithoutIDs(const Table& other) const;
    /// Leaves out the filter, the header rows and columns, the settings, the conditional formats, the merged ranges as
    /// such, and how the cells are spread over chunks.
    bool operator==(const Table& other) const;

    /// A load that fails leaves the table as it was.
    QN_SERIALIZE(Table)

private:
    friend class TableCellIt<Table>;
    friend class TableCellIt<const Table>;
    friend class CellRangeIt<true>;
    friend class CellRangeIt<false>;

    /// Where a cell stands or belongs.
    struct Place {
        std::size_t chunk = 0;
        std::size_t relativeRow = 0;
        std::size_t data = 0;
        bool isOccupied = false;
    };

    void swapMembers(Table& other) noexcept;

    std::size_t findChunk(RowIndex row) const;
    TableChunk::Boundaries getRowBoundaries(std::size_t chunk, RowIndex row) const;
    TableChunk::CellIterator getLBCellIterator(const TableChunk& chunk,
                                               const TableChunk::Boundaries& boundaries,
                                               ColumnIndex column) const;
    TableChunk::CellIterator getUBCellIterator(const TableChunk& chunk,
                                               const TableChunk::Boundaries& boundaries,
                                               ColumnIndex column) const;

    Place findPlace(RowIndex row, ColumnIndex column);
    void insertAt(const Place& place, std::unique_ptr<Cell> cell, ColumnID id);
    void splitChunkIfNeeded(std::size_t chunkIndex);
    void splitChunk(std::size_t chunkIndex);

    void checkRowID(const RowData& rowData) const;
    void checkColumnID(const ColumnData& columnData) const;
    void insertRowCells(RowData& rowData, RowIndex position, TableChunk& chunk, std::size_t relativeRow);
    void removeRowCells(std::size_t chunkIndex, std::size_t relativeRow, RowData& removed);
    void removeColumnCells(TableChunk& chunk, ColumnIndex index, ColumnData& removed);
    bool goToNextStoredRow(std::size_t& chunkIndex, RowIndex& row) const;
    bool goToPreviousStoredRow(std::size_t& chunkIndex, RowIndex& row) const;
    std::uint64_t getNeededRows() const;
    std::uint64_t getNeededColumns() const;

    std::string _name;
    std::vector<Chunk> _chunks;
    RowColIDContainer _rowIDContainer;
    RowColIDContainer _colIDContainer;
    TombstonesWithIDsStorage _colsTombstones;
    TombstonesWithIDsStorage _rowsTombstones;
    DefinedNames _definedNames;
    SharedStylePtr<TableStyle> _style;
    Frames _frames;
    RowStyles _rowStyles;
    ColumnStyles _columnStyles;
    boost::optional<TableFilterInfo> _filterInfo;
    boost::optional<HeaderRowsCols> _headerRowsCols;
    TableSettings _tableSettings;
    MergedCellsCache _mergedCellsCache;
    PivotTablesCache _pivotTablesCache;
    std::uint64_t _maxChunkSize = 20000;
    std::uint64_t _rowsCount = 0;
    std::uint64_t _colsCount = 0;
    ConditionalFormats _conditionalFormats;

    BOOST_DESCRIBE_CLASS(Table, (Block, UUIDable), (), (),
                         (_name, _chunks, _rowIDContainer, _colIDContainer, _colsTombstones, _rowsTombstones,
                          _definedNames, _style, _frames, _rowStyles, _columnStyles, _filterInfo,
                          _headerRowsCols, _tableSettings, _mergedCellsCache, _pivotTablesCache,
                          _maxChunkSize, _rowsCount, _colsCount, _conditionalFormats))
};

extern template DOM_API RowID Table::generateID<RowID>() const;
extern template DOM_API ColumnID Table::generateID<ColumnID>() const;

} // namespace QN::DOM
