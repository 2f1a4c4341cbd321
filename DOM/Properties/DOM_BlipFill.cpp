#include "DOM/Properties/DOM_BlipFill.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

BlipFill::BlipFill(const BlipFill& other)
    : Reflectable<Fill>(other),
      _content(other._content ? std::make_shared<const std::string>(*other._content) : nullptr),
      _type(other._type)
{
}

QN_DEFINE_COPY_ASSIGNMENT(BlipFill)
QN_DEFINE_ORDERED_VALUE(BlipFill)
QN_DEFINE_CONCRETE(BlipFill, Fill)

} // namespace QN::DOM
