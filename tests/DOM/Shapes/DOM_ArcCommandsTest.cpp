#include "DOM/Shapes/DOM_ArcCommands.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/CommandChecks.h"

namespace QN::DOM::DrawingCommands::ArcCommandsTest {
namespace {

constexpr auto Clockwise = static_cast<RotationDirection>(0);
constexpr auto CounterClockwise = static_cast<RotationDirection>(1);
constexpr auto Move = static_cast<LinearCommandType>(0);
constexpr auto Line = static_cast<LinearCommandType>(1);

template <class Command>
void expectArc(const std::string& name)
{
    expectCommand<Command, 6>(name, {"_centerX", "_centerY", "_width", "_height", "_startAngle", "_endAngle"},
                              {&Command::getCenterX, &Command::getCenterY, &Command::getWidth,
                               &Command::getHeight, &Command::getStartAngle, &Command::getEndAngle});
}

template <class Command>
void expectArcByVector(const std::string& name)
{
    expectCommand<Command, 8>(name,
                              {"_boundingBoxX1", "_boundingBoxY1", "_boundingBoxX2", "_boundingBoxY2",
                               "_startVectorX", "_startVectorY", "_endVectorX", "_endVectorY"},
                              {&Command::getBoundingBoxX1, &Command::getBoundingBoxY1,
                               &Command::getBoundingBoxX2, &Command::getBoundingBoxY2,
                               &Command::getStartVectorX, &Command::getStartVectorY, &Command::getEndVectorX,
                               &Command::getEndVectorY});
}

TEST(ArcCommandsDeathTest, AnArcHasACentreTwoRadiiAndTwoAngles)
{
    static_assert(std::is_same_v<Arc, ArcCommand<Move>> && std::is_same_v<ArcTo, ArcCommand<Line>>);
    expectArc<Arc>("Arc");
    expectArc<ArcTo>("ArcTo");
}

TEST(ArcCommandsDeathTest, AnArcByVectorHasABoxAndTwoPoints)
{
    static_assert(std::is_same_v<ArcByVectorCW, ArcByVectorCommand<Move, Clockwise>>);
    static_assert(std::is_same_v<ArcToByVectorCW, ArcByVectorCommand<Line, Clockwise>>);
    static_assert(std::is_same_v<ArcByVectorCC, ArcByVectorCommand<Move, CounterClockwise>>);
    static_assert(std::is_same_v<ArcToByVectorCC, ArcByVectorCommand<Line, CounterClockwise>>);
    expectArcByVector<ArcByVectorCW>("ArcByVectorCW");
    expectArcByVector<ArcToByVectorCW>("ArcToByVectorCW");
    expectArcByVector<ArcByVectorCC>("ArcByVectorCC");
    expectArcByVector<ArcToByVectorCC>("ArcToByVectorCC");
}

TEST(ArcCommandsDeathTest, ARelativeArcHasTwoRadiiAndTwoAngles)
{
    expectCommand<ArcRelative, 4>("ArcRelative",
                                  {"_widthRadius", "_heightRadius", "_startAngle", "_swingAngle"},
                                  {&ArcRelative::getWidthRadius, &ArcRelative::getHeightRadius,
                                   &ArcRelative::getStartAngle, &ArcRelative::getSwingAngle});
}

TEST(ArcCommands, OfEqualOperandsAreUnequalInAnotherDirectionOrStart)
{
    const PathCommand& clockwise = makeCommand<ArcByVectorCW, 8>(1);
    EXPECT_TRUE(areDeeplyEqual(clockwise, makeCommand<ArcByVectorCW, 8>(1)));
    EXPECT_FALSE(areDeeplyEqual(clockwise, makeCommand<ArcByVectorCC, 8>(1)));
    EXPECT_FALSE(areDeeplyEqual(clockwise, makeCommand<ArcToByVectorCW, 8>(1)));
    EXPECT_FALSE(
        areDeeplyEqual(static_cast<const PathCommand&>(makeCommand<Arc, 6>(1)), makeCommand<ArcTo, 6>(1)));
}

} // namespace
} // namespace QN::DOM::DrawingCommands::ArcCommandsTest
