#include "DOM/Utils/DOM_TableNameUtils.h"

#include <cstddef>
#include <string_view>

namespace QN::DOM {

namespace {

constexpr std::string_view ForbiddenTableNameChars = ":\\/?*[]";
constexpr std::string_view TableNameEdgeChar = "'";

bool isTableNameEdgeChar(char character)
{
    return character == TableNameEdgeChar.front();
}

bool mayStandInTableName(const std::string& name, std::size_t index)
{
    const bool isAtEdge = index == 0 || index + 1 == name.size();
    return ForbiddenTableNameChars.find(name[index]) == std::string_view::npos &&
           !(isAtEdge && isTableNameEdgeChar(name[index]));
}

} // namespace

bool validateTableName(const std::string& name)
{
    if (name.find_first_of(ForbiddenTableNameChars) != std::string::npos) {
        return false;
    }
    return name.empty() || !(isTableNameEdgeChar(name.front()) || isTableNameEdgeChar(name.back()));
}

std::string fixTableNameIfNeed(const std::string& name)
{
    if (validateTableName(name)) {
        return name;
    }
    std::string fixed;
    fixed.reserve(name.size());
    bool isReplaced = false;
    for (std::size_t index = 0; index < name.size(); ++index) {
        if (mayStandInTableName(name, index)) {
            fixed += name[index];
            isReplaced = false;
        } else if (!isReplaced) {
            fixed += '_';
            isReplaced = true;
        }
    }
    return fixed;
}

} // namespace QN::DOM
