#include "DOM/DOM_Paragraph.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

Paragraph::Paragraph(const Paragraph& other, CopyStrategy strategy)
    : Reflectable<Block>(other), _style(other._style), _paraMarkStyle(other._paraMarkStyle),
      _numRef(deepCopy(other._numRef))
{
    if (strategy != CopyStrategy::WithoutRuns) {
        _runs = deepCopyImpl(other._runs, QNDummy{});
    }
}

QN_DEFINE_COPY_ASSIGNMENT(Paragraph)
QN_DEFINE_VALUE(Paragraph)
QN_DEFINE_CONCRETE(Paragraph, Block)

} // namespace QN::DOM
