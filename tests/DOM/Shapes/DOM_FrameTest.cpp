#include "DOM/Shapes/DOM_Frame.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

#include "DOM/Charts/DOM_ChartSpace.h"
#include "DOM/Shapes/DOM_Crop.h"
#include "DOM/Shapes/DOM_Picture.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FrameTest {

using namespace Test;

namespace {

std::unique_ptr<Picture> makePicture(const std::string& bytes)
{
    return std::make_unique<Picture>(std::make_shared<const std::string>(bytes));
}

std::shared_ptr<const Crop> makeCrop(double left)
{
    Crop crop;
    crop.setLeft(left);
    return std::make_shared<const Crop>(crop);
}

template <class Change>
Frame makeFrame(Change change)
{
    Frame frame;
    change(frame);
    return frame;
}

Frame makeFullFrame()
{
    return makeFrame([](Frame& frame) {
        frame.setGraphicalObject(makePicture("PNG"));
        frame.setAnchor(AbsoluteAnchor({1.0F, 2.0F}));
        frame.setExtent(Size2D<float>(3.0F, 4.0F));
        frame.setRotation(0.5);
        frame.setCrop(makeCrop(0.25));
    });
}

} // namespace

TEST(FrameTest, IsEmptyWithATextAnchorByDefault)
{
    const Frame frame;
    EXPECT_EQ(frame.getGraphicalObject(), nullptr);
    ASSERT_EQ(frame.getAnchor().which(), 0);
    EXPECT_EQ(boost::get<TextAnchor>(frame.getAnchor()), TextAnchor());
    EXPECT_FALSE(frame.getExtent());
    EXPECT_FALSE(frame.getRotation());
    EXPECT_FALSE(frame.getCrop());
    EXPECT_EQ(toJson(frame),
              R"({"_graphicalObject":{"_value":{"polymorphic_id":0}},)"
              R"("_anchor":{"which":0,"data":{"_type":{"hasValue":false},)"
              R"("_horizontalPosition":{"hasValue":false},"_verticalPosition":{"hasValue":false},)"
              R"("_distance":{"_left":{"hasValue":false},"_right":{"hasValue":false},)"
              R"("_top":{"hasValue":false},"_bottom":{"hasValue":false}},)"
              R"("_wrapAround":{"hasValue":false},"_polygon":{"_points":[],"_closed":false},)"
              R"("_allowOverlap":{"value":-1},"_behindDoc":{"value":-1}}},)"
              R"("_extent":{"hasValue":false},"_rotation":{"hasValue":false},)"
              R"("_crop":{"ptr_wrapper":{"id":0}}})");
}

TEST(FrameTest, PersistsItsMembersInOrder)
{
    EXPECT_EQ(toJson(makeFullFrame()),
              R"({"_graphicalObject":{"_value":{"polymorphic_id":2147483649,)"
              R"("polymorphic_name":"QN::DOM::Picture","ptr_wrapper":{"id":2147483649,"data":{"value0":{},)"
              R"("_pictureData":{"ptr_wrapper":{"id":2147483650,"data":"PNG"}}}}}},)"
              R"("_anchor":{"which":1,"data":{"_offset":{"x":1.0,"y":2.0}}},)"
              R"("_extent":{"hasValue":true,"value":{"_width":3.0,"_height":4.0}},)"
              R"("_rotation":{"hasValue":true,"value":0.5},)"
              R"("_crop":{"ptr_wrapper":{"id":2147483651,"data":{"_left":{"hasValue":true,"value":0.25},)"
              R"("_right":{"hasValue":false},"_top":{"hasValue":false},"_bottom":{"hasValue":false}}}}})");
    expectPersists(makeFullFrame());
    expectPersists(Frame());
    expectRoundTrip(
        makeFrame([](Frame& frame) { frame.setGraphicalObject(std::make_unique<ChartSpace>()); }));
}

TEST(FrameTest, EachKindOfAnchorPersistsUnderItsNumber)
{
    const TableOffset from(ColumnIndex(1), 2.0F, RowIndex(3), 4.0F);
    const auto makeAnchored = [](Frame::Anchor anchor) {
        return makeFrame([&](Frame& frame) { frame.setAnchor(std::move(anchor)); });
    };
    const std::string start = R"({"_graphicalObject":{"_value":{"polymorphic_id":0}},"_anchor":{"which":)";
    const Frame text = makeAnchored(TextAnchor(AnchorWrapType::Tight));
    EXPECT_EQ(toJson(text).substr(0, start.size() + 1), start + "0");
    expectPersists(text);
    const Frame oneCell = makeAnchored(OneCellAnchor(from, {5.0F, 6.0F}));
    EXPECT_EQ(toJson(oneCell).substr(0, start.size() + 1), start + "2");
    expectPersists(oneCell);
    const Frame twoCell = makeAnchored(TwoCellAnchor(from, from));
    EXPECT_EQ(toJson(twoCell).substr(0, start.size() + 1), start + "3");
    expectPersists(twoCell);
}

