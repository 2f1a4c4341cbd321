#include "DOM/DOM_DrawingRun.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/DOM_Picture.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::DrawingRunTest {
namespace {

using namespace QN::Test;

Frame makePictureFrame(const std::string& bytes)
{
    Frame frame;
    frame.setGraphicalObject(std::make_unique<Picture>(std::make_shared<const std::string>(bytes)));
    frame.setRotation(45.0);
    return frame;
}

TEST(DOM_DrawingRun, HoldsAFrame)
{
    EXPECT_EQ(DrawingRun().getFrame(), Frame());
    DrawingRun run(makePictureFrame("bytes"));
    EXPECT_EQ(std::as_const(run).getFrame(), makePictureFrame("bytes"));
    run.getFrame().setRotation(90.0);
    EXPECT_TRUE(std::as_const(run).getFrame().getRotation() == 90.0);
}

TEST(DOM_DrawingRun, ReadsAsTheDrawingCharacter)
{
    EXPECT_EQ(DrawingRun(makePictureFrame("bytes")).getText(), "\xEE\x80\x80");
}

TEST(DOM_DrawingRun, ComparesStyleAndFrame)
{
    EXPECT_EQ(DrawingRun(makePictureFrame("a")), DrawingRun(makePictureFrame("a")));
    EXPECT_NE(DrawingRun(makePictureFrame("a")), DrawingRun(makePictureFrame("b")));
    EXPECT_NE(DrawingRun(makePictureFrame("a")), DrawingRun());
    DrawingRun styled;
    styled.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(styled, DrawingRun());
}

TEST(DOM_DrawingRun, ACloneHasAFrameOfItsOwnThatShowsTheSameObject)
{
    const DrawingRun run(makePictureFrame("a"));
    const auto copy = cloneUnique<DOM::Run>(run);
    auto& frame = dynamic_cast<DrawingRun&>(*copy).getFrame();
    EXPECT_EQ(frame.getGraphicalObject(), run.getFrame().getGraphicalObject());
    frame.setRotation(90.0);
    EXPECT_TRUE(run.getFrame().getRotation() == 45.0);
}

TEST(DOM_DrawingRun, CopiesAndMoves)
{
    expectCopiesAndMoves(DrawingRun(makePictureFrame("a")));
}

TEST(DOM_DrawingRun, WritesItsFrame)
{
    EXPECT_EQ(toJson(DrawingRun()),
              std::string("{") + PlainRunJson + R"(,"_frame":)" + toJson(Frame()) + "}");
}

TEST(DOM_DrawingRun, Persists)
{
    expectPersists(DrawingRun());
    expectPersists(DrawingRun(makePictureFrame("a")));
}

} // namespace
} // namespace QN::DOM::DrawingRunTest
