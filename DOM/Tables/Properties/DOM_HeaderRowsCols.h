#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Tables/DOM_IDRange.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The rows and columns of a sheet that repeat as its headers, by identifier, so that they survive structural change.
/// Each end of the two ranges may be absent. The order of the keys in a file is not that of the members.
class DOM_API HeaderRowsCols {
public:
    using RowRange = boost::optional<IDRange<boost::optional<RowID>>>;
    using ColumnRange = boost::optional<IDRange<boost::optional<ColumnID>>>;

    HeaderRowsCols() = default;

    /// As `setRowRange` and `setColRange`.
    HeaderRowsCols(const RowRange& rowRange, const ColumnRange& colRange);

    const boost::optional<RowID>& getBeginRowID() const { return _beginRowID; }
    void setBeginRow(const boost::optional<RowID>& id) { _beginRowID = id; }

    const boost::optional<RowID>& getLastRowID() const { return _lastRowID; }
    void setLastRow(const boost::optional<RowID>& id) { _lastRowID = id; }

    const boost::optional<ColumnID>& getBeginColID() const { return _beginColID; }
    void setBeginCol(const boost::optional<ColumnID>& id) { _beginColID = id; }

    const boost::optional<ColumnID>& getLastColID() const { return _lastColID; }
    void setLastCol(const boost::optional<ColumnID>& id) { _lastColID = id; }

    /// The range if both of its ends are set.
    RowRange getRowRange() const;
    ColumnRange getColRange() const;

    /// An absent range clears both ends. A range that lacks an end fails the contract "rowRange->begin &&
    /// rowRange->last", or "colRange->begin && colRange->last".
    void setRowRange(const RowRange& rowRange);
    void setColRange(const ColumnRange& colRange);

    QN_ORDERED_VALUE(HeaderRowsCols)
    QN_JSON_ORDER(HeaderRowsCols, 0, 2, 1, 3)

private:
    boost::optional<RowID> _beginRowID;
    boost::optional<RowID> _lastRowID;
    boost::optional<ColumnID> _beginColID;
    boost::optional<ColumnID> _lastColID;

    BOOST_DESCRIBE_CLASS(HeaderRowsCols, (), (), (), (_beginRowID, _lastRowID, _beginColID, _lastColID))
};

} // namespace QN::DOM