TEST(FrameTest, AnAnchorKindPastTheLastIsRefused)
{
    std::string json = toJson(makeFullFrame());
    json.replace(json.find(R"("which":1)"), 9, R"("which":4)");
    EXPECT_EQ(loadError<Frame>(json), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(FrameTest, FramesThatShareTheirObjectAndCropDoSoAfterALoad)
{
    const std::vector<Frame> frames(2, makeFullFrame());
    const auto loaded = fromJson<std::vector<Frame>>(toJson(frames));
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded[0].getGraphicalObject(), loaded[1].getGraphicalObject());
    EXPECT_EQ(loaded[0].getCrop(), loaded[1].getCrop());
    EXPECT_EQ(loaded[0], frames[0]);
}

TEST(FrameTest, TakesOwnershipOfItsObject)
{
    Frame frame;
    auto picture = makePicture("PNG");
    const GraphicalObject* const object = picture.get();
    frame.setGraphicalObject(std::move(picture));
    EXPECT_EQ(frame.getGraphicalObject(), object);
    frame.setGraphicalObject(nullptr);
    EXPECT_EQ(frame.getGraphicalObject(), nullptr);
}

TEST(FrameTest, AccessorsGiveWhatWasSet)
{
    Frame frame = makeFullFrame();
    EXPECT_TRUE(areDeeplyEqual(*frame.getGraphicalObject(), *makePicture("PNG")));
    EXPECT_EQ(boost::get<AbsoluteAnchor>(frame.getAnchor()), AbsoluteAnchor({1.0F, 2.0F}));
    EXPECT_EQ(*frame.getExtent(), Size2D<float>(3.0F, 4.0F));
    EXPECT_EQ(*frame.getRotation(), 0.5);
    EXPECT_EQ(*frame.getCrop(), *makeCrop(0.25));
    frame.setGraphicalObject(nullptr);
    frame.setAnchor(TextAnchor());
    frame.setExtent(boost::none);
    frame.setRotation(boost::none);
    frame.setCrop(nullptr);
    EXPECT_EQ(frame, Frame());
}

TEST(FrameTest, CopiesShowTheVerySameObjectAndCrop)
{
    static_assert(!std::is_polymorphic_v<Frame>);
    const Frame source = makeFullFrame();
    expectCopiesAndMoves(source);
    const Frame copy = makeCopy(source);
    EXPECT_EQ(copy.getGraphicalObject(), source.getGraphicalObject());
    EXPECT_EQ(copy.getGraphicalObject()->getID(), source.getGraphicalObject()->getID());
    EXPECT_EQ(copy.getCrop(), source.getCrop());
    Frame assigned;
    assigned = source;
    EXPECT_EQ(assigned.getGraphicalObject(), source.getGraphicalObject());
    EXPECT_EQ(assigned.getGraphicalObject()->getID(), source.getGraphicalObject()->getID());
    EXPECT_EQ(assigned.getCrop(), source.getCrop());
    Frame changed(source);
    changed.setGraphicalObject(makePicture("other"));
    changed.setCrop(nullptr);
    EXPECT_EQ(source, makeFullFrame());
}

TEST(FrameTest, TheVerySameObjectIsEqualToItselfEvenWhereItsContentIsNot)
{
    const auto makeSpace = [] {
        auto space = std::make_unique<ChartSpace>();
        space->setExtent(Size2D<float>(std::numeric_limits<float>::quiet_NaN(), 0.0F));
        return space;
    };
    const Frame frame = makeFrame([&](Frame& changed) { changed.setGraphicalObject(makeSpace()); });
    EXPECT_FALSE(*makeSpace() == *makeSpace());
    EXPECT_EQ(makeCopy(frame), frame);
    EXPECT_NE(makeFrame([&](Frame& changed) { changed.setGraphicalObject(makeSpace()); }), frame);
}

TEST(FrameTest, TheVerySameCropIsEqualToItselfEvenWhereItHoldsANaN)
{
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    const Frame frame = makeFrame([&](Frame& changed) { changed.setCrop(makeCrop(NaN)); });
    EXPECT_FALSE(*frame.getCrop() == *frame.getCrop());
    EXPECT_EQ(makeCopy(frame), frame);
    EXPECT_NE(makeFrame([&](Frame& changed) { changed.setCrop(makeCrop(NaN)); }), frame);
}

TEST(FrameTest, ObjectAndCropCompareByTheirContent)
{
    EXPECT_EQ(makeFullFrame(), makeFullFrame());
    const auto makeCropped = [](double left) {
        return makeFrame([&](Frame& frame) { frame.setCrop(makeCrop(left)); });
    };
    EXPECT_EQ(makeCropped(1.0), makeCropped(1.0));
    EXPECT_NE(makeCropped(1.0), makeCropped(2.0));
    EXPECT_NE(makeCropped(1.0), Frame());
    const auto makeFramed = [](std::unique_ptr<GraphicalObject> object) {
        return makeFrame([&](Frame& frame) { frame.setGraphicalObject(std::move(object)); });
    };
    EXPECT_EQ(makeFramed(makePicture("a")), makeFramed(makePicture("a")));
    EXPECT_NE(makeFramed(makePicture("a")), makeFramed(makePicture("b")));
    EXPECT_NE(makeFramed(makePicture("a")), Frame());
    EXPECT_NE(makeFramed(std::make_unique<Picture>()), makeFramed(std::make_unique<ChartSpace>()));
}

TEST(FrameTest, EachOtherMemberTakesPartInEquality)
{
    const auto differs = [](auto change) {
        Frame frame = makeFullFrame();
        change(frame);
        return frame != makeFullFrame();
    };
    EXPECT_TRUE(differs([](Frame& frame) { frame.setAnchor(AbsoluteAnchor({1.0F, 3.0F})); }));
    EXPECT_TRUE(differs([](Frame& frame) { frame.setAnchor(TextAnchor()); }));
    EXPECT_TRUE(differs([](Frame& frame) { frame.setExtent(boost::none); }));
    EXPECT_TRUE(differs([](Frame& frame) { frame.setRotation(0.0); }));
}

TEST(FrameTest, HasNoOrder)
{
    static_assert(!Ordered<Frame>);
}

} // namespace QN::DOM::FrameTest
