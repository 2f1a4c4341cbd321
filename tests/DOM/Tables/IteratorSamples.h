#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

/// Walks in both directions, and a sparse table to walk over.

namespace QN::Test {

using Positions = std::vector<CellIndex>;

/// The positions from the first iterator to the second, in a step of one.
template <class Iterators>
Positions getPositions(const Iterators& iterators)
{
    Positions positions;
    for (auto it = iterators.first; it != iterators.second; ++it) {
        positions.push_back({it.getRowIndex(), it.getColIndex()});
        if (positions.size() > 10000) {
            ADD_FAILURE() << "the walk does not end";
            break;
        }
    }
    return positions;
}

/// The same from the end back to where stepping back changes nothing.
template <class Iterators>
Positions getPositionsBackwards(const Iterators& iterators)
{
    Positions positions;
    for (auto it = iterators.second;;) {
        const auto before = it;
        --it;
        if (it == before) {
            break;
        }
        positions.insert(positions.begin(), {it.getRowIndex(), it.getColIndex()});
    }
    return positions;
}

/// Cells at (0,1), (0,3), (4,0), (4,2) and (9,5), spread over chunks of at most so many cells.
inline DOM::Table makeSparse(std::uint64_t maxChunkSize = 20000)
{
    DOM::Table table(maxChunkSize);
    for (const CellIndex& place :
         {makeIndex(0, 1), makeIndex(0, 3), makeIndex(4, 0), makeIndex(4, 2), makeIndex(9, 5)}) {
        setNumber(table, place.getRow().get(), place.getColumn().get(),
                  static_cast<double>(10 * place.getRow().get() + place.getColumn().get()));
    }
    return table;
}

inline const Positions SparsePositions{makeIndex(0, 1), makeIndex(0, 3), makeIndex(4, 0), makeIndex(4, 2),
                                       makeIndex(9, 5)};

} // namespace QN::Test
