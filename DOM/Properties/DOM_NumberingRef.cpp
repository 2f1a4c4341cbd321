#include "DOM/Properties/DOM_NumberingRef.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(NumberingRef)
QN_DEFINE_ALGEBRA(NumberingRef)

bool isEmpty(const std::unique_ptr<NumberingRef>& ref)
{
    return !ref || !ref->getListTagUUID() || !ref->getNumListUUID();
}

} // namespace QN::DOM
