#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCondition.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

void Condition::setValue(FloatNumber value)
{
    QN_ASSERT(isfinite(value));
    _value = value;
}

QN_DEFINE_EQUALITY(Condition)
QN_DEFINE_ORDER(Condition)

void Condition::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

void Condition::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
    if (!isfinite(_value)) {
        _value = FloatNumber();
        throw cereal::Exception("The number of a format's condition is not finite");
    }
}

} // namespace QN::DOM::CellFormatModel
