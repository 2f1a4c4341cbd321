#include "DOM/DOM_BreakRun.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const std::string& BreakRun::getText() const
{
    static const std::string Text = "\f";
    return Text;
}

QN_DEFINE_VALUE(BreakRun)
QN_DEFINE_CONCRETE(BreakRun, Run)

} // namespace QN::DOM
