#pragma once

#include <utility>

#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_NumberingLevelStyle.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_RowColumnStyle.h"
#include "DOM/Properties/DOM_RunStyle.h"
#include "DOM/Properties/DOM_ShapeStyle.h"
#include "DOM/Properties/DOM_SharedStyleFactory.h"
#include "DOM/Properties/DOM_TableStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The pools of the anonymous styles of a document, one for each type, each with a mutex of its own. Interning is invisible
/// from outside, and so is const. A copy shares the styles of its source by then and grows on its own.
///
/// Styles that are read from a file do not enter the pools: one that was read and an equal one from `create` are two
/// objects.
class DOM_API SharedObjectFactory {
public:
    SharedObjectFactory() = default;
    SharedObjectFactory(const SharedObjectFactory&) = default;
    SharedObjectFactory(SharedObjectFactory&&) noexcept = default;
    SharedObjectFactory& operator=(const SharedObjectFactory& other)
    {
        return *this = SharedObjectFactory(other);
    }
    SharedObjectFactory& operator=(SharedObjectFactory&&) noexcept = default;
    ~SharedObjectFactory() = default;

    /// The one shared style that equals the given one; null for an empty style, except that an empty `CellStyle` is shared
    /// like any other. O(log n) deep comparisons; a style that is known costs no allocation. Safe from any thread.
    SharedStylePtr<CellStyle> create(CellStyle style) const { return _cellStyles.create(std::move(style)); }
    SharedStylePtr<ColumnStyle> create(ColumnStyle style) const
    {
        return _columnStyles.create(std::move(style));
    }
    SharedStylePtr<RowStyle> create(RowStyle style) const { return _rowStyles.create(std::move(style)); }
    SharedStylePtr<ParagraphStyle> create(ParagraphStyle style) const
    {
        return _paragraphStyles.create(std::move(style));
    }
    SharedStylePtr<RunStyle> create(RunStyle style) const { return _runStyles.create(std::move(style)); }
    SharedStylePtr<ShapeStyle> create(ShapeStyle style) const
    {
        return _shapeStyles.create(std::move(style));
    }
    SharedStylePtr<TableStyle> create(TableStyle style) const
    {
        return _tableStyles.create(std::move(style));
    }
    SharedStylePtr<NumberingLevelStyle> create(NumberingLevelStyle style) const
    {
        return _numberingLevelStyles.create(std::move(style));
    }

    /// Writes no keys; a load empties the pools.
    QN_SERIALIZE(SharedObjectFactory)

private:
    template <class T>
    using NullForEmpty = SharedStyleFactory<T, StyleSharingPolicy::EmptyIsNull>;

    SharedStyleFactory<CellStyle, StyleSharingPolicy::EmptyIsShared> _cellStyles;
    NullForEmpty<ColumnStyle> _columnStyles;
    NullForEmpty<RowStyle> _rowStyles;
    NullForEmpty<ParagraphStyle> _paragraphStyles;
    NullForEmpty<RunStyle> _runStyles;
    NullForEmpty<ShapeStyle> _shapeStyles;
    NullForEmpty<TableStyle> _tableStyles;
    NullForEmpty<NumberingLevelStyle> _numberingLevelStyles;
};

} // namespace QN::DOM
