#include "DOM/DOM_FieldRun.h"

#include "DOM/DOM_SpecialCharacter.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const std::string& FieldRun::getText() const
{
    static const std::string Text = getSpecialCharAsUTF8(SpecialCharacter::Field);
    return Text;
}

QN_DEFINE_VALUE(FieldRun)
QN_DEFINE_CONCRETE(FieldRun, Run)

} // namespace QN::DOM
