#include "DOM/DOM_TextRun.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

TextRun::TextRun(const TextRun& other, CopyStrategy strategy)
    : Reflectable<Run>(other), _text(strategy == CopyStrategy::WithoutText ? std::string() : other._text)
{
}

QN_DEFINE_COPY_ASSIGNMENT(TextRun)
QN_DEFINE_VALUE(TextRun)
QN_DEFINE_CONCRETE(TextRun, Run)

} // namespace QN::DOM
