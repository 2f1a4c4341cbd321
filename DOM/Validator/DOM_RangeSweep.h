#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <queue>
#include <vector>

#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/TableRange.h"

/// Which range holds a cell, for the cells of a whole table in the order of their rows. What single questions to a table
/// cost in proportion to the number of its ranges, these answer in logarithmic time. The ranges are referred to.

namespace QN::DOM {

/// Answers as `Table::getMergedRange`. Ranges that are not sorted are taken as if they were.
class DOM_API MergedRangeSweep {
public:
    explicit MergedRangeSweep(const std::vector<TableRange>& ranges);

    /// Null outside all ranges. The row must not be before that of an earlier question.
    const TableRange* find(RowIndex row, ColumnIndex column);

private:
    void enter(const TableRange& range);

    /// By root.
    std::vector<const TableRange*> _ranges;
    std::size_t _entered = 0;
    /// The range of the columns from the key up to the next key: of those entered, the last. Whether it reaches down to
    /// the row at hand is for `find` to say.
    std::map<ColumnIndex, const TableRange*> _columns;
};

/// Answers as `Table::getPivotRoot`, but with the whole range.
class DOM_API PivotRangeSweep {
public:
    explicit PivotRangeSweep(const std::vector<TableRange>& ranges);

    /// Null outside all ranges. The row must not be before that of an earlier question.
    const TableRange* find(RowIndex row, ColumnIndex column);

private:
    /// Indices of ranges, the first one on top.
    using Queue = std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>>;

    std::size_t getPosition(ColumnIndex column) const;
    void enter(std::size_t range);

    const std::vector<TableRange>& _ranges;
    /// Indices by begin row.
    std::vector<std::size_t> _order;
    std::size_t _entered = 0;
    /// Where ranges begin and end; the positions between them are the leaves of a segment tree, in which a range stands at
    /// the fewest nodes that make up its columns, until a question finds that it has ended.
    std::vector<ColumnIndex> _bounds;
    std::vector<Queue> _nodes;
};

} // namespace QN::DOM
