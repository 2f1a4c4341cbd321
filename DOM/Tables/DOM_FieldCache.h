#pragma once

#include <concepts>
#include <map>
#include <string>
#include <vector>

#include "DOM/Tables/DOM_BlockValue.h"
#include "DOM/Tables/DOM_PivotTableValue.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/FloatNumber.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

/// The distinct values of the fields of a pivot table. Who adds values sees to it that they are distinct.
class DOM_API FieldCache : public Reflectable<UUIDable> {
public:
    using Values = std::vector<PivotTableValue>;

    /// A text becomes a paragraph with one text run, without run if it is empty; a number or a boolean becomes a field
    /// block. A number that is not finite fails the contract "isfinite(value)".
    void addValue(ColumnID id, PivotTableValue value);
    void addValue(ColumnID id, const std::string& text);
    void addValue(ColumnID id, const char* text) { addValue(id, std::string(text)); }
    void addValue(ColumnID id, double number);
    void addValue(ColumnID id, const BlockValue<FloatNumber>& number);
    template <std::same_as<bool> Bool>
    void addValue(ColumnID id, Bool value)
    {
        addBool(id, value);
    }

    /// Null for a field without values. Valid until the next change.
    const Values* getValues(ColumnID id) const;

    void reset() { _fieldValueCache.clear(); }

    /// The identity takes part.
    QN_VALUE(FieldCache)

private:
    void addBool(ColumnID id, bool value);

    std::map<ColumnID, Values> _fieldValueCache;

    BOOST_DESCRIBE_CLASS(FieldCache, (UUIDable), (), (), (_fieldValueCache))
};

} // namespace QN::DOM
