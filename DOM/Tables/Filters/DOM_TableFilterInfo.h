#pragma once

#include <memory>
#include <utility>

#include "DOM/Tables/Filters/DOM_TableFilter.h"
#include "Utils/Public/TableIndices/TableRange.h"

namespace QN::DOM {

/// The auto-filter of a sheet: a rectangle whose first row is the header, and the filter of the rows below it, which may
/// be null.
class DOM_API TableFilterInfo {
public:
    /// Only to be loaded into: the range reaches to the largest index.
    TableFilterInfo() = default;

    /// A range of one row has a header and no data: it fails the contract "filterRange.getRowCount() > 1".
    explicit TableFilterInfo(const TableRange& filterRange);

    ~TableFilterInfo() = default;
    QN_DEEP_COPY(TableFilterInfo)

    const TableRange& getFilterRange() const { return _filterRange; }

    /// The rows of data. A loaded range of one row fails the contract "_beginRow < _endRow".
    TableRange getFilterRangeWithoutHeader() const;

    const std::unique_ptr<TableFilter>& getFilter() const { return _filter; }
    void setFilter(std::unique_ptr<TableFilter> filter) { _filter = std::move(filter); }

    QN_VALUE(TableFilterInfo)

private:
    TableRange _filterRange;
    std::unique_ptr<TableFilter> _filter;

    BOOST_DESCRIBE_CLASS(TableFilterInfo, (), (), (), (_filterRange, _filter))
};

} // namespace QN::DOM
