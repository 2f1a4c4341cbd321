#include "DOM/Shapes/DOM_Geometry.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"
#include "DOM/Shapes/DOM_CustomGeometry.h"
#include "DOM/Shapes/DOM_PresetGeometry.h"

namespace QN::DOM::GeometryTest {
namespace {

using namespace Test;

TEST(Geometry, IsPresetOrCustom)
{
    static_assert(std::is_same_v<Geometry::Types, TypeList<PresetGeometry, CustomGeometry>>);
    static_assert(std::is_abstract_v<Geometry>);
    static_assert(std::is_base_of_v<Clonable<Geometry>, Geometry>);
    static_assert(!Ordered<Geometry>);
}

TEST(Geometry, PresetAndCustomOfOneTypeAreNeverEqual)
{
    const PresetGeometry preset("x");
    CustomGeometry custom;
    custom.setType("x");
    const Geometry& left = preset;
    const Geometry& right = custom;
    EXPECT_FALSE(areDeeplyEqual(left, right));
    EXPECT_FALSE(areDeeplyEqual(right, left));
    EXPECT_TRUE(areDeeplyEqual(left, PresetGeometry("x")));
    EXPECT_FALSE(areDeeplyEqual(left, PresetGeometry("y")));
}

TEST(Geometry, ANullPointerStaysNull)
{
    expectText(std::unique_ptr<Geometry>(), NullPolymorphicJson);
}

TEST(Geometry, ItsEnforcerIsEmpty)
{
    static_assert(std::is_empty_v<GeometriesDynamicInitEnforcer>);
    static_assert(!std::is_trivially_default_constructible_v<GeometriesDynamicInitEnforcer>);
    const GeometriesDynamicInitEnforcer enforcer;
    static_cast<void>(enforcer);
}

} // namespace
} // namespace QN::DOM::GeometryTest
