#include "DOM/Tables/Filters/DOM_TableFilter.h"

#include "DOM/Tables/Filters/DOM_ByColumnTableFilter.h"
#include "DOM/Tables/Filters/DOM_CompositeTableFilter.h"
#include "DOM/Tables/Filters/DOM_NullaryConditionTableFilter.h"
#include "DOM/Tables/Filters/DOM_TableFiltersDynamicInitEnforcer.h"
#include "DOM/Tables/Filters/DOM_UnaryConditionTableFilter.h"
#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_SERIALIZE(TableFilter)
QN_DEFINE_DEEP_EQUALITY(TableFilter)

TableFiltersDynamicInitEnforcer::TableFiltersDynamicInitEnforcer() = default;

QN_REGISTER_TYPE(ValuesTableFilter, "QN::DOM::ValuesTableFilter")
QN_REGISTER_TYPE(NullaryConditionTableFilter, "QN::DOM::NullaryConditionTableFilter")
QN_REGISTER_TYPE(UnaryConditionTableFilter, "QN::DOM::UnaryConditionTableFilter")
QN_REGISTER_TYPE(CompositeTableFilter, "QN::DOM::CompositeTableFilter")

QN_REGISTER_RELATION(TableFilter, ByColumnTableFilter)
QN_REGISTER_RELATION(TableFilter, CompositeTableFilter)
QN_REGISTER_RELATION(ByColumnTableFilter, ValuesTableFilter)
QN_REGISTER_RELATION(ByColumnTableFilter, NullaryConditionTableFilter)
QN_REGISTER_RELATION(ByColumnTableFilter, UnaryConditionTableFilter)

} // namespace QN::DOM
