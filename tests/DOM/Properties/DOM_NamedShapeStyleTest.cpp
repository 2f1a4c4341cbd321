#include "DOM/Properties/DOM_NamedShapeStyle.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "DOM/DOM_Paragraph.h"
#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NamedShapeStyleTest {

using namespace Test;

static_assert(std::is_base_of_v<UUIDable, NamedShapeStyle>);
static_assert(!Ordered<NamedShapeStyle>);

namespace {

NamedShapeStyle makeFullStyle()
{
    NamedShapeStyle style(SomeUUID);
    style.setName(std::string("Callout"));
    style.setBackground(std::make_unique<SolidFill>());
    style.setAnchor(OneCellAnchor());
    style.setExtent(Size2D<float>(3.0F, 4.0F));
    style.setPadding(sharedWith<Insets>([](Insets& insets) { insets.setTop(1.0F); }));
    style.getTextWithTombstones().getBlocks().push_back(std::make_unique<Paragraph>());
    style.setParentUUID(OtherUUID);
    return style;
}

} // namespace

TEST(NamedShapeStyleTest, ANewStyleHasAnIdentityAndSaysNothing)
{
    const NamedShapeStyle style;
    EXPECT_TRUE(style.getUUID());
    EXPECT_EQ(style.getName().which(), 0);
    EXPECT_EQ(style.getBackground(), nullptr);
    EXPECT_EQ(style.getAnchor().which(), 0);
    EXPECT_FALSE(style.getExtent());
    EXPECT_EQ(style.getPadding(), nullptr);
    EXPECT_TRUE(style.getTextWithTombstones().getBlocks().empty());
    EXPECT_FALSE(style.getParentUUID());
}

TEST(NamedShapeStyleTest, TheBaseIsWrittenFirstAndThenEachKeyInOrder)
{
    EXPECT_EQ(toJson(NamedShapeStyle(SomeUUID)),
              R"({"value0":{"_uuid":{"_id":")" + SomeUUID.toString() +
                  R"("}},"_name":{"which":0,"data":{}},"_background":{"polymorphic_id":0},)"
                  R"("_anchor":{"which":0,"data":{}},"_extent":{"hasValue":false},)"
                  R"("_padding":{"ptr_wrapper":{"id":0}},)"
                  R"("_textWithTombstones":{"_blocks":[],"_tombstones":{"_tombstones":[]}},)"
                  R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TEST(NamedShapeStyleTest, ASetMemberIsReadBackAndPersists)
{
    const NamedShapeStyle style = makeFullStyle();
    EXPECT_EQ(boost::get<std::string>(style.getName()), "Callout");
    ASSERT_NE(style.getBackground(), nullptr);
    EXPECT_TRUE(areDeeplyEqual(*style.getBackground(), SolidFill()));
    EXPECT_EQ(style.getAnchor().which(), 3);
    EXPECT_SAME(style.getExtent(), Size2D<float>(3.0F, 4.0F));
    EXPECT_SAME(style.getPadding()->getTop(), 1.0F);
    EXPECT_EQ(style.getTextWithTombstones().getBlocks().size(), 1U);
    EXPECT_EQ(style.getParentUUID(), OtherUUID);
    expectPersists(style);
    expectPersists(NamedShapeStyle());
    expectCopiesAndMoves(style);
}

TEST(NamedShapeStyleTest, EachKindOfAnchorPersistsUnderItsIndex)
{
    int which = 1;
    for (const NamedShapeStyle::Anchor& anchor :
         {NamedShapeStyle::Anchor(TextAnchor()), NamedShapeStyle::Anchor(AbsoluteAnchor()),
          NamedShapeStyle::Anchor(OneCellAnchor()), NamedShapeStyle::Anchor(TwoCellAnchor())}) {
        NamedShapeStyle style;
        style.setAnchor(anchor);
        EXPECT_NE(toJson(style).find(R"("_anchor":{"which":)" + std::to_string(which)), std::string::npos);
        expectRoundTrip(style);
        ++which;
    }
}

TEST(NamedShapeStyleTest, AKindOfAnchorThatDoesNotExistIsRefused)
{
    std::string json = toJson(NamedShapeStyle(SomeUUID));
    const std::string blank = R"("_anchor":{"which":0,)";
    json.replace(json.find(blank), blank.size(), R"("_anchor":{"which":5,)");
    EXPECT_EQ(loadError<NamedShapeStyle>(json), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(NamedShapeStyleTest, ACopySharesNeitherBackgroundNorText)
{
    const NamedShapeStyle style = makeFullStyle();
    NamedShapeStyle copy(style);
    EXPECT_EQ(copy, style);
    EXPECT_NE(copy.getBackground(), style.getBackground());
    EXPECT_EQ(copy.getPadding(), style.getPadding());
    copy.getTextWithTombstones().getBlocks().clear();
    copy.setBackground(nullptr);
    EXPECT_EQ(style, makeFullStyle());
}

TEST(NamedShapeStyleTest, LoadingReplacesWhatWasThere)
{
    NamedShapeStyle style = makeFullStyle();
    loadJson(toJson(NamedShapeStyle(OtherUUID)), style);
    EXPECT_EQ(style, NamedShapeStyle(OtherUUID));
}

TEST(NamedShapeStyleTest, EachMemberAndTheIdentityTakePartInEquality)
{
    const auto changed = [](auto change) {
        NamedShapeStyle style = makeFullStyle();
        change(style);
        return style;
    };
    EXPECT_EQ(makeFullStyle(), makeFullStyle());
    EXPECT_NE(makeFullStyle(), changed([](NamedShapeStyle& s) { s.setUUID(OtherUUID); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedShapeStyle& s) { s.setName(PredefinedStyleName::Normal); }));
    EXPECT_NE(makeFullStyle(),
              changed([](NamedShapeStyle& s) { s.setBackground(std::make_unique<NoFill>()); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedShapeStyle& s) { s.setAnchor(boost::blank()); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedShapeStyle& s) { s.setExtent(boost::none); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedShapeStyle& s) { s.setPadding(nullptr); }));
    EXPECT_NE(makeFullStyle(),
              changed([](NamedShapeStyle& s) { s.getTextWithTombstones().getBlocks().clear(); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedShapeStyle& s) { s.setParentUUID(UUID()); }));
}

} // namespace QN::DOM::NamedShapeStyleTest
