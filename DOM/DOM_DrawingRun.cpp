#include "DOM/DOM_DrawingRun.h"

#include "DOM/DOM_SpecialCharacter.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const std::string& DrawingRun::getText() const
{
    static const std::string Text = getSpecialCharAsUTF8(SpecialCharacter::Drawing);
    return Text;
}

QN_DEFINE_VALUE(DrawingRun)
QN_DEFINE_CONCRETE(DrawingRun, Run)

} // namespace QN::DOM
