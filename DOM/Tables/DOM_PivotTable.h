#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_CellRange.h"
#include "DOM/Tables/DOM_FieldCache.h"
#include "DOM/Tables/DOM_PivotTableCategoryInfo.h"
#include "DOM/Tables/DOM_PivotTableField.h"
#include "DOM/Tables/DOM_PivotTableValue.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "DOM/Tables/DOM_ValueField.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

/// How the fields of a pivot table are laid out. Any other number passes through unchanged.
enum class PivotTableLayoutType : std::int32_t { Compact = 0, Outline = 1, Tabular = 2 };

/// A pivot table: its source, which fields go to rows, columns and values, and the calculated results. It stands at the
/// root cell of its area. The model stores it and calculates nothing.
class DOM_API PivotTable : public Reflectable<UUIDable> {
public:
    using Fields = std::vector<PivotTableField>;
    using Categories = std::vector<PivotTableCategoryInfo>;

    const FormulaSyntaxTree::CellRange& getSourceRange() const { return _range; }
    void setSourceRange(FormulaSyntaxTree::CellRange range) { _range = std::move(range); }

    // Fields. Each search is linear.

    const Fields& getPivotTableFields() const { return _fields; }
    void setPivotTableFields(Fields fields) { _fields = std::move(fields); }
    /// Null for an unknown field. Valid until the fields change.
    const PivotTableField* getFieldByID(ColumnID id) const;
    /// Changes nothing for an unknown field.
    void setPivotTableFieldNameAlias(ColumnID id, std::string alias);
    bool isValidFieldID(ColumnID id) const { return getFieldByID(id) != nullptr; }

    // Layout. Fields are added as told: whether they are known, and stand somewhere already, is the caller's to ask.

    /// Whether the field is known and stands in neither the rows nor the columns.
    bool canInsertFieldToRowsOrColumns(ColumnID id) const;

    const Categories& getRows() const { return _rows; }
    void addRow(ColumnID id, PivotTableSortOrder sortOrder, bool showTotals);
    /// Every entry of the field goes.
    void removeRow(ColumnID id);

    const Categories& getColumns() const { return _columns; }
    void addColumn(ColumnID id, PivotTableSortOrder sortOrder, bool showTotals);
    /// Every entry of the field goes.
    void removeColumn(ColumnID id);

    const std::vector<ValueField>& getValues() const { return _values; }
    void addCalculatingValue(ColumnID id, PivotTableFunction function);
    void removeValue(const UUID& uuid);

    PivotTableLayoutType getLayoutType() const { return _layoutType; }
    void setLayoutType(PivotTableLayoutType layoutType) { _layoutType = layoutType; }

    // Results.

    /// Width is columns, height is rows.
    const Size2D<unsigned int>& getSize() const { return _size; }
    /// Makes all results empty. A size that no vector can hold throws `std::length_error` and changes nothing.
    void setSize(const Size2D<unsigned int>& size);

    /// The results are addressed at row times width plus column: a column past the width is in a later row. A place past
    /// the last result throws `std::out_of_range`. A file's results need not be as many as its size says.
    const PivotTableValue& getValue(unsigned int row, unsigned int column) const;
    void setValue(unsigned int row, unsigned int column, PivotTableValue value);

    const FieldCache& getFieldCache() const { return _fieldCache; }
    FieldCache& getFieldCache() { return _fieldCache; }
    void setFieldCache(FieldCache cache) { _fieldCache = std::move(cache); }

    /// Whether the one result of a 1 by 1 table is an error value. A result without blocks, such as that of a table just
    /// sized 1 by 1, fails the contract "index < size()", and a null block the contract "plainPtr". Where a file states
    /// the size and no result, it throws `std::out_of_range`.
    bool isError() const;

    /// The identity takes part.
    QN_VALUE(PivotTable)

private:
    std::uint64_t getPlace(unsigned int row, unsigned int column) const;

    FormulaSyntaxTree::CellRange _range;
    Categories _rows;
    Categories _columns;
    std::vector<ValueField> _values;
    Fields _fields;
    FieldCache _fieldCache;
    PivotTableLayoutType _layoutType{};
    std::vector<PivotTableValue> _calculatedValues;
    Size2D<unsigned int> _size;

    BOOST_DESCRIBE_CLASS(PivotTable, (UUIDable), (), (),
                         (_range, _rows, _columns, _values, _fields, _fieldCache, _layoutType,
                          _calculatedValues, _size))
};

} // namespace QN::DOM
