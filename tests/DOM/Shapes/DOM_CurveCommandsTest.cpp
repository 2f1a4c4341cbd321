#include "DOM/Shapes/DOM_CurveCommands.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/CommandChecks.h"

namespace QN::DOM::DrawingCommands::CurveCommandsTest {
namespace {

TEST(CurveCommandsDeathTest, AQuadraticCurveHasOneControlPoint)
{
    expectCommand<QuadCurveTo, 4>(
        "QuadCurveTo", {"_controlX", "_controlY", "_x", "_y"},
        {&QuadCurveTo::getControlX, &QuadCurveTo::getControlY, &QuadCurveTo::getX, &QuadCurveTo::getY});
}

TEST(CurveCommandsDeathTest, ACubicCurveHasTwoControlPoints)
{
    expectCommand<CubicCurveTo, 6>(
        "CubicCurveTo", {"_control1X", "_control1Y", "_control2X", "_control2Y", "_x", "_y"},
        {&CubicCurveTo::getControl1X, &CubicCurveTo::getControl1Y, &CubicCurveTo::getControl2X,
         &CubicCurveTo::getControl2Y, &CubicCurveTo::getX, &CubicCurveTo::getY});
}

} // namespace
} // namespace QN::DOM::DrawingCommands::CurveCommandsTest
