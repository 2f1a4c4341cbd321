#include "DOM/Tables/Properties/DOM_CellProps.h"

#include <gtest/gtest.h>

#include <string>

#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::CellPropsTest {
namespace {

using namespace QN::Test;

std::shared_ptr<const Insets> makeMargins(float left)
{
    return sharedWith<Insets>([&](Insets& insets) { insets.setLeft(left); });
}

CellProps makeFull()
{
    CellProps props;
    props.setBorders(makeBorders(1.0F));
    props.setMargins(makeMargins(5.0F));
    props.setFill(std::make_shared<NoFill>());
    props.setVerticalAlignment(VerticalAlignment::Justify);
    props.setWidth(80.0F);
    props.setTextLayout(TextLayout::ShrinkToFit);
    props.setTextOrientation(-45.0);
    return props;
}

TEST(DOM_CellProps, SayNothingByDefault)
{
    expectText(CellProps(), R"({"_borders":{"ptr_wrapper":{"id":0}},"_margins":{"ptr_wrapper":{"id":0}},)"
                            R"("_fill":{"polymorphic_id":0},"_verticalAlignment":{"hasValue":false},)"
                            R"("_width":{"hasValue":false},"_textLayout":{"hasValue":false},)"
                            R"("_textOrientation":{"which":0,"data":{}}})");
}

TEST(DOM_CellProps, WriteAllThatTheySay)
{
    CellProps props = makeFull();
    props.setBorders(nullptr);
    props.setMargins(nullptr);
    expectText(props,
               R"({"_borders":{"ptr_wrapper":{"id":0}},"_margins":{"ptr_wrapper":{"id":0}},)"
               R"("_fill":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::NoFill",)"
               R"("ptr_wrapper":{"id":2147483649,"data":{"value0":{}}}},)"
               R"("_verticalAlignment":{"hasValue":true,"value":3},"_width":{"hasValue":true,"value":80.0},)"
               R"("_textLayout":{"hasValue":true,"value":2},"_textOrientation":{"which":2,"data":-45.0}})");
    expectPersists(makeFull());
    expectCopiesAndMoves(makeFull());
}

TEST(DOM_CellProps, PassUnknownAlignmentsAndLayoutsThrough)
{
    const auto expectPasses = [](int alignment, int layout) {
        CellProps props;
        props.setVerticalAlignment(static_cast<VerticalAlignment>(alignment));
        props.setTextLayout(static_cast<TextLayout>(layout));
        expectText(props, R"({"_borders":{"ptr_wrapper":{"id":0}},"_margins":{"ptr_wrapper":{"id":0}},)"
                          R"("_fill":{"polymorphic_id":0},"_verticalAlignment":{"hasValue":true,"value":)" +
                              std::to_string(alignment) +
                              R"(},"_width":{"hasValue":false},"_textLayout":{"hasValue":true,"value":)" +
                              std::to_string(layout) + R"(},"_textOrientation":{"which":0,"data":{}}})");
    };
    expectPasses(300, -1);
    expectPasses(-1, 300);
}

TEST(DOM_CellProps, WriteStackedCharactersAsAnEmptyObject)
{
    CellProps props;
    props.setTextOrientation(TaggedEmpty<StackedCharsTag>());
    const std::string json = toJson(props);
    EXPECT_NE(json.find(R"("_textOrientation":{"which":1,"data":{}})"), std::string::npos) << json;
    expectPersists(props);
}

