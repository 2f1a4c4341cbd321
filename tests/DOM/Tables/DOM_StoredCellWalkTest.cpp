#include "DOM/Tables/DOM_StoredCellWalk.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "DOM/Tables/DamagedTables.h"
#include "DOM/Tables/IteratorSamples.h"
#include "Support/AllocationCount.h"

namespace QN::DOM::StoredCellWalkTest {
namespace {

using namespace QN::Test;

std::vector<CellIndex> walk(const Table& table, StoredCells which = StoredCells::InAnyRow)
{
    std::vector<CellIndex> positions;
    for (StoredCellWalk<const Table> cells(table, which); !cells.isAtEnd(); ++cells) {
        positions.emplace_back(cells.getRowIndex(), cells.getColIndex());
    }
    return positions;
}

std::unique_ptr<Cell> makeCell()
{
    return std::make_unique<Cell>();
}

// Sound tables

TEST(StoredCellWalkTest, GivesTheStoredCellsInOrder)
{
    EXPECT_EQ(walk(Table()), Positions());
    EXPECT_EQ(walk(Table(RowIndex(100), ColumnIndex(100))), Positions());
    for (const std::uint64_t maxChunkSize : {0U, 1U, 2U, 3U, 20000U}) {
        EXPECT_EQ(walk(makeSparse(maxChunkSize)), SparsePositions) << maxChunkSize;
    }
}

TEST(StoredCellWalkTest, GivesTheCellsThemselves)
{
    Table table = makeSparse(2);
    StoredCellWalk<Table> cells(table);
    static_assert(std::is_same_v<decltype(*cells), Cell*>);
    static_assert(std::is_same_v<decltype(*StoredCellWalk<const Table>(table)), const Cell*>);
    for (const CellIndex& position : SparsePositions) {
        EXPECT_EQ(*cells, table.getCell(position.getRow(), position.getColumn()));
        ++cells;
    }
    EXPECT_TRUE(cells.isAtEnd());
    EXPECT_EQ(*cells, nullptr);
    ++cells;
    EXPECT_TRUE(cells.isAtEnd());
    EXPECT_EQ(cells.getColIndex(), ColumnIndex(0));
}

TEST(StoredCellWalkTest, GivesCellsThatAreNull)
{
    const Table table = makeDamagedTable(2, {0});
    StoredCellWalk<const Table> cells(table);
    EXPECT_FALSE(cells.isAtEnd());
    EXPECT_EQ(*cells, nullptr);
    EXPECT_EQ(walk(table), (Positions{makeIndex(0, 0), makeIndex(0, 1)}));
}

TEST(StoredCellWalkTest, AllocatesNothingInASoundTable)
{
    const Table table = makeGrid(40, 20, 100);
    ASSERT_GT(getChunks(table).size(), 5U);
    EXPECT_EQ(countAllocations([&] {
                  for (StoredCellWalk<const Table> cells(table); !cells.isAtEnd(); ++cells) {
                  }
              }),
              0U);
}

// Damaged tables

TEST(StoredCellWalkTest, GivesACellThatRowsShareInTheFirst)
{
    // The rows hold the cells 0 to 3, none, 2 to 5, none, and all.
    EXPECT_EQ(walk(makeDamagedTable(6, {0, 4, 2, 6, 0})),
              (Positions{makeIndex(0, 0), makeIndex(0, 1), makeIndex(0, 2), makeIndex(0, 3), makeIndex(2, 4),
                         makeIndex(2, 5)}));
}

TEST(StoredCellWalkTest, GivesCellsThatStandBeforeThoseOfEarlierRows)
{
    EXPECT_EQ(walk(makeDamagedTable(2, {1, 2, 0})), (Positions{makeIndex(0, 1), makeIndex(2, 0)}));
    // Cell 2, none, 1 to 3, none, and all.
    EXPECT_EQ(walk(makeDamagedTable(4, {2, 3, 1, 4, 0})),
              (Positions{makeIndex(0, 2), makeIndex(2, 1), makeIndex(2, 3), makeIndex(4, 0)}));
}

TEST(StoredCellWalkTest, DoesNotGiveCellsThatNoRowHolds)
{
    EXPECT_EQ(walk(makeDamagedTable(3, {1})), (Positions{makeIndex(0, 1), makeIndex(0, 2)}));
    EXPECT_EQ(walk(makeDamagedTable(3, {5, 7})), Positions());
    EXPECT_EQ(walk(makeDamagedTable(3, {})), Positions());
}

TEST(StoredCellWalkTest, GivesCellsThatAnIteratorPassesOver)
{
    // The rows hold none, none, cell 0, and the cells 1 and 2.
    const Table table = makeDamagedTable(3, {1, 1, 0, 1});
    EXPECT_EQ(walk(table), (Positions{makeIndex(2, 0), makeIndex(3, 1), makeIndex(3, 2)}));
    EXPECT_EQ(walk(table, StoredCells::OfTableIt), (Positions{makeIndex(3, 1), makeIndex(3, 2)}));
}

/// The rows of the chunks are numbered one after the other.
Table makeDamagedChunks(const std::vector<std::vector<std::uint64_t>>& chunksOffsets)
{
    Table table = makeDamagedTable(2, {});
    const TableChunk sample = getFirstChunk(table);
    auto& chunks = getDamagedChunks(table);
    chunks.clear();
    RowIndex row(0);
    for (const std::vector<std::uint64_t>& offsets : chunksOffsets) {
        TableChunk chunk = sample;
        chunk.rowDataOffsets = offsets;
        chunk.startRowIndex = row;
        row += offsets.size();
        chunks.push_back(std::move(chunk));
    }
    return table;
}

TEST(StoredCellWalkTest, GivesCellsOfChunksInWhichAnIteratorComesToNone)
{
    const std::vector<std::uint64_t> passedOver{2, 2, 0, 2};
    EXPECT_EQ(walk(makeDamagedChunks({passedOver})), (Positions{makeIndex(2, 0), makeIndex(2, 1)}));
    EXPECT_EQ(walk(makeDamagedChunks({passedOver}), StoredCells::OfTableIt), Positions());
    const Table table = makeDamagedChunks({passedOver, {0}, {2, 2}, passedOver, passedOver});
    EXPECT_EQ(walk(table), (Positions{makeIndex(2, 0), makeIndex(2, 1), makeIndex(4, 0), makeIndex(4, 1),
                                      makeIndex(9, 0), makeIndex(9, 1), makeIndex(13, 0), makeIndex(13, 1)}));
    EXPECT_EQ(walk(table, StoredCells::OfTableIt), (Positions{makeIndex(4, 0), makeIndex(4, 1)}));
}

TEST(StoredCellWalkTest, TellsWhetherTheRowsCameInOrder)
{
    const auto isInOrder = [](const Table& table) {
        StoredCellWalk<const Table> cells(table, StoredCells::OfTableIt);
        for (; !cells.isAtEnd(); ++cells) {
        }
        return cells.isInOrder();
    };
    EXPECT_TRUE(isInOrder(Table()));
    EXPECT_TRUE(isInOrder(makeSparse(2)));
    EXPECT_TRUE(isInOrder(makeDamagedChunks({{0, 1}, {0, 0, 2}, {0, 1, 1}})));
    EXPECT_FALSE(isInOrder(makeDamagedChunks({{1}})));
    EXPECT_FALSE(isInOrder(makeDamagedChunks({{0, 1}, {0, 2, 0}, {0, 1}})));
}

TEST(StoredCellWalkTest, ManyRowsMayShareTheirCells)
{
    const auto countVisits = [](const Table& table) {
        std::size_t visits = 0;
        for (TableCellIt<const Table> position(table); !position.isAtEnd(); ++position) {
            ++visits;
        }
        return visits;
    };
    EXPECT_EQ(countVisits(makeDamagedTable(20, makeSharedOffsets(20, 100))), 50U * 20U);
    // 2,000,000,000 visits.
    EXPECT_EQ(walk(makeDamagedTable(20000, makeSharedOffsets(20000, 200000))).size(), 20000U);
}

class Random {
public:
    explicit Random(unsigned seed) : _engine(seed) {}
    std::uint64_t below(std::uint64_t count) { return _engine() % count; }

private:
    std::mt19937 _engine;
};

/// A table of some chunks with offsets, and perhaps identifiers of columns, that mean nothing.
Table makeRandomTable(Random& random)
{
    Table table = makeDamagedTable(0, {});
    auto& chunks = getDamagedChunks(table);
    chunks.clear();
    RowIndex row(0);
    const bool hasAnyColumns = random.below(2) == 0;
    for (std::uint64_t count = 1 + random.below(3); count > 0; --count) {
        TableChunk chunk;
        chunk.startRowIndex = row;
        for (std::uint64_t column = 0; column < random.below(12); ++column) {
            chunk.data.emplace_back(makeCell(),
                                    hasAnyColumns ? ColumnID(random.below(20000)) : ColumnID(column + 1));
        }
        const std::uint64_t highest = chunk.data.size() + random.below(3);
        for (std::uint64_t offsets = 1 + random.below(12); offsets > 0; --offsets) {
            chunk.rowDataOffsets.push_back(random.below(highest + 1));
        }
        row += chunk.rowDataOffsets.size();
        chunks.push_back(std::move(chunk));
    }
    return table;
}

using Visit = std::tuple<const Cell*, RowIndex, ColumnIndex>;

template <class Position>
Visit makeVisit(const Position& position)
{
    return {*position, position.getRowIndex(), position.getColIndex()};
}

std::vector<Visit> getVisits(Table& table, StoredCells which)
{
    std::vector<Visit> visits;
    for (StoredCellWalk<Table> cells(table, which); !cells.isAtEnd(); ++cells) {
        visits.push_back(makeVisit(cells));
    }
    return visits;
}

TEST(StoredCellWalkTest, GivesEachCellWhereAnIteratorComesToItFirst)
{
    std::size_t shared = 0;
    for (unsigned seed = 0; seed < 5000; ++seed) {
        Random random(seed);
        Table table = makeRandomTable(random);
        std::vector<Visit> expected;
        std::set<const Cell*> visited;
        for (TableCellIt<const Table> position(table); !position.isAtEnd(); ++position) {
            if (visited.insert(*position).second) {
                expected.push_back(makeVisit(position));
            } else {
                ++shared;
            }
        }
        ASSERT_EQ(getVisits(table, StoredCells::OfTableIt), expected) << "seed " << seed;
    }
    EXPECT_GT(shared, 5000U);
}

/// Row by row, with no iterator.
std::vector<Visit> getFirstVisitsOfAllRows(const Table& table)
{
    std::vector<Visit> visits;
    std::set<const Cell*> visited;
    for (const TableChunk& chunk : getChunks(table)) {
        for (std::size_t row = 0; row < chunk.rowDataOffsets.size(); ++row) {
            const auto boundaries = chunk.getRelativeRowBoundaries(row);
            for (std::size_t place = boundaries.begin; place < boundaries.end; ++place) {
                const CellDataByCol& data = chunk.data[place];
                if (visited.insert(data.cell.get()).second) {
                    visits.emplace_back(data.cell.get(), chunk.startRowIndex + row,
                                        ColumnIndex(table.getColIDContainer().getIndex(data.colID.get())));
                }
            }
        }
    }
    return visits;
}

TEST(StoredCellWalkTest, GivesEachCellInTheFirstRowThatHoldsIt)
{
    std::size_t passedOver = 0;
    for (unsigned seed = 0; seed < 5000; ++seed) {
        Random random(seed);
        Table table = makeRandomTable(random);
        const std::vector<Visit> visits = getVisits(table, StoredCells::InAnyRow);
        ASSERT_EQ(visits, getFirstVisitsOfAllRows(table)) << "seed " << seed;
        passedOver += visits.size() - getVisits(table, StoredCells::OfTableIt).size();
    }
    EXPECT_GT(passedOver, 500U);
}

// The step of `TableCellIt` that it stands on

TEST(StoredCellWalkTest, AnIteratorGoesToADataIndexOfItsRowOrToTheNextRowWithCells)
{
    const Table table = makeSparse();
    TableCellIt<const Table> it(table);
    it.goToDataIndex(0);
    EXPECT_EQ(it, TableCellIt<const Table>(table));
    it.goToDataIndex(1);
    EXPECT_EQ(it, TableCellIt<const Table>(table, RowIndex(0), ColumnIndex(3)));
    it.goToDataIndex(0);
    EXPECT_EQ(it.getDataIndex(), 1U);
    it.goToDataIndex(4);
    EXPECT_EQ(it, TableCellIt<const Table>(table, RowIndex(4), ColumnIndex(0)));
    it.goToDataIndex(4);
    EXPECT_EQ(it, TableCellIt<const Table>(table, RowIndex(9), ColumnIndex(5)));
    it.goToDataIndex(5);
    EXPECT_EQ(it, TableCellIt<const Table>(table, true));
    it.goToDataIndex(6);
    EXPECT_EQ(it, TableCellIt<const Table>(table, true));
}

} // namespace
} // namespace QN::DOM::StoredCellWalkTest
