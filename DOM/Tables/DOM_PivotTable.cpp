#include "DOM/Tables/DOM_PivotTable.h"

#include <boost/variant/get.hpp>

#include <algorithm>
#include <cstddef>

#include "DOM/DOM_FieldBlock.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

template <class Entries>
bool hasField(const Entries& entries, ColumnID id)
{
    return std::any_of(entries.begin(), entries.end(),
                       [&](const auto& entry) { return entry.getFieldID() == id; });
}

template <class Entries>
void eraseField(Entries& entries, ColumnID id)
{
    std::erase_if(entries, [&](const auto& entry) { return entry.getFieldID() == id; });
}

template <class Fields>
auto findField(Fields& fields, ColumnID id)
{
    return std::find_if(fields.begin(), fields.end(),
                        [&](const auto& field) { return field.getFieldID() == id; });
}

} // namespace

QN_DEFINE_VALUE(PivotTable)
QN_REGISTER_RELATION(UUIDable, PivotTable)

const PivotTableField* PivotTable::getFieldByID(ColumnID id) const
{
    const auto field = findField(_fields, id);
    return field == _fields.end() ? nullptr : &*field;
}

void PivotTable::setPivotTableFieldNameAlias(ColumnID id, std::string alias)
{
    const auto field = findField(_fields, id);
    if (field != _fields.end()) {
        field->setNameAlias(std::move(alias));
    }
}

bool PivotTable::canInsertFieldToRowsOrColumns(ColumnID id) const
{
    return isValidFieldID(id) && !hasField(_rows, id) && !hasField(_columns, id);
}

void PivotTable::addRow(ColumnID id, PivotTableSortOrder sortOrder, bool showTotals)
{
    _rows.emplace_back(id, sortOrder, showTotals);
}

void PivotTable::removeRow(ColumnID id)
{
    eraseField(_rows, id);
}

void PivotTable::addColumn(ColumnID id, PivotTableSortOrder sortOrder, bool showTotals)
{
    _columns.emplace_back(id, sortOrder, showTotals);
}

void PivotTable::removeColumn(ColumnID id)
{
    eraseField(_columns, id);
}

void PivotTable::addCalculatingValue(ColumnID id, PivotTableFunction function)
{
    _values.emplace_back(id, function);
}

void PivotTable::removeValue(const UUID& uuid)
{
    std::erase_if(_values, [&](const ValueField& value) { return value.getUUID() == uuid; });
}

void PivotTable::setSize(const Size2D<unsigned int>& size)
{
    const std::uint64_t count = std::uint64_t{size.getWidth()} * size.getHeight();
    _calculatedValues = std::vector<PivotTableValue>(static_cast<std::size_t>(count));
    _size = size;
}

std::uint64_t PivotTable::getPlace(unsigned int row, unsigned int column) const
{
    return std::uint64_t{row} * _size.getWidth() + column;
}

const PivotTableValue& PivotTable::getValue(unsigned int row, unsigned int column) const
{
    return _calculatedValues.at(getPlace(row, column));
}

void PivotTable::setValue(unsigned int row, unsigned int column, PivotTableValue value)
{
    _calculatedValues.at(getPlace(row, column)) = std::move(value);
}

bool PivotTable::isError() const
{
    if (_size != Size2D<unsigned int>(1, 1)) {
        return false;
    }
    const auto blocks = getValue(0, 0).getBlocks();
    const auto* const field = dynamic_cast<const FieldBlock*>(&blocks[0]);
    return blocks.size() == 1 && field != nullptr &&
           boost::get<BlockValue<FormulaErrorType>>(&field->getFieldInfo()) != nullptr;
}

} // namespace QN::DOM
