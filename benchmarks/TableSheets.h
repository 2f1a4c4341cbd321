#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <unordered_set>
#include <utility>
#include <vector>

#include "DOM/DOM.h"
#include "TablePeers.h"

/// One sheet of numbers as a table and as each of its peers.

namespace TableSheets {

using namespace QN;
using namespace QN::DOM;
using Peers::Place;

constexpr std::uint32_t DenseColumns = 10;
constexpr std::uint32_t SparseRows = 1048576;
constexpr std::uint32_t SparseColumns = 256;

struct Shape {
    bool isDense;
    std::int64_t cells;

    std::uint32_t getRows() const
    {
        return isDense ? static_cast<std::uint32_t>(cells) / DenseColumns : SparseRows;
    }
    std::uint32_t getColumns() const { return isDense ? DenseColumns : SparseColumns; }
    friend bool operator==(const Shape&, const Shape&) = default;
};

/// The table in the terms of its peers.
class Ours {
public:
    Ours(std::uint32_t rows, std::uint32_t columns) : table(RowIndex(rows), ColumnIndex(columns)) {}

    void set(const Place& place, double value)
    {
        Cell& cell = table.getOrCreateCell(RowIndex(place.row), ColumnIndex(place.column));
        auto block = std::make_unique<FieldBlock>(BlockValue<FloatNumber>(FloatNumber(value)));
        cell.getRawBlocks().push_back(std::move(block));
    }
    bool has(const Place& place) const
    {
        return table.getCell(RowIndex(place.row), ColumnIndex(place.column)) != nullptr;
    }
    /// How many cells there are, each one reached.
    std::uint64_t walk() const
    {
        std::uint64_t count = 0;
        const auto [first, last] = table.getTableIterators();
        for (auto it = first; !(it == last); ++it) {
            count += *it != nullptr ? 1 : 0;
        }
        return count;
    }
    double walkNumbers() const
    {
        double sum = 0;
        const auto [first, last] = table.getTableIterators();
        for (auto it = first; !(it == last); ++it) {
            sum += it->getNumberValue()->get().get();
        }
        return sum;
    }
    friend bool operator==(const Ours& left, const Ours& right) { return left.table == right.table; }

    Table table;
};

struct Sheets {
    explicit Sheets(const Shape& sheetShape)
        : shape(sheetShape), ours(shape.getRows(), shape.getColumns()),
          map(shape.getRows(), shape.getColumns()), flat(shape.getRows(), shape.getColumns())
#ifdef DOM_BENCH_MDDS
          ,
          mdds(shape.getRows(), shape.getColumns())
#endif
    {
        std::mt19937 random(1);
        if (shape.isDense) {
            for (std::uint32_t row = 0; row < shape.getRows(); ++row) {
                for (std::uint32_t column = 0; column < DenseColumns; ++column) {
                    places.push_back({row, column});
                }
            }
        } else {
            std::unordered_set<std::uint64_t> chosen;
            while (chosen.size() < static_cast<std::size_t>(shape.cells)) {
                chosen.insert(random() % (std::uint64_t{SparseRows} * SparseColumns));
            }
            std::vector<std::uint64_t> sorted(chosen.begin(), chosen.end());
            std::sort(sorted.begin(), sorted.end());
            for (const std::uint64_t number : sorted) {
                places.push_back({static_cast<std::uint32_t>(number / SparseColumns),
                                  static_cast<std::uint32_t>(number % SparseColumns)});
            }
        }
        fill(ours);
        fill(map);
        fill(flat);
#ifdef DOM_BENCH_MDDS
        fill(mdds);
#endif
        hits = places;
        std::shuffle(hits.begin(), hits.end(), random);
        hits.resize(std::min<std::size_t>(hits.size(), 100000));
        while (misses.size() < hits.size()) {
            // Beside the block, or between the cells.
            const Place place{static_cast<std::uint32_t>(random() % shape.getRows()),
                              static_cast<std::uint32_t>(random() % shape.getColumns() +
                                                         (shape.isDense ? DenseColumns : 0))};
            if (!ours.has(place)) {
                misses.push_back(place);
            }
        }
    }

    /// Row by row.
    template <class Sheet>
    void fill(Sheet& sheet) const
    {
        for (const Place& place : places) {
            sheet.set(place, place.row + 0.5);
        }
    }

    Shape shape;
    std::vector<Place> places;
    std::vector<Place> hits;
    std::vector<Place> misses;
    Ours ours;
    Peers::Map map;
    Peers::HashMap flat;
#ifdef DOM_BENCH_MDDS
    Peers::Columns mdds;
#endif
};

} // namespace TableSheets
