#include "DOM/Shapes/DOM_PresetGeometry.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"

namespace QN::DOM::PresetGeometryTest {
namespace {

using namespace Test;

constexpr const char* Name = "QN::DOM::PresetGeometry";

TEST(PresetGeometry, HasNoTypeAndNoAdjustValuesByDefault)
{
    const PresetGeometry geometry;
    EXPECT_EQ(geometry.getType(), "");
    EXPECT_FALSE(geometry.hasAdjustValues());
    EXPECT_TRUE(geometry.getAdjustValues().isEmpty());
    expectInFamily<Geometry>(geometry, Name,
                             R"({"value0":{},"_type":"","_adjustValues":{"_values":[],"_valueNames":[]}})");
}

TEST(PresetGeometry, TakesAnyNameAndAdjustValues)
{
    PresetGeometry geometry("roundRect");
    EXPECT_EQ(geometry.getType(), "roundRect");
    EXPECT_FALSE(geometry.hasAdjustValues());
    geometry.getAdjustValues().add("adj", 16667.0);
    EXPECT_TRUE(geometry.hasAdjustValues());
    EXPECT_EQ(std::as_const(geometry).getAdjustValues().find("adj"), 16667.0);
    expectInFamily<Geometry>(
        geometry, Name,
        R"({"value0":{},"_type":"roundRect","_adjustValues":{"_values":[16667.0],"_valueNames":["adj"]}})");
    geometry.setType("no such shape");
    EXPECT_EQ(geometry.getType(), "no such shape");
}

TEST(PresetGeometry, ComparesTypeAndAdjustValues)
{
    PresetGeometry adjusted("x");
    adjusted.getAdjustValues().add("a", 1.0);
    EXPECT_EQ(PresetGeometry("x"), PresetGeometry("x"));
    EXPECT_NE(PresetGeometry("x"), PresetGeometry("y"));
    EXPECT_NE(PresetGeometry("x"), adjusted);
}

TEST(PresetGeometry, AChangedCopyLeavesItsSourceAsItWas)
{
    PresetGeometry source("star5");
    source.getAdjustValues().add("adj", 1.0);
    const PresetGeometry before(source);
    PresetGeometry copy(source);
    copy.setType("cloud");
    copy.getAdjustValues().add("adj", 2.0);
    EXPECT_EQ(source, before);
    EXPECT_EQ(source.getAdjustValues().find("adj"), 1.0);
}

} // namespace
} // namespace QN::DOM::PresetGeometryTest
