#include "DOM/DOM_Scripts.h"

#include <utility>

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

boost::optional<std::string> Scripts::getScript(const std::string& name) const
{
    const auto script = _scriptsByName.find(name);
    return script == _scriptsByName.end() ? boost::none : boost::make_optional(script->second);
}

void Scripts::insertScript(std::string name, std::string text)
{
    _scriptsByName.insert_or_assign(std::move(name), std::move(text));
}

QN_DEFINE_VALUE(Scripts)

} // namespace QN::DOM
