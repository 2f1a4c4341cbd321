#include "DOM/Tables/DOM_Cell.h"

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/get.hpp>

#include <type_traits>
#include <typeinfo>
#include <utility>

#include "DOM/DOM_FieldBlock.h"
#include "DOM/Tables/DOM_PivotTable.h"
#include "DOM/Utils/DOM_BlockUtils.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/TypeList.h"

namespace QN::DOM {

namespace {

using CollaborationUtils::WithTombstones;
using TextBlocks = ReadonlyPtrVector<Block>;

/// What a cell makes of the content of its single field block.
struct ToCellData {
    using result_type = Cell::Data;

    template <class Value>
    Cell::Data operator()(const Value& value) const
    {
        return &value;
    }
    Cell::Data operator()(const TableOfContentsInfo& /*other*/) const { return blocks; }

    TextBlocks blocks;
};

template <class TrueTypes, class FalseTypes>
struct ContainsFormulaValueType;

/// Each alternative of the cell's data stands in just one of the two lists.
template <class... TrueTypes, class... FalseTypes>
struct ContainsFormulaValueType<TypeList<TrueTypes...>, TypeList<FalseTypes...>> {
    using result_type = bool;

    template <class T>
    bool operator()(const T& /*value*/) const
    {
        constexpr bool IsTrue = (std::is_same_v<T, TrueTypes> || ...);
        static_assert(IsTrue != (std::is_same_v<T, FalseTypes> || ...));
        return IsTrue;
    }
};

template <class TrueTypes, class FalseTypes>
bool containsFormulaValueType(const Cell::Data& data)
{
    return boost::apply_visitor(ContainsFormulaValueType<TrueTypes, FalseTypes>{}, data);
}

/// The field block that a cell consists of; null for other content. The class is final: its type is told without a walk
/// over its bases, which reading a column of numbers would feel.
const FieldBlock* getSingleField(const TextBlocks& blocks)
{
    if (blocks.size() != 1) {
        return nullptr;
    }
    const Block& block = blocks[0];
    return typeid(block) == typeid(FieldBlock) ? static_cast<const FieldBlock*>(&block) : nullptr;
}

template <class T>
const T* getAlternative(const TextBlocks& blocks)
{
    const FieldBlock* const field = getSingleField(blocks);
    return field != nullptr ? boost::get<T>(&field->getFieldInfo()) : nullptr;
}

} // namespace

Cell::Cell() = default;
Cell::Cell(Cell&& other) noexcept = default;
Cell& Cell::operator=(Cell&& other) noexcept = default;
Cell::~Cell() = default;

QN_DEFINE_VALUE(Cell)
QN_DEFINE_COPY_ASSIGNMENT(Cell)

Cell::Cell(const Cell& other) : Cell(other, CopyStrategy::Everything) {}

Cell::Cell(const Cell& other, CopyStrategy strategy)
    : _textWithTombstones(strategy == CopyStrategy::Everything ? other._textWithTombstones
                                                               : TextWithTombstones()),
      _mergeProps(other._mergeProps), _style(other._style), _pivotTable(deepCopy(other._pivotTable))
{
}

Cell::Data Cell::getCellData() const
{
    const auto blocks = getRawBlocks();
    if (const FieldBlock* const field = getSingleField(blocks)) {
        return boost::apply_visitor(ToCellData{blocks}, field->getFieldInfo());
    }
    return blocks;
}

boost::optional<ReadonlyPtrVector<Block>> Cell::getTextBlocks() const
{
    const Data data = getCellData();
    if (const auto* const blocks = boost::get<TextBlocks>(&data)) {
        return *blocks;
    }
    return boost::none;
}

const Formula* Cell::getFormula() const
{
    return getAlternative<Formula>(getRawBlocks());
}

const ArrayFormulaShift* Cell::getArrayFormulaShift() const
{
    return getAlternative<ArrayFormulaShift>(getRawBlocks());
}

const BlockValue<FloatNumber>* Cell::getNumberValue() const
{
    return getAlternative<BlockValue<FloatNumber>>(getRawBlocks());
}

const BlockValue<FormulaErrorType>* Cell::getErrorValue() const
{
    return getAlternative<BlockValue<FormulaErrorType>>(getRawBlocks());
}

const BlockValue<bool>* Cell::getBoolValue() const
{
    return getAlternative<BlockValue<bool>>(getRawBlocks());
}

bool Cell::containsFormulaVariant() const
{
    return containsFormulaValueType<TypeList<const Formula*, const ArrayFormulaShift*>,
                                    TypeList<TextBlocks, const BlockValue<FloatNumber>*,
                                             const BlockValue<FormulaErrorType>*, const BlockValue<bool>*>>(
        getCellData());
}

bool Cell::containsFormulaOrValue() const
{
    return containsFormulaValueType<
        TypeList<const Formula*, const ArrayFormulaShift*, const BlockValue<FloatNumber>*,
                 const BlockValue<FormulaErrorType>*, const BlockValue<bool>*>,
        TypeList<TextBlocks>>(getCellData());
}

bool Cell::containsArrayFormula() const
{
    const Formula* const formula = getFormula();
    return formula != nullptr && formula->getArrayFormulaSize();
}

bool Cell::isContentEmpty(WithTombstones withTombstones) const
{
    return getRawBlocks().empty() && (withTombstones == WithTombstones::No ||
                                      _textWithTombstones.getTombstones().getTombstonesCount() == 0);
}

bool Cell::isEmpty(WithTombstones withTombstones) const
{
    return isContentEmpty(withTombstones) && getMergeProps() == CellMergeProps() && !_style;
}

std::shared_ptr<const Hyperlink> Cell::getHyperlink() const
{
    const auto blocks = getRawBlocks();
    return blocks.empty() ? nullptr : getFirstHyperlinkFromBlocks(blocks);
}

void Cell::setPivotTable(std::unique_ptr<PivotTable> pivotTable)
{
    _pivotTable = std::move(pivotTable);
}

const CellMergeProps& getCellMergeProps(const Cell* cell)
{
    static const CellMergeProps none;
    return cell != nullptr ? cell->getMergeProps() : none;
}

} // namespace QN::DOM
