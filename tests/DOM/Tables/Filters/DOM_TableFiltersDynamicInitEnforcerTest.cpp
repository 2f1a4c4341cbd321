#include "DOM/Tables/Filters/DOM_TableFiltersDynamicInitEnforcer.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::DOM::TableFiltersDynamicInitEnforcerTest {
namespace {

TEST(DOM_TableFiltersDynamicInitEnforcer, IsEmptyAndRefersToTheRegistrationWhenMade)
{
    static_assert(std::is_empty_v<TableFiltersDynamicInitEnforcer>);
    static_assert(!std::is_trivially_default_constructible_v<TableFiltersDynamicInitEnforcer>);
    const TableFiltersDynamicInitEnforcer enforcer;
    static_cast<void>(enforcer);
}

} // namespace
} // namespace QN::DOM::TableFiltersDynamicInitEnforcerTest
