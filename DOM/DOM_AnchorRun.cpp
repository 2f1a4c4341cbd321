#include "DOM/DOM_AnchorRun.h"

#include "DOM/DOM_SpecialCharacter.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const std::string& AnchorRun::getText() const
{
    static const std::string Text = getSpecialCharAsUTF8(SpecialCharacter::Anchor);
    return Text;
}

QN_DEFINE_VALUE(AnchorRun)
QN_DEFINE_CONCRETE(AnchorRun, Run)

} // namespace QN::DOM