TEST(DOM_CellProps, RefuseAnUnknownKindOfOrientation)
{
    std::string json = toJson(CellProps());
    json.replace(json.find(R"("which":0)"), 9, R"("which":3)");
    EXPECT_EQ(loadError<CellProps>(json), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(DOM_CellProps, AnswerWhatWasSet)
{
    const CellProps props = makeFull();
    EXPECT_EQ(*props.getMargins(), *makeMargins(5.0F));
    EXPECT_EQ(props.getVerticalAlignment(), VerticalAlignment::Justify);
    EXPECT_EQ(props.getWidth(), 80.0F);
    EXPECT_EQ(props.getTextLayout(), TextLayout::ShrinkToFit);
    EXPECT_EQ(props.getTextOrientation(), CellProps::TextOrientation(-45.0));
    EXPECT_NE(props.getFill(), nullptr);
    EXPECT_NE(props.getBorders(), nullptr);
}

TEST(DOM_CellProps, OrderByTheirMembersInTurn)
{
    expectAscending(
        {CellProps(),
         with<CellProps>([](auto& props) { props.setTextOrientation(TaggedEmpty<StackedCharsTag>()); }),
         with<CellProps>([](auto& props) { props.setTextOrientation(-90.0); }),
         with<CellProps>([](auto& props) { props.setTextOrientation(90.0); }),
         with<CellProps>([](auto& props) { props.setTextLayout(TextLayout::Wrap); }),
         with<CellProps>([](auto& props) { props.setWidth(0.0F); }),
         with<CellProps>([](auto& props) { props.setVerticalAlignment(VerticalAlignment::Bottom); }),
         with<CellProps>([](auto& props) { props.setFill(std::make_shared<NoFill>()); }),
         with<CellProps>([](auto& props) { props.setFill(std::make_shared<SolidFill>()); }),
         with<CellProps>([](auto& props) { props.setMargins(makeMargins(1.0F)); }),
         with<CellProps>([](auto& props) { props.setBorders(makeBorders(1.0F)); })});
}

TEST(DOM_CellProps, AreOverriddenByWhatTheOtherSays)
{
    CellProps target = makeFull();
    override(target, CellProps());
    EXPECT_EQ(target, makeFull());

    CellProps other;
    other.setMargins(sharedWith<Insets>([](Insets& insets) { insets.setTop(1.0F); }));
    other.setTextOrientation(TaggedEmpty<StackedCharsTag>());
    const auto margins = target.getMargins();
    override(target, other);
    EXPECT_EQ(*target.getMargins(), with<Insets>([](Insets& insets) {
        insets.setLeft(5.0F);
        insets.setTop(1.0F);
    }));
    EXPECT_EQ(*margins, *makeMargins(5.0F));
    EXPECT_EQ(target.getTextOrientation().which(), 1);
    EXPECT_EQ(target.getWidth(), 80.0F);
}

TEST(DOM_CellProps, ShareWhatTheyHadNotWhenTheyAreOverridden)
{
    CellProps target;
    const CellProps other = makeFull();
    override(target, other);
    EXPECT_EQ(target.getBorders().get(), other.getBorders().get());
    EXPECT_EQ(target, other);
}

TEST(DOM_CellProps, AreEmptyWithoutThemselves)
{
    CellProps target = makeFull();
    exclude(target, makeFull());
    EXPECT_EQ(target, CellProps());
}

TEST(DOM_CellProps, KeepAnEmptyObjectOfWhichAllMembersWereExcluded)
{
    CellProps target;
    target.setMargins(makeMargins(1.0F));
    CellProps other;
    other.setMargins(sharedWith<Insets>([](Insets& insets) {
        insets.setLeft(1.0F);
        insets.setTop(2.0F);
    }));
    exclude(target, other);
    ASSERT_NE(target.getMargins(), nullptr);
    EXPECT_EQ(*target.getMargins(), Insets());
}

TEST(DOM_CellProps, KeepWhatBothSayAlike)
{
    CellProps target = makeFull();
    CellProps other = makeFull();
    other.setVerticalAlignment(VerticalAlignment::Top);
    other.setTextOrientation(45.0);
    other.setBorders(nullptr);
    intersect(target, other);
    CellProps expected = makeFull();
    expected.setVerticalAlignment(boost::none);
    expected.setTextOrientation(boost::blank());
    expected.setBorders(nullptr);
    EXPECT_EQ(target, expected);
}

TEST(DOM_CellPropsDeathTest, StopTheProcessWhenTwoDifferentFillsIntersect)
{
    CellProps target = makeFull();
    CellProps other = makeFull();
    other.setFill(std::make_shared<SolidFill>());
    EXPECT_DEATH(intersect(target, other), R"(:403: areDeeplyEqual\(target, other\))");
}

TEST(DOM_CellProps, HaveEmptyObjectsBehindTheirPropertySetsAfterRebasing)
{
    CellProps target;
    rebaseProperty(target, CellProps(), CellProps(), CellProps());
    ASSERT_NE(target.getBorders(), nullptr);
    ASSERT_NE(target.getMargins(), nullptr);
    EXPECT_EQ(*target.getMargins(), Insets());
    EXPECT_EQ(target.getFill(), nullptr);
}

TEST(DOM_CellProps, AreRebasedWhereTheReferencesAgree)
{
    CellProps target = makeFull();
    CellProps left;
    left.setTextOrientation(1.0);
    left.setTextLayout(TextLayout::Wrap);
    CellProps replacement;
    replacement.setWidth(1.0F);
    rebaseProperty(target, replacement, left, CellProps());
    EXPECT_EQ(target.getTextOrientation(), CellProps::TextOrientation(-45.0));
    EXPECT_EQ(target.getTextLayout(), TextLayout::ShrinkToFit);
    EXPECT_EQ(target.getWidth(), 1.0F);
    EXPECT_FALSE(target.getVerticalAlignment());
    EXPECT_EQ(target.getFill(), nullptr);
}

void expectDefaultProps(const CellProps& props, float sideMargin, int alignment, int layout)
{
    EXPECT_EQ(*props.getMargins(), with<Insets>([&](Insets& insets) {
        insets.setLeft(sideMargin);
        insets.setRight(sideMargin);
    }));
    EXPECT_EQ(props.getVerticalAlignment(), static_cast<VerticalAlignment>(alignment));
    EXPECT_EQ(props.getTextLayout(), static_cast<TextLayout>(layout));
    CellProps rest = props;
    rest.setMargins(nullptr);
    rest.setVerticalAlignment(boost::none);
    rest.setTextLayout(boost::none);
    EXPECT_EQ(rest, CellProps());
}

TEST(DOM_CellProps, HaveTheDefaultsOfATextDocument)
{
    expectDefaultProps(*getWordDefaultCellProps(), 5.4F, 2, 1);
    EXPECT_EQ(getWordDefaultCellProps().get(), getWordDefaultCellProps().get());
}

TEST(DOM_CellProps, HaveTheDefaultsOfAWorksheet)
{
    expectDefaultProps(*getWorksheetDefaultCellProps(), 2.0F, 0, 0);
    EXPECT_EQ(getWorksheetDefaultCellProps().get(), getWorksheetDefaultCellProps().get());
}

} // namespace
} // namespace QN::DOM::CellPropsTest
