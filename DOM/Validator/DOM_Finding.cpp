#include "DOM/Validator/DOM_Finding.h"

#include <fmt/format.h>

#include <ostream>
#include <tuple>

namespace QN::DOM {

NodeAddress Finding::getAddress() const
{
    return addresses != nullptr ? addresses->get(addressNumber) : NodeAddress();
}

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
    return fmt::format("{} at {}{}", getContractText(), getAddress().toString(), kindText);
}

bool operator==(const Finding& left, const Finding& right)
{
    const auto tie = [](const Finding& finding) {
        return std::tie(finding.kind, finding.file, finding.line, finding.condition, finding.message);
    };
    return tie(left) == tie(right) && left.getAddress() == right.getAddress();
}

std::ostream& operator<<(std::ostream& stream, const Finding& finding)
{
    return stream << finding.toString();
}

} // namespace QN::DOM
