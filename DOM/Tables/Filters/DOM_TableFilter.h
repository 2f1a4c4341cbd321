#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class ValuesTableFilter;
class NullaryConditionTableFilter;
class UnaryConditionTableFilter;
class CompositeTableFilter;

/// Says which rows of a sheet are shown. Filters refer to a column by its index. The model stores them and applies none.
class DOM_API TableFilter : public Clonable<TableFilter>, public Reflectable<> {
public:
    using Types = TypeList<ValuesTableFilter, NullaryConditionTableFilter, UnaryConditionTableFilter,
                           CompositeTableFilter>;
    QN_FAMILY_ROOT(TableFilter)

    QN_SERIALIZE(TableFilter)

    BOOST_DESCRIBE_CLASS(TableFilter, (), (), (), ())
};

DOM_API bool areDeeplyEqual(const TableFilter& left, const TableFilter& right);

} // namespace QN::DOM
