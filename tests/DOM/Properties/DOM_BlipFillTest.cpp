#include "DOM/Properties/DOM_BlipFill.h"

#include <gtest/gtest.h>

#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::BlipFillTest {

using namespace Test;

namespace {

BlipFill makeFill(const std::string& bytes, boost::optional<BlipType> type = boost::none)
{
    BlipFill fill;
    fill.setContent(std::make_shared<const std::string>(bytes));
    fill.setType(type);
    return fill;
}

BlipFill makeFill(BlipType type)
{
    BlipFill fill;
    fill.setType(type);
    return fill;
}

} // namespace

TEST(BlipFillTest, HasNeitherContentNorTypeByDefault)
{
    EXPECT_FALSE(BlipFill().getContent());
    EXPECT_FALSE(BlipFill().getType());
    EXPECT_EQ(toJson(BlipFill()),
              R"({"value0":{},"_content":{"ptr_wrapper":{"id":0}},"_type":{"hasValue":false}})");
}

TEST(BlipFillTest, ContentPersistsAsASharedString)
{
    EXPECT_EQ(toJson(makeFill("GIF", BlipType::Tile)),
              R"({"value0":{},"_content":{"ptr_wrapper":{"id":2147483649,"data":"GIF"}},)"
              R"("_type":{"hasValue":true,"value":1}})");
}

TEST(BlipFillTest, AnyBytesSurviveAFile)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.push_back(static_cast<char>(byte));
    }
    expectRoundTrip(makeFill(bytes, static_cast<BlipType>(99)));
    EXPECT_EQ(*fromJson<BlipFill>(toJson(makeFill(bytes))).getContent(), bytes);
}

TEST(BlipFillTest, Persists)
{
    expectPersists(BlipFill());
    expectPersists(makeFill(""));
    expectPersists(makeFill("some bytes", BlipType::Stretch));
}

TEST(BlipFillTest, SetContentSharesThePointerThatItIsGiven)
{
    const auto bytes = std::make_shared<const std::string>("bytes");
    BlipFill fill;
    fill.setContent(bytes);
    EXPECT_EQ(fill.getContent().get(), bytes.get());
    EXPECT_EQ(bytes.use_count(), 2);
    fill.setContent(nullptr);
    EXPECT_FALSE(fill.getContent());
}

TEST(BlipFillTest, ACopyHasTheBytesInAHolderOfItsOwn)
{
    const BlipFill source = makeFill("bytes", BlipType::Tile);
    const BlipFill copy = makeCopy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(copy.getContent().get(), source.getContent().get());
    BlipFill assigned;
    assigned = source;
    EXPECT_EQ(assigned, source);
    EXPECT_NE(assigned.getContent().get(), source.getContent().get());
    EXPECT_EQ(source.getContent().use_count(), 1);
}

TEST(BlipFillTest, AClonedCopyHasTheBytesInAHolderOfItsOwn)
{
    const BlipFill source = makeFill("bytes", BlipType::Tile);
    const std::unique_ptr<Fill> unique = cloneUnique<Fill>(source);
    const std::shared_ptr<Fill> shared = cloneShared<Fill>(source);
    EXPECT_TRUE(areDeeplyEqual(*unique, source));
    EXPECT_TRUE(areDeeplyEqual(*shared, source));
    EXPECT_EQ(source.getContent().use_count(), 1);
}

TEST(BlipFillTest, AssigningItToItselfKeepsTheHolder)
{
    const auto bytes = std::make_shared<const std::string>("bytes");
    BlipFill fill;
    fill.setContent(bytes);
    const BlipFill& itself = fill;
    fill = itself;
    EXPECT_EQ(fill.getContent(), bytes);
}

TEST(BlipFillTest, AMoveTakesTheHolderOver)
{
    const auto bytes = std::make_shared<const std::string>("bytes");
    BlipFill fill;
    fill.setContent(bytes);
    const BlipFill moved(std::move(fill));
    EXPECT_EQ(moved.getContent(), bytes);
    EXPECT_EQ(bytes.use_count(), 2);
}

TEST(BlipFillTest, ACopyOfAFillWithoutContentHasNone)
{
    const BlipFill source = makeFill(BlipType::Tile);
    EXPECT_FALSE(BlipFill(source).getContent());
    EXPECT_EQ(BlipFill(source), source);
}

TEST(BlipFillTest, EqualityLooksAtTheBytes)
{
    EXPECT_EQ(makeFill("a"), makeFill("a"));
    EXPECT_NE(makeFill("a"), makeFill("b"));
    EXPECT_NE(makeFill(""), BlipFill());
    EXPECT_NE(makeFill("a"), makeFill("a", BlipType::Tile));
}

TEST(BlipFillTest, OrdersByBytesThenByTypeNoContentFirst)
{
    expectAscending<BlipFill>({
        BlipFill(),
        makeFill(BlipType::Stretch),
        makeFill(""),
        makeFill("a"),
        makeFill("a", BlipType::Stretch),
        makeFill("a", BlipType::Tile),
        makeFill("aa"),
        makeFill("b"),
        makeFill("\x7f"),
        makeFill("\x80"),
    });
}

TEST(BlipFillTest, IsCopiedAndMoved)
{
    static_assert(sizeof(BlipType) == 1);
    expectCopiesAndMoves(makeFill("bytes", BlipType::Tile));
    expectCopiesAndMoves(BlipFill());
}

} // namespace QN::DOM::BlipFillTest
