#include "DOM/DOM_NumListMarker.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_Frame.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NumListMarkerTest {

using namespace Test;

TEST(NumListMarkerTest, EveryMemberIsAbsentByDefault)
{
    const NumListMarker marker;
    EXPECT_FALSE(marker.getTextExpr());
    EXPECT_FALSE(marker.getType());
    EXPECT_FALSE(marker.getStartIndex());
    EXPECT_EQ(marker.getPictureFrame(), nullptr);
    EXPECT_EQ(toJson(marker),
              R"({"_textExpr":{"hasValue":false},"_type":{"hasValue":false},)"
              R"("_startIndex":{"hasValue":false},"_pictureFrame":{"ptr_wrapper":{"id":0}}})");
}

TEST(NumListMarkerTest, ASetMemberIsReadBackAndPersists)
{
    const auto frame = sharedWith<Frame>([](Frame& f) { f.setRotation(0.5); });
    const auto marker = with<NumListMarker>([&](NumListMarker& m) {
        m.setTextExpr(std::string("%1.%2."));
        m.setType(static_cast<NumberFormatType>(255));
        m.setStartIndex(0UL);
        m.setPictureFrame(frame);
    });
    EXPECT_SAME(marker.getTextExpr(), std::string("%1.%2."));
    EXPECT_SAME(marker.getType(), static_cast<NumberFormatType>(255));
    EXPECT_SAME(marker.getStartIndex(), 0UL);
    EXPECT_EQ(marker.getPictureFrame(), frame);
    expectPersists(marker);
    expectPersists(NumListMarker());
    expectCopiesAndMoves(marker);
    EXPECT_EQ(NumListMarker(marker).getPictureFrame(), frame);
}

TEST(NumListMarkerTest, EachMemberTakesPartInEqualityAndThePictureByContent)
{
    const auto framed = [](double rotation) {
        return with<NumListMarker>([&](NumListMarker& m) {
            m.setPictureFrame(sharedWith<Frame>([&](Frame& f) { f.setRotation(rotation); }));
        });
    };
    EXPECT_EQ(framed(1.0), framed(1.0));
    EXPECT_NE(framed(1.0), framed(2.0));
    EXPECT_NE(framed(1.0), NumListMarker());
    EXPECT_NE(NumListMarker(), with<NumListMarker>([](NumListMarker& m) { m.setTextExpr(std::string()); }));
    EXPECT_NE(NumListMarker(),
              with<NumListMarker>([](NumListMarker& m) { m.setType(NumberFormatType::Decimal); }));
    EXPECT_NE(NumListMarker(), with<NumListMarker>([](NumListMarker& m) { m.setStartIndex(0UL); }));
}

} // namespace QN::DOM::NumListMarkerTest
