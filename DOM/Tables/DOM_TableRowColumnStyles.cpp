#include <algorithm>

#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/Assert.h"

/// The styles of rows and columns, and the identifiers that are their keys.

namespace QN::DOM {

namespace {

template <class Styles>
const typename Styles::mapped_type& findStyle(const Styles& styles, const typename Styles::key_type& id)
{
    static const typename Styles::mapped_type none;
    const auto entry = styles.find(id);
    return entry == styles.end() ? none : entry->second;
}

template <class Styles>
void storeStyle(Styles& styles, const typename Styles::key_type& id, typename Styles::mapped_type style)
{
    if (style) {
        styles[id] = std::move(style);
    } else {
        styles.erase(id);
    }
}

/// The same styles under the predefined identifiers of the positions of their keys. Keys that are not live are dropped.
template <class Styles>
Styles getWithPredefinedKeys(const Table& table, const Styles& styles)
{
    Styles rekeyed;
    rekeyed.reserve(styles.size());
    for (const auto& [id, style] : styles) {
        if (const auto index = table.getIndex(id)) {
            rekeyed.emplace(typename Styles::key_type(index->get() + 1), style);
        }
    }
    return rekeyed;
}

} // namespace

const SharedStylePtr<RowStyle>& Table::getSharedStyle(RowIndex index) const
{
    return findStyle(_rowStyles, getID(index));
}

void Table::setSharedStyle(SharedStylePtr<RowStyle> style, RowIndex rowIndex)
{
    QN_ASSERT(rowIndex.get() < DOM::MaxRows);
    _rowsCount = std::max(_rowsCount, rowIndex.get() + 1);
    storeStyle(_rowStyles, getID(rowIndex), std::move(style));
}

const SharedStylePtr<ColumnStyle>& Table::getSharedStyle(ColumnIndex index) const
{
    return findStyle(_columnStyles, getID(index));
}

void Table::setSharedStyle(SharedStylePtr<ColumnStyle> style, ColumnIndex colIndex)
{
    QN_ASSERT(colIndex.get() < DOM::MaxColumns);
    _colsCount = std::max(_colsCount, colIndex.get() + 1);
    storeStyle(_columnStyles, getID(colIndex), std::move(style));
}

void Table::resetRowColumnIDsToPredefined()
{
    ColumnStyles columnStyles = getWithPredefinedKeys(*this, _columnStyles);
    RowStyles rowStyles = getWithPredefinedKeys(*this, _rowStyles);
    _columnStyles.swap(columnStyles);
    _rowStyles.swap(rowStyles);
    for (TableChunk& chunk : _chunks) {
        for (CellDataByCol& cell : chunk.data) {
            cell.colID = ColumnID(_colIDContainer.getIndex(cell.colID.get()) + 1);
        }
    }
    _rowIDContainer.reset();
    _colIDContainer.reset();
}

} // namespace QN::DOM
