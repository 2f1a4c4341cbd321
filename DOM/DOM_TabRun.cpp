#include "DOM/DOM_TabRun.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const std::string& TabRun::getText() const
{
    static const std::string Text = "\t";
    return Text;
}

QN_DEFINE_VALUE(TabRun)
QN_DEFINE_CONCRETE(TabRun, Run)

} // namespace QN::DOM
