#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "DOM/Validator/ValidatorSamples.h"
#include "Utils/Public/ClassScheme/Members.h"

/// Faults of the table that a document begins with.

namespace QN::Test {

inline const std::string SheetAddress = "blocks[0]";

inline std::string getCellAddress(std::uint64_t row, std::uint64_t column)
{
    return SheetAddress + "/cell(" + std::to_string(row) + ", " + std::to_string(column) + ")";
}

inline DOM::Cell& getCell(DOM::Document& document, std::uint64_t row, std::uint64_t column)
{
    return getSheet(document).getOrCreateCell(RowIndex(row), ColumnIndex(column));
}

/// A change of the sheet that breaks a rule of the table as a whole.
inline Fault makeTableFault(void (*change)(DOM::Table& table), std::size_t findings = 1)
{
    return {[change](DOM::Document& document) {
                change(getSheet(document));
                return SheetAddress;
            },
            "", findings};
}

/// The members of a class that stand nowhere in its interface.
template <class Member, class Class>
Member& getMember(Class& object, std::string_view name)
{
    Member* found = nullptr;
    forEachMember<Class>([&](auto member) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(object.*member.pointer)>, Member>) {
            found = name == decltype(member)::name ? &(object.*member.pointer) : found;
        }
    });
    return *found;
}

} // namespace QN::Test
