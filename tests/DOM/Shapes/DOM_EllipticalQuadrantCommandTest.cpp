#include "DOM/Shapes/DOM_EllipticalQuadrantCommand.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/CommandChecks.h"

namespace QN::DOM::DrawingCommands::EllipticalQuadrantCommandTest {
namespace {

template <class Command>
void expectQuadrant(const std::string& name)
{
    expectCommand<Command, 2>(name, {"_endX", "_endY"}, {&Command::getEndX, &Command::getEndY});
}

TEST(EllipticalQuadrantCommandDeathTest, HasAnEndPoint)
{
    static_assert(std::is_same_v<EllipticalQuadrantX,
                                 EllipticalQuadrantCommand<static_cast<EllipticalQuadrantType>(0)>>);
    static_assert(std::is_same_v<EllipticalQuadrantY,
                                 EllipticalQuadrantCommand<static_cast<EllipticalQuadrantType>(1)>>);
    expectQuadrant<EllipticalQuadrantX>("EllipticalQuadrantX");
    expectQuadrant<EllipticalQuadrantY>("EllipticalQuadrantY");
}

TEST(EllipticalQuadrantCommand, IsUnequalToOneAlongTheOtherAxis)
{
    EXPECT_FALSE(
        areDeeplyEqual(static_cast<const PathCommand&>(EllipticalQuadrantX()), EllipticalQuadrantY()));
}

} // namespace
} // namespace QN::DOM::DrawingCommands::EllipticalQuadrantCommandTest
