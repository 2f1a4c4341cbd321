#include "DOM/Shapes/DOM_Path.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Shapes/CommandChecks.h"
#include "DOM/Shapes/DOM_LinearCommand.h"

namespace QN::DOM::DrawingCommands::PathTest {
namespace {

constexpr const char* DefaultJson = R"({"_minX":0,"_minY":0,"_width":0,"_height":0,"_commands":[],)"
                                    R"("_isClosed":false,"_isStroked":true,"_fillMode":3})";

Path makePath()
{
    Path path;
    path.setMinX(-1);
    path.setMinY(2);
    path.setWidth(-30);
    path.setHeight(std::numeric_limits<long>::max());
    path.getCommands().push_back(std::make_unique<MoveTo>(value(0.5), nullptr));
    path.getCommands().push_back(nullptr);
    path.setClosed(true);
    path.setStroked(false);
    path.setFillMode(static_cast<PathFillMode>(255));
    return path;
}

TEST(Path, IsOpenStrokedAndFilledInModeThreeByDefault)
{
    static_assert(!std::is_polymorphic_v<Path>);
    static_assert(!Ordered<Path>);
    static_assert(sizeof(PathFillMode) == 1);
    const Path path;
    EXPECT_EQ(path.getMinX(), 0);
    EXPECT_EQ(path.getMinY(), 0);
    EXPECT_EQ(path.getWidth(), 0);
    EXPECT_EQ(path.getHeight(), 0);
    EXPECT_TRUE(path.getCommands().empty());
    EXPECT_FALSE(path.isClosed());
    EXPECT_TRUE(path.isStroked());
    EXPECT_EQ(static_cast<int>(path.getFillMode()), 3);
    expectText(path, DefaultJson);
}

TEST(Path, KeepsWhatItIsGiven)
{
    const Path path = makePath();
    EXPECT_EQ(path.getMinX(), -1);
    EXPECT_EQ(path.getMinY(), 2);
    EXPECT_EQ(path.getWidth(), -30);
    EXPECT_EQ(path.getHeight(), std::numeric_limits<long>::max());
    EXPECT_EQ(path.getCommands().size(), 2U);
    EXPECT_TRUE(path.isClosed());
    EXPECT_FALSE(path.isStroked());
    EXPECT_EQ(static_cast<int>(path.getFillMode()), 255);
    const std::string operand =
        makePolymorphicJson("QN::DOM::DrawingFormulas::Value", R"({"value0":{},"_value":0.5})", 2);
    const std::string move =
        makePolymorphicJson("QN::DOM::DrawingCommands::MoveTo",
                            R"({"value0":{},"_x":)" + operand + R"(,"_y":{"polymorphic_id":0}})");
    expectText(path, R"({"_minX":-1,"_minY":2,"_width":-30,"_height":9223372036854775807,"_commands":[)" +
                         move +
                         R"(,{"polymorphic_id":0}],"_isClosed":true,"_isStroked":false,"_fillMode":255})");
    expectCopiesAndMoves(path);
}

TEST(Path, IsUnequalAsSoonAsOneMemberDiffers)
{
    const Path path = makePath();
    const auto expectUnequal = [&path](auto change) {
        Path changed = path;
        EXPECT_EQ(changed, path);
        change(changed);
        EXPECT_NE(changed, path);
    };
    expectUnequal([](Path& changed) { changed.setMinX(0); });
    expectUnequal([](Path& changed) { changed.setMinY(0); });
    expectUnequal([](Path& changed) { changed.setWidth(0); });
    expectUnequal([](Path& changed) { changed.setHeight(0); });
    expectUnequal([](Path& changed) { changed.getCommands().pop_back(); });
    expectUnequal([](Path& changed) { changed.getCommands()[1] = std::make_unique<MoveTo>(); });
    expectUnequal([](Path& changed) { changed.getCommands()[0] = nullptr; });
    expectUnequal(
        [](Path& changed) { changed.getCommands()[0] = std::make_unique<LineTo>(value(0.5), nullptr); });
    expectUnequal([](Path& changed) { std::swap(changed.getCommands()[0], changed.getCommands()[1]); });
    expectUnequal([](Path& changed) { changed.setClosed(false); });
    expectUnequal([](Path& changed) { changed.setStroked(true); });
    expectUnequal([](Path& changed) { changed.setFillMode(PathFillMode::Normal); });
}

TEST(Path, CopiesItsCommands)
{
    const Path path = makePath();
    Path copy(path);
    EXPECT_NE(copy.getCommands()[0].get(), &path.getCommands()[0]);
    copy.getCommands()[0] = std::make_unique<LineTo>();
    copy.getCommands().pop_back();
    copy.setMinX(99);
    EXPECT_EQ(path, makePath());
}

TEST(PathDeathTest, ReadingANullCommandFailsTheContract)
{
    const Path path = makePath();
    EXPECT_DEATH(path.getCommands()[1], "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

} // namespace
} // namespace QN::DOM::DrawingCommands::PathTest
