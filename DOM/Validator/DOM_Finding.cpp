#include "DOM/Validator/DOM_Finding.h"

#include <fmt/format.h>

#include <ostream>

namespace QN::DOM {

std::string Finding::getContractText() const
{
    std::string text = fmt::format("{}:{}: {}", file, line, condition);
    if (!message.empty()) {
        text += ": " + message;
    }
    return text;
}

std::string Finding::toString() const
{
    const char* const kindText = kind == FindingKind::Hazard ? " (hazard)" : "";
    return fmt::format("{} at {}{}", getContractText(), address.toString(), kindText);
}

std::ostream& operator<<(std::ostream& stream, const Finding& finding)
{
    return stream << finding.toString();
}

} // namespace QN::DOM
