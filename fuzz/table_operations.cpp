#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "DOM/DOM.h"
#include "Utils/Public/Archive/JSONArchives.h"

/// Reads any bytes as a sequence of operations and gives them to a table: all that change it, `setCell` at occupied
/// places, unsorted cells and identifiers that are live included, and all that look at it. Only what fails a contract by
/// its arguments alone is left out. At the end a copy, and what is saved and loaded again, must equal the table.

namespace {

using namespace QN;
using namespace QN::DOM;
using Position = Table::IndexIncludingTombstones;

constexpr int MostOperations = 200;
constexpr int MostSteps = 60;

void expect(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

std::string save(const Table& table)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        table.serialize(archive);
    }
    return stream.str();
}

/// Touches what a cell holds.
std::uint64_t touch(const Cell* cell)
{
    if (cell == nullptr) {
        return 0;
    }
    return cell->getRawBlocks().size() + cell->getMergeProps().getCapturedRowsCount() +
           (cell->getPivotTable() != nullptr ? cell->getPivotTable()->getSize().getWidth() : 0) +
           (cell->isEmpty(CollaborationUtils::WithTombstones::Yes) ? 1 : 0);
}

class Operations {
public:
    Operations(const std::uint8_t* data, std::size_t size)
        : _input(data, size), _reachesFar(_input.ConsumeIntegral<std::uint8_t>() % 16 == 0),
          _table(_input.ConsumeIntegralInRange<std::uint64_t>(0, 40))
    {
    }

    void run()
    {
        for (int count = 0; count < MostOperations && _input.remaining_bytes() != 0; ++count) {
            try {
                perform();
            } catch (const Table::BadRowColIDException&) {
                // An identifier that is there already.
            }
        }
        look();
        compareCopies();
    }

private:
    // Nearly always near the upper left, else around the limit. Few inputs get there, since a table that reaches down
    // to the last row is slow.

    std::uint64_t any(std::uint64_t limit)
    {
        const auto number = _input.ConsumeIntegral<std::uint8_t>();
        const bool isNear = number != 255 || limit < 2 || !_reachesFar;
        return isNear ? number % 24 : limit - 2 + _input.ConsumeIntegral<std::uint8_t>() % 4;
    }
    std::uint64_t below(std::uint64_t limit) { return std::min(any(limit), limit - 1); }
    RowIndex row() { return RowIndex(below(MaxRows)); }
    ColumnIndex column() { return ColumnIndex(below(MaxColumns)); }
    unsigned int small() { return _input.ConsumeIntegralInRange<unsigned int>(1, 5); }
    bool chance() { return _input.ConsumeIntegral<std::uint8_t>() % 4 == 0; }

    TableRange range()
    {
        const RowIndex beginRow = row();
        const ColumnIndex beginColumn = column();
        const unsigned int rows = small();
        return {beginRow, beginRow + rows, beginColumn, beginColumn + small()};
    }

    std::unique_ptr<PivotTable> pivotTable()
    {
        auto made = std::make_unique<PivotTable>();
        const unsigned int width = small();
        made->setSize({width, small()});
        return made;
    }

    std::unique_ptr<Cell> cell()
    {
        auto made = std::make_unique<Cell>();
        if (chance()) {
            made->setMergeProps({any(MaxRows), any(MaxColumns)});
        }
        if (chance()) {
            made->setPivotTable(pivotTable());
        }
        if (!chance()) {
            const FloatNumber number(_input.ConsumeIntegral<std::int16_t>());
            made->getRawBlocks().push_back(std::make_unique<FieldBlock>(BlockValue<FloatNumber>(number)));
        }
        return made;
    }

