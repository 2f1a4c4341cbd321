#include "DOM/Shapes/DOM_PathCommand.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/CommandChecks.h"
#include "DOM/Shapes/DOM_ArcCommands.h"
#include "DOM/Shapes/DOM_CurveCommands.h"
#include "DOM/Shapes/DOM_EllipticalQuadrantCommand.h"
#include "DOM/Shapes/DOM_LinearCommand.h"

namespace QN::DOM::DrawingCommands::PathCommandTest {
namespace {

template <class... Commands>
std::vector<std::unique_ptr<PathCommand>> makeOneOfEachKind(TypeList<Commands...>)
{
    std::vector<std::unique_ptr<PathCommand>> commands;
    (commands.push_back(std::make_unique<Commands>()), ...);
    return commands;
}

TEST(PathCommand, HasThirteenKindsInTheOrderOfTheFamily)
{
    static_assert(
        std::is_same_v<
            PathCommand::Types,
            TypeList<MoveTo, LineTo, QuadCurveTo, CubicCurveTo, Arc, ArcTo, ArcByVectorCW, ArcToByVectorCW,
                     ArcByVectorCC, ArcToByVectorCC, EllipticalQuadrantX, EllipticalQuadrantY, ArcRelative>>);
    static_assert(std::is_abstract_v<PathCommand>);
    static_assert(std::is_base_of_v<Clonable<PathCommand>, PathCommand>);
    static_assert(!Ordered<PathCommand>);
}

TEST(PathCommand, NumbersWhatTheTemplatesAreTakenOver)
{
    EXPECT_EQ(static_cast<int>(LinearCommandType::Move), 0);
    EXPECT_EQ(static_cast<int>(LinearCommandType::Line), 1);
    EXPECT_EQ(static_cast<int>(RotationDirection::Clockwise), 0);
    EXPECT_EQ(static_cast<int>(RotationDirection::CounterClockwise), 1);
    EXPECT_EQ(static_cast<int>(EllipticalQuadrantType::X), 0);
    EXPECT_EQ(static_cast<int>(EllipticalQuadrantType::Y), 1);
}

TEST(PathCommand, IsDeeplyEqualOnlyToOneOfItsOwnClass)
{
    const auto kinds = makeOneOfEachKind(PathCommand::Types{});
    ASSERT_EQ(kinds.size(), 13U);
    for (std::size_t left = 0; left < kinds.size(); ++left) {
        for (std::size_t right = 0; right < kinds.size(); ++right) {
            EXPECT_EQ(areDeeplyEqual(*kinds[left], *kinds[right]), left == right) << left << " and " << right;
        }
    }
}

TEST(PathCommand, LoadsEachKindAsItsOwnClass)
{
    const auto kinds = makeOneOfEachKind(PathCommand::Types{});
    expectPersists(kinds);
    const auto loaded = fromJson<std::vector<std::unique_ptr<PathCommand>>>(toJson(kinds));
    ASSERT_EQ(loaded.size(), kinds.size());
    for (std::size_t index = 0; index < kinds.size(); ++index) {
        const PathCommand& read = *loaded[index];
        const PathCommand& written = *kinds[index];
        EXPECT_EQ(typeid(read), typeid(written));
    }
}

TEST(PathCommand, ItsEnforcerIsEmpty)
{
    static_assert(std::is_empty_v<PathCommandsDynamicInitEnforcer>);
    static_assert(!std::is_trivially_default_constructible_v<PathCommandsDynamicInitEnforcer>);
    const PathCommandsDynamicInitEnforcer enforcer;
    static_cast<void>(enforcer);
}

} // namespace
} // namespace QN::DOM::DrawingCommands::PathCommandTest
