#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

/// A result of a pivot table, or a value of one of its fields: the content and the style of a cell.
class DOM_API PivotTableValue {
public:
    using Blocks = std::vector<std::unique_ptr<Block>>;

    PivotTableValue() = default;
    explicit PivotTableValue(Blocks blocks, SharedStylePtr<CellStyle> style = {})
        : _blocks(std::move(blocks)), _style(std::move(style))
    {
    }
    ~PivotTableValue() = default;
    QN_DEEP_COPY(PivotTableValue)

    ReadonlyPtrVector<Block> getBlocks() const { return _blocks; }
    Blocks& getBlocks() { return _blocks; }

    /// The empty style for a null handle.
    const CellStyle& getStyle() const { return derefSharedStyle(_style); }
    const SharedStylePtr<CellStyle>& getSharedStyle() const { return _style; }
    SharedStylePtr<CellStyle>& getSharedStyle() { return _style; }

    QN_VALUE(PivotTableValue)

private:
    Blocks _blocks;
    SharedStylePtr<CellStyle> _style;

    BOOST_DESCRIBE_CLASS(PivotTableValue, (), (), (), (_blocks, _style))
};

} // namespace QN::DOM
