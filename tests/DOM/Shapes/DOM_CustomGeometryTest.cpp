#include "DOM/Shapes/DOM_CustomGeometry.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"
#include "DOM/Shapes/DOM_ArcCommands.h"
#include "DOM/Shapes/DOM_CurveCommands.h"
#include "DOM/Shapes/DOM_EllipticalQuadrantCommand.h"
#include "DOM/Shapes/DOM_LinearCommand.h"
#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"
#include "Support/Randomize.h"

namespace QN::DOM::CustomGeometryTest {
namespace {

using namespace Test;
using DrawingFormulas::value;

constexpr const char* Name = "QN::DOM::CustomGeometry";

CustomGeometry makeGeometry()
{
    CustomGeometry geometry;
    geometry.setType("star");
    geometry.getAdjustValues().add("a", 1.5);
    geometry.getFormulasMap().add("f", value(2.5));
    geometry.getPaths().emplace_back();
    geometry.getPaths().back().getCommands().push_back(
        std::make_unique<DrawingCommands::LineTo>(value(3.5), value(4.5)));
    geometry.getPaths().emplace_back().setWidth(7);
    return geometry;
}

TEST(CustomGeometry, IsEmptyByDefaultAndThatIsValid)
{
    const CustomGeometry geometry;
    EXPECT_EQ(geometry.getType(), "");
    EXPECT_TRUE(geometry.getAdjustValues().isEmpty());
    EXPECT_EQ(geometry.getFormulasMap().size(), 0U);
    EXPECT_TRUE(geometry.getPaths().empty());
    expectInFamily<Geometry>(geometry, Name,
                             R"({"value0":{},"_type":"","_adjustValues":{"_values":[],"_valueNames":[]},)"
                             R"("_formulasMap":{"_formulas":[],"_formulaNames":[]},"_paths":[]})");
}

TEST(CustomGeometry, CarriesTheWholeOutline)
{
    const CustomGeometry geometry = makeGeometry();
    EXPECT_EQ(geometry.getType(), "star");
    expectPersists(geometry);
    expectCopiesAndMoves(geometry);
    expectText(geometry,
               std::string(R"({"value0":{},"_type":"star",)"
                           R"("_adjustValues":{"_values":[1.5],"_valueNames":["a"]},)"
                           R"("_formulasMap":{"_formulas":[)") +
                   DrawingFormulas::firstValueJson("2.5") + R"(],"_formulaNames":["f"]},)" +
                   R"("_paths":[{"_minX":0,"_minY":0,"_width":0,"_height":0,"_commands":[)" +
                   makePolymorphicJson("QN::DOM::DrawingCommands::LineTo",
                                       R"({"value0":{},"_x":)" + DrawingFormulas::laterValueJson("3.5") +
                                           R"(,"_y":)" + DrawingFormulas::laterValueJson("4.5") + "}",
                                       2) +
                   R"(],"_isClosed":false,"_isStroked":true,"_fillMode":3},)"
                   R"({"_minX":0,"_minY":0,"_width":7,"_height":0,"_commands":[],)"
                   R"("_isClosed":false,"_isStroked":true,"_fillMode":3}]})");
}

TEST(CustomGeometry, IsUnequalAsSoonAsOnePartDiffers)
{
    const CustomGeometry geometry = makeGeometry();
    const auto expectUnequal = [&geometry](auto change) {
        CustomGeometry changed = geometry;
        EXPECT_EQ(changed, geometry);
        change(changed);
        EXPECT_NE(changed, geometry);
    };
    expectUnequal([](CustomGeometry& changed) { changed.setType("x"); });
    expectUnequal([](CustomGeometry& changed) { changed.getAdjustValues().add("b", 1.0); });
    expectUnequal([](CustomGeometry& changed) { changed.getFormulasMap().add("g", nullptr); });
    expectUnequal([](CustomGeometry& changed) { changed.getPaths().pop_back(); });
    expectUnequal([](CustomGeometry& changed) { std::swap(changed.getPaths()[0], changed.getPaths()[1]); });
}

TEST(CustomGeometry, AChangedCopyLeavesItsSourceAsItWas)
{
    const CustomGeometry source = makeGeometry();
    const std::string json = toJson(source);
    CustomGeometry copy(source);
    copy.getFormulasMap() = DrawingFormulas::FormulasMap();
    copy.getPaths()[0].getCommands()[0] = nullptr;
    EXPECT_EQ(toJson(source), json);
}

TEST(CustomGeometry, RandomOutlinesPersistAndCopy)
{
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        random.depth = 5;
        CustomGeometry geometry;
        randomize(geometry, random);
        expectRoundTrip(geometry);
        expectCopiesAndMoves(geometry);
    }
}

} // namespace
} // namespace QN::DOM::CustomGeometryTest