    template <class Data>
    Data line()
    {
        Data made;
        // Predefined ones, removed or live, and inserted ones.
        made.id = typename Data::ID(chance() ? any(MaxRows) : 5'000'000'000 + any(MaxRows));
        for (unsigned int count = small(); count > 1; --count) {
            made.cells.emplace_back(any(std::min(MaxRows, MaxColumns)), chance() ? nullptr : cell());
        }
        if (chance()) {
            std::sort(made.cells.begin(), made.cells.end(),
                      [](const auto& left, const auto& right) { return left.first < right.first; });
        }
        if (chance()) {
            made.style = _factory.create(std::conditional_t<Data::IsRow, RowStyle, ColumnStyle>());
        }
        return made;
    }

    void perform()
    {
        switch (_input.ConsumeIntegral<std::uint8_t>() % 5) {
        case 0:
            return changeCells();
        case 1:
            return changeRows();
        case 2:
            return changeColumns();
        case 3:
            return changeTable();
        default:
            return look();
        }
    }

    void changeCells()
    {
        const RowIndex atRow = row();
        const ColumnIndex atColumn = column();
        switch (_input.ConsumeIntegral<std::uint8_t>() % 9) {
        case 0:
            touch(&_table.getOrCreateCell(atRow, atColumn));
            break;
        case 1:
            _table.setCell(atRow, atColumn, cell());
            break;
        case 2:
            _table.setCell(atRow, atColumn, cell(), CellMergeProps(any(MaxRows), any(MaxColumns)));
            break;
        case 3:
            _table.setCell(atRow, atColumn, nullptr);
            break;
        case 4:
            _table.removeCell(atRow, atColumn);
            break;
        case 5: {
            const std::uint64_t rows = any(MaxRows);
            _table.setMergeProps(atRow, atColumn, rows, any(MaxColumns));
            break;
        }
        case 6:
            _table.setMergeProps(atRow, atColumn, 0, 0);
            break;
        case 7:
            _table.setPivotTable(atRow, atColumn, pivotTable());
            break;
        default:
            _table.removePivotTable(atRow, atColumn);
        }
    }

    void changeRows()
    {
        const std::uint64_t at = any(_table.getLiveRowsCount().get());
        const Position position(at);
        const bool isInside = _table.getRowIndexToInsertTo(position) <= _table.getLiveRowsCount();
        const bool isTombstone = !_table.convertRowIndex(position);
        switch (_input.ConsumeIntegral<std::uint8_t>() % 9) {
        case 0:
            _table.insertRow(line<RowData>(), RowIndex(std::min(at, _table.getLiveRowsCount().get())));
            break;
        case 1:
            if (isInside) {
                _table.insertRow(line<RowData>(), position);
            }
            break;
        case 2:
            if (isInside && isTombstone) {
                _table.restoreRow(_row ? std::move(*_row) : line<RowData>(), position);
                _row.reset();
            }
            break;
        case 3:
            _row = _table.removeRow(RowIndex(at));
            break;
        case 4:
            _row = _table.removeRow(position);
            break;
        case 5:
            if (!isTombstone) {
                _row = _table.replaceRowWithTombstone(position);
            }
            break;
        case 6:
            if (_row) {
                _table.insertRow(std::move(*_row), RowIndex(std::min(at, _table.getLiveRowsCount().get())));
                _row.reset();
            }
            break;
        case 7:
            _table.setSharedStyle(chance() ? nullptr : _factory.create(RowStyle()), row());
            break;
        default:
            _table.clearRowTombstones();
        }
    }

    /// A row too many moves cells behind the last row: a column that was taken out then cannot come back.
    bool columnFits() const
    {
        return _column && (_column->cells.empty() || _column->cells.back().first.get() < MaxRows);
    }

    void changeColumns()
    {
        const std::uint64_t at = any(_table.getLiveColsCount().get());
        const Position position(at);
        const bool isInside = _table.getColIndexToInsertTo(position) <= _table.getLiveColsCount();
        const bool isTombstone = !_table.convertColIndex(position);
        // Cells of a column are stored at its position, which must be within the limits.
        const bool hasRoom = _table.getLiveColsCount().get() < MaxColumns;
        switch (_input.ConsumeIntegral<std::uint8_t>() % 9) {
        case 0:
            if (hasRoom) {
                _table.insertColumn(line<ColumnData>(),
                                    ColumnIndex(std::min(at, _table.getLiveColsCount().get())));
            }
            break;
        case 1:
            if (isInside && hasRoom) {
                _table.insertColumn(line<ColumnData>(), position);
            }
            break;
        case 2:
            if (isInside && isTombstone && hasRoom) {
                _table.restoreColumn(columnFits() ? std::move(*_column) : line<ColumnData>(), position);
                _column.reset();
            }
            break;
        case 3:
            _column = _table.removeColumn(ColumnIndex(at));
            break;
        case 4:
            _column = _table.removeColumn(position);
            break;
        case 5:
            if (!isTombstone) {
                _column = _table.replaceColWithTombstone(position);
            }
            break;
        case 6:
            if (columnFits() && hasRoom) {
                _table.insertColumn(std::move(*_column),
                                    ColumnIndex(std::min(at, _table.getLiveColsCount().get())));
                _column.reset();
            }
            break;
        case 7:
            _table.setSharedStyle(chance() ? nullptr : _factory.create(ColumnStyle()), column());
            break;
        default:
            _table.clearColumnTombstones();
        }
    }

    void changeTable()
    {
        const RowIndex rows(any(MaxRows));
        const ColumnIndex columns(any(MaxColumns));
        switch (_input.ConsumeIntegral<std::uint8_t>() % 8) {
        case 0:
            _table.ensureSize(rows, columns);
            break;
        case 1:
        case 2:
            _table.changeSize(rows, columns);
            break;
        case 3:
            _table.resetRowColumnIDsToPredefined();
            break;
        case 4: {
            const RowIndex last = row();
            _table.setHeaderRowsCols(rows, columns, last, column());
            break;
        }
        case 5:
            _table.setFilterInfo(
                TableFilterInfo(TableRange(rows, rows + 1 + small(), columns, columns + small())));
            break;
        case 6: {
            Table moved = std::move(_table);
            touch(_table.getCell(rows, columns));
            _table = std::move(moved);
            break;
        }
        default: {
            const Table copy(_table);
            _table = copy;
        }
        }
    }

    // What only looks.

    void look()
    {
        const RowIndex atRow(any(MaxRows));
        const ColumnIndex atColumn(any(MaxColumns));
        const Table& table = _table;
        std::uint64_t found = touch(table.getCell(atRow, atColumn)) +
                              touch(table.getCellInfo(atRow, atColumn).getCell()) +
                              touch(table.getCellById(table.getID(atRow), table.getID(atColumn)));
        found += table.getMergedCellRoot(atRow, atColumn) ? 1 : 0;
        found += table.getPivotRoot(atRow, atColumn) ? 1 : 0;
        found += table.canInsertRow(atRow) || table.canInsertColumn(atColumn) ? 1 : 0;
        found += table.getStyle(atRow).isEmpty() && table.getStyle(atColumn).isEmpty() ? 1 : 0;
        lookAtReferences(atRow, atColumn);

        const TableRange part = range();
        found += table.getPivotTablesInRange(part).size();
        walk(table.getTableIterators());
        walk(_table.getTableIterators());
        walk(table.getRangeIterators(part));
        walk(_table.getRangeIterators(part));
        walk(table.getTableLogicalIterators());
        walk(table.getRangeLogicalIterators(part));
        walkFrom(table.getTableIt(atRow, atColumn));
        auto jump = table.getTableLogicalIterators().first;
        jump.advance(_input.ConsumeIntegral<std::uint32_t>());
        walkFrom(jump);
        const auto copyOfPart =
            Table::getRangeCustomCopy(table, part.getBeginRow(), part.getBeginColumn(), part.getEndRow(),
                                      part.getEndColumn(), [](const CellInfo& info) {
                                          touch(info.getCell());
                                          Cell::Blocks blocks;
                                          blocks.push_back(std::make_unique<Paragraph>());
                                          return blocks;
                                      });
        expect(copyOfPart->getLiveRowsCount().get() >= part.getRowCount());
        static_cast<void>(found);
    }

    void lookAtReferences(RowIndex atRow, ColumnIndex atColumn)
    {
        const TableRange part = range();
        const TableRangeByID byID = convertToTableRangeByID(_table, part);
        static_cast<void>(convertToTableRange(_table, byID));
        static_cast<void>(_table.isInRange(byID, {atRow, atColumn}));
        static_cast<void>(_table.getFrozenRange());
        const RowID known(any(MaxRows));
        static_cast<void>(_table.resolveRowIndex(known, chance()));
        static_cast<void>(_table.resolveColIndex(ColumnID(any(MaxColumns)), chance()));
        static_cast<void>(_table.convertRowIndex(atRow));
        static_cast<void>(_table.convertColIndex(atColumn));
        _table.getRowIDContainer().validate();
        _table.getColIDContainer().validate();
    }

    template <class It>
    static void walkFrom(It it)
    {
        std::uint64_t found = 0;
        int steps = 0;
        for (; steps < MostSteps && !it.isAtEnd(); ++steps) {
            found += touch(*it) + touch(it.getCellInfo().getCell()) + it.getColID().get();
            ++it;
        }
        found += touch(*it) + it.getRowID().get();
        for (; steps >= 0; --steps) {
            --it;
            found += touch(*it);
        }
        static_cast<void>(found);
    }

    template <class Iterators>
    static void walk(const Iterators& iterators)
    {
        walkFrom(iterators.first);
        walkFrom(iterators.second);
    }

    void compareCopies() const
    {
        const Table copy(_table);
        expect(copy == _table);
        if (_table.getMaxRowIndex().get() > 1000) {
            return;
        }
        const std::string text = save(_table);
        Table loaded;
        try {
            std::istringstream stream(text);
            cereal::JSONInputArchive archive(stream);
            loaded.serialize(archive);
        } catch (const cereal::Exception&) {
            expect(_table.getLiveRowsCount().get() > MaxRows || _table.getLiveColsCount().get() > MaxColumns);
            return;
        }
        expect(loaded == _table);
        expect(save(loaded) == text);
    }

    FuzzedDataProvider _input;
    bool _reachesFar;
    SharedObjectFactory _factory;
    Table _table;
    boost::optional<RowData> _row;
    boost::optional<ColumnData> _column;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Operations(data, size).run();
    return 0;
}
