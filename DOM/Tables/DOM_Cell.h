#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <cstdint>
#include <memory>
#include <vector>

#include "CollaborationUtils/Public/CU_WithTombstones.h"
#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "DOM/Tables/DOM_BlockValue.h"
#include "DOM/Tables/DOM_RareValue.h"
#include "DOM/Tables/Properties/DOM_CellMergeProps.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

class ArrayFormulaShift;
class Formula;
class Hyperlink;
class PivotTable;

/// The content of one position of a table: ordinary text, or a single field block with a formula or a value.
///
/// A cell that was loaded may hold a null block; what looks at the blocks then fails the contract "plainPtr".
class DOM_API Cell {
public:
    using Blocks = std::vector<std::unique_ptr<Block>>;

    enum class CopyStrategy : std::uint8_t {
        Everything = 0,
        WithoutText = 1, ///< merge properties, style and pivot table
    };

    /// What the cell holds: its blocks, or what its single field block holds. No pointer is null. Valid until the blocks
    /// change.
    using Data = boost::variant<ReadonlyPtrVector<Block>, const Formula*, const ArrayFormulaShift*,
                                const BlockValue<FloatNumber>*, const BlockValue<FormulaErrorType>*,
                                const BlockValue<bool>*>;

    Cell();
    Cell(const Cell& other);
    Cell(const Cell& other, CopyStrategy strategy);
    Cell(Cell&& other) noexcept;
    Cell& operator=(const Cell& other);
    Cell& operator=(Cell&& other) noexcept;
    ~Cell();

    // Content.

    ReadonlyPtrVector<Block> getRawBlocks() const { return _textWithTombstones.getBlocks(); }
    Blocks& getRawBlocks() { return _textWithTombstones.getBlocks(); }

    const TextWithTombstones& getTextWithTombstones() const { return _textWithTombstones; }
    TextWithTombstones& getTextWithTombstones() { return _textWithTombstones; }

    Data getCellData() const;

    // One alternative of `getCellData` each; none, or null, for a cell that holds another.

    boost::optional<ReadonlyPtrVector<Block>> getTextBlocks() const;
    const Formula* getFormula() const;
    const ArrayFormulaShift* getArrayFormulaShift() const;
    const BlockValue<FloatNumber>* getNumberValue() const;
    const BlockValue<FormulaErrorType>* getErrorValue() const;
    const BlockValue<bool>* getBoolValue() const;

    /// Whether the cell holds a formula or belongs to an array formula.
    bool containsFormulaVariant() const;
    /// Whether the cell holds anything but text.
    bool containsFormulaOrValue() const;
    /// Whether the cell is the root of an array formula.
    bool containsArrayFormula() const;

    /// Without blocks, and without tombstones either if they are to be counted.
    bool isContentEmpty(CollaborationUtils::WithTombstones withTombstones) const;
    /// Without content, merge properties and style. A pivot table does not make a cell non-empty; a style handle does,
    /// also one to an empty style.
    bool isEmpty(CollaborationUtils::WithTombstones withTombstones) const;

    /// That of the first block; null for a cell without blocks. A first block that is neither a paragraph nor a `FieldBlock`,
    /// such as a table, fails the contract "result".
    std::shared_ptr<const Hyperlink> getHyperlink() const;

    // The rest. A cell in a table gets its merge properties and its pivot table through the table, which keeps track of
    // the areas.

    const CellMergeProps& getMergeProps() const { return _mergeProps.get(); }
    void setMergeProps(const CellMergeProps& props) { _mergeProps.set(props); }

    /// The empty style for a null handle.
    const CellStyle& getStyle() const { return derefSharedStyle(_style); }
    const SharedStylePtr<CellStyle>& getSharedStyle() const { return _style; }
    SharedStylePtr<CellStyle>& getSharedStyle() { return _style; }

    /// Null unless the cell is the root of a pivot table's area.
    const PivotTable* getPivotTable() const { return _pivotTable.get(); }
    PivotTable* getPivotTable() { return _pivotTable.get(); }
    void setPivotTable(std::unique_ptr<PivotTable> pivotTable);

    /// Style and pivot table compare by value.
    QN_VALUE(Cell)

private:
    TextWithTombstones _textWithTombstones;
    RareValue<CellMergeProps> _mergeProps;
    SharedStylePtr<CellStyle> _style;
    std::unique_ptr<PivotTable> _pivotTable;

    BOOST_DESCRIBE_CLASS(Cell, (), (), (), (_textWithTombstones, _mergeProps, _style, _pivotTable))
};

/// The merge properties of a cell that may be missing.
DOM_API const CellMergeProps& getCellMergeProps(const Cell* cell);

} // namespace QN::DOM
