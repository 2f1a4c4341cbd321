#pragma once

#include <string>
#include <utility>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A column of a pivot table's source, under the identifier of that column.
class DOM_API PivotTableField {
public:
    PivotTableField() = default;
    PivotTableField(ColumnID fieldID, std::string fieldName, std::string nameAlias = {})
        : _fieldID(fieldID), _fieldName(std::move(fieldName)), _nameAlias(std::move(nameAlias))
    {
    }

    ColumnID getFieldID() const { return _fieldID; }
    void setFieldID(ColumnID id) { _fieldID = id; }

    const std::string& getFieldName() const { return _fieldName; }
    void setFieldName(std::string name) { _fieldName = std::move(name); }

    const std::string& getNameAlias() const { return _nameAlias; }
    void setNameAlias(std::string alias) { _nameAlias = std::move(alias); }

    /// The alias, or the name where the alias is empty.
    const std::string& getAliasOrName() const { return _nameAlias.empty() ? _fieldName : _nameAlias; }

    QN_VALUE(PivotTableField)

private:
    ColumnID _fieldID{0};
    std::string _fieldName;
    std::string _nameAlias;

    BOOST_DESCRIBE_CLASS(PivotTableField, (), (), (), (_fieldID, _fieldName, _nameAlias))
};

} // namespace QN::DOM
