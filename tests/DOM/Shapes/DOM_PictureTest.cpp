#include "DOM/Shapes/DOM_Picture.h"

#include <gtest/gtest.h>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PictureTest {

using namespace Test;

namespace {

Picture makePicture(const std::string& bytes)
{
    return Picture(std::make_shared<const std::string>(bytes));
}

} // namespace

TEST(PictureTest, HasNoBytesByDefault)
{
    EXPECT_FALSE(Picture().getPictureData());
    EXPECT_EQ(toJson(Picture()), R"({"value0":{},"_pictureData":{"ptr_wrapper":{"id":0}}})");
}

TEST(PictureTest, PersistsItsEmptyBaseAndThenItsBytes)
{
    EXPECT_EQ(toJson(makePicture("PNG")),
              R"({"value0":{},"_pictureData":{"ptr_wrapper":{"id":2147483649,"data":"PNG"}}})");
    expectPersists(makePicture("PNG"));
    expectPersists(makePicture(""));
    expectPersists(Picture());
}

TEST(PictureTest, AnyBytesSurviveAFile)
{
    std::string bytes = "\x89PNG\r\n\x1a\n";
    bytes.push_back('\0');
    for (int byte = 0; byte < 256; ++byte) {
        bytes.push_back(static_cast<char>(byte));
    }
    expectRoundTrip(makePicture(bytes));
    EXPECT_EQ(*fromJson<Picture>(toJson(makePicture(bytes))).getPictureData(), bytes);
}

TEST(PictureTest, TheSetterSharesThePointerThatItIsGiven)
{
    const auto bytes = std::make_shared<const std::string>("bytes");
    Picture picture;
    picture.setPictureData(bytes);
    EXPECT_EQ(picture.getPictureData().get(), bytes.get());
    picture.setPictureData(nullptr);
    EXPECT_EQ(picture, Picture());
}

TEST(PictureTest, EqualityIsThatOfThePointersOrOfTheBytes)
{
    const Picture picture = makePicture("a");
    EXPECT_EQ(picture, Picture(picture.getPictureData()));
    EXPECT_EQ(picture, makePicture("a"));
    EXPECT_NE(picture, makePicture("b"));
    EXPECT_NE(picture, Picture());
    EXPECT_NE(makePicture(""), Picture());
    EXPECT_EQ(Picture(), Picture());
}

TEST(PictureTest, HasNoOrder)
{
    static_assert(!Ordered<Picture>);
}

TEST(PictureTest, CopiesShareBytesAndIdentity)
{
    const Picture picture = makePicture("bytes");
    expectCopiesAndMoves(picture);
    const Picture copy = makeCopy(picture);
    EXPECT_EQ(copy.getPictureData(), picture.getPictureData());
    EXPECT_EQ(copy.getID(), picture.getID());
    EXPECT_EQ(cloneUnique<GraphicalObject>(picture)->getID(), picture.getID());
    EXPECT_NE(makePicture("bytes").getID(), picture.getID());
}

} // namespace QN::DOM::PictureTest
