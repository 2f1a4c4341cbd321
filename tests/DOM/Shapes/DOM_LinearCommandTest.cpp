#include "DOM/Shapes/DOM_LinearCommand.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/CommandChecks.h"

namespace QN::DOM::DrawingCommands::LinearCommandTest {
namespace {

template <class Command>
void expectLinearCommand(const std::string& name)
{
    expectCommand<Command, 2>(name, {"_x", "_y"}, {&Command::getX, &Command::getY});
}

TEST(LinearCommandDeathTest, MoveToHasAPoint)
{
    static_assert(std::is_same_v<MoveTo, LinearCommand<static_cast<LinearCommandType>(0)>>);
    expectLinearCommand<MoveTo>("MoveTo");
}

TEST(LinearCommandDeathTest, LineToHasAPoint)
{
    static_assert(std::is_same_v<LineTo, LinearCommand<static_cast<LinearCommandType>(1)>>);
    expectLinearCommand<LineTo>("LineTo");
}

TEST(LinearCommand, MoveToAndLineToOfOnePointAreUnequal)
{
    const PathCommand& move = MoveTo(value(1), value(2));
    const PathCommand& line = LineTo(value(1), value(2));
    EXPECT_FALSE(areDeeplyEqual(move, line));
    EXPECT_FALSE(areDeeplyEqual(line, move));
    EXPECT_TRUE(areDeeplyEqual(move, MoveTo(value(1), value(2))));
}

} // namespace
} // namespace QN::DOM::DrawingCommands::LinearCommandTest
