#include "DOM/Shapes/DOM_ShapeProps.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ShapePropsTest {

using namespace Test;

namespace {

std::unique_ptr<Fill> makeFill(const Color& color)
{
    auto fill = std::make_unique<SolidFill>();
    fill->setColor(color);
    return fill;
}

std::unique_ptr<LineProps> makeLine(float width)
{
    auto line = std::make_unique<RegularLineProps>();
    line->setWidth(width);
    return line;
}

std::shared_ptr<const Insets> makePadding(float left)
{
    Insets insets;
    insets.setLeft(left);
    return std::make_shared<const Insets>(insets);
}

template <class Change>
ShapeProps makeProps(Change change)
{
    ShapeProps props;
    change(props);
    return props;
}

ShapeProps makeFullProps()
{
    return makeProps([](ShapeProps& props) {
        props.setAnchor(AbsoluteAnchor({1.0F, 2.0F}));
        props.setExtent(Size2D<float>(3.0F, 4.0F));
        props.setFill(makeFill(makeSlotColor(ThemeColorId::Accent3)));
        props.setLineProps(makeLine(0.5F));
        props.setShapeAreaHorizontalAlignment(ShapeAreaHorizontalAlignment::Right);
        props.setShapeAreaVerticalAlignment(ShapeAreaVerticalAlignment::Bottom);
        props.setPadding(makePadding(7.0F));
    });
}

ShapeProps makeAnchored(ShapeProps::Anchor anchor)
{
    return makeProps([&](ShapeProps& props) { props.setAnchor(std::move(anchor)); });
}

} // namespace

TEST(ShapePropsTest, SaysNothingByDefault)
{
    const ShapeProps props;
    EXPECT_EQ(props.getAnchor().which(), 0);
    EXPECT_FALSE(props.getExtent());
    EXPECT_EQ(props.getFill(), nullptr);
    EXPECT_EQ(props.getLineProps(), nullptr);
    EXPECT_FALSE(props.getShapeAreaHorizontalAlignment());
    EXPECT_FALSE(props.getShapeAreaVerticalAlignment());
    EXPECT_FALSE(props.getPadding());
    EXPECT_EQ(toJson(props), R"({"_anchor":{"which":0,"data":{}},"_extent":{"hasValue":false},)"
                             R"("_fill":{"polymorphic_id":0},"_lineProps":{"polymorphic_id":0},)"
                             R"("_shapeAreaHorizontalAlignment":{"hasValue":false},)"
                             R"("_shapeAreaVerticalAlignment":{"hasValue":false},)"
                             R"("_padding":{"ptr_wrapper":{"id":0}}})");
}

TEST(ShapePropsTest, PersistsItsMembersInOrder)
{
    const ShapeProps props = makeProps([](ShapeProps& changed) {
        changed.setAnchor(AbsoluteAnchor({1.0F, 2.0F}));
        changed.setExtent(Size2D<float>(3.0F, 4.0F));
        changed.setFill(std::make_unique<NoFill>());
        changed.setLineProps(std::make_unique<ThemeLineProps>());
        changed.setShapeAreaHorizontalAlignment(ShapeAreaHorizontalAlignment::Center);
        changed.setShapeAreaVerticalAlignment(ShapeAreaVerticalAlignment::Bottom);
        changed.setPadding(makePadding(7.0F));
    });
    EXPECT_EQ(toJson(props),
              R"({"_anchor":{"which":2,"data":{"_offset":{"x":1.0,"y":2.0}}},)"
              R"("_extent":{"hasValue":true,"value":{"_width":3.0,"_height":4.0}},)"
              R"("_fill":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::NoFill",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}},)"
              R"("_lineProps":{"polymorphic_id":2147483650,"polymorphic_name":"QN::DOM::ThemeLineProps",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_indexOpt":{"hasValue":false},)"
              R"("_colorOpt":{"hasValue":false}}}},)"
              R"("_shapeAreaHorizontalAlignment":{"hasValue":true,"value":1},)"
              R"("_shapeAreaVerticalAlignment":{"hasValue":true,"value":2},)"
              R"("_padding":{"ptr_wrapper":{"id":2147483649,"data":{"_left":{"hasValue":true,"value":7.0},)"
              R"("_right":{"hasValue":false},"_top":{"hasValue":false},"_bottom":{"hasValue":false}}}}})");
    expectPersists(props);
    expectPersists(makeFullProps());
    expectPersists(ShapeProps());
}

TEST(ShapePropsTest, EachKindOfAnchorPersistsUnderItsNumber)
{
    const TableOffset from(ColumnIndex(1), 2.0F, RowIndex(3), 4.0F);
    EXPECT_EQ(makeAnchored(TextAnchor()).getAnchor().which(), 1);
    EXPECT_EQ(makeAnchored(AbsoluteAnchor()).getAnchor().which(), 2);
    EXPECT_EQ(makeAnchored(TwoCellAnchor()).getAnchor().which(), 4);
    expectPersists(makeAnchored(TextAnchor(AnchorWrapType::Tight)));
    expectPersists(makeAnchored(TwoCellAnchor(from, from)));
    const ShapeProps oneCell = makeAnchored(OneCellAnchor(from, {5.0F, 6.0F}));
    const std::string start = R"({"_anchor":{"which":3,"data":{"_from":{"_columnIndex":{"_value":1},)";
    EXPECT_EQ(toJson(oneCell).substr(0, start.size()), start);
    expectPersists(oneCell);
}

TEST(ShapePropsTest, AnAnchorKindPastTheLastIsRefused)
{
    std::string json = toJson(ShapeProps());
    json.replace(json.find(R"("which":0)"), 9, R"("which":5)");
    EXPECT_EQ(loadError<ShapeProps>(json), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(ShapePropsTest, AnyAlignmentPassesThrough)
{
    const auto expectPasses = [](int horizontal, int vertical) {
        const ShapeProps props = makeProps([&](ShapeProps& changed) {
            changed.setShapeAreaHorizontalAlignment(static_cast<ShapeAreaHorizontalAlignment>(horizontal));
            changed.setShapeAreaVerticalAlignment(static_cast<ShapeAreaVerticalAlignment>(vertical));
        });
        expectRoundTrip(props);
        const std::string json = toJson(props);
        EXPECT_NE(json.find(R"("_shapeAreaHorizontalAlignment":{"hasValue":true,"value":)" +
                            std::to_string(horizontal) +
                            R"(},"_shapeAreaVerticalAlignment":{"hasValue":true,"value":)" +
                            std::to_string(vertical) + "}"),
                  std::string::npos)
            << json;
    };
    expectPasses(300, -1);
    expectPasses(-1, 300);
}

TEST(ShapePropsTest, AccessorsGiveWhatWasSet)
{
    ShapeProps props = makeFullProps();
    EXPECT_EQ(boost::get<AbsoluteAnchor>(props.getAnchor()), AbsoluteAnchor({1.0F, 2.0F}));
    EXPECT_EQ(*props.getExtent(), Size2D<float>(3.0F, 4.0F));
    EXPECT_TRUE(areDeeplyEqual(*props.getFill(), *makeFill(makeSlotColor(ThemeColorId::Accent3))));
    EXPECT_TRUE(areDeeplyEqual(*props.getLineProps(), *makeLine(0.5F)));
    EXPECT_EQ(*props.getShapeAreaHorizontalAlignment(), ShapeAreaHorizontalAlignment::Right);
    EXPECT_EQ(*props.getShapeAreaVerticalAlignment(), ShapeAreaVerticalAlignment::Bottom);
    EXPECT_EQ(*props.getPadding(), *makePadding(7.0F));
    props.setAnchor(boost::blank());
    props.setExtent(boost::none);
    props.setFill(nullptr);
    props.setLineProps(nullptr);
    props.setShapeAreaHorizontalAlignment(boost::none);
    props.setShapeAreaVerticalAlignment(boost::none);
    props.setPadding(nullptr);
    EXPECT_EQ(props, ShapeProps());
}

TEST(ShapePropsTest, FillsLinesAndPaddingCompareByTheirContent)
{
    EXPECT_EQ(makeFullProps(), makeFullProps());
    const auto makePadded = [](float left) {
        return makeProps([&](ShapeProps& props) { props.setPadding(makePadding(left)); });
    };
    EXPECT_EQ(makePadded(1.0F), makePadded(1.0F));
    EXPECT_NE(makePadded(1.0F), makePadded(2.0F));
    EXPECT_NE(makePadded(1.0F), ShapeProps());
}

TEST(ShapePropsTest, OrdersByItsMembersInTheOrderOfTheKeys)
{
    expectAscending<ShapeProps>({
        ShapeProps(),
        makeProps([](ShapeProps& props) { props.setPadding(makePadding(1.0F)); }),
        makeProps([](ShapeProps& props) { props.setPadding(makePadding(2.0F)); }),
        makeProps(
            [](ShapeProps& props) { props.setShapeAreaVerticalAlignment(ShapeAreaVerticalAlignment::Top); }),
        makeProps([](ShapeProps& props) {
            props.setShapeAreaHorizontalAlignment(ShapeAreaHorizontalAlignment::Left);
        }),
        makeProps([](ShapeProps& props) { props.setLineProps(makeLine(1.0F)); }),
        makeProps([](ShapeProps& props) { props.setLineProps(makeLine(2.0F)); }),
        makeProps([](ShapeProps& props) { props.setLineProps(std::make_unique<ThemeLineProps>()); }),
        makeProps([](ShapeProps& props) { props.setFill(std::make_unique<NoFill>()); }),
        makeProps([](ShapeProps& props) { props.setFill(makeFill(Color())); }),
        makeProps([](ShapeProps& props) { props.setExtent(Size2D<float>(0.0F, 9.0F)); }),
        makeProps([](ShapeProps& props) { props.setExtent(Size2D<float>(1.0F, 0.0F)); }),
        makeAnchored(TextAnchor()),
        makeAnchored(TextAnchor(AnchorWrapType::Inline)),
        makeAnchored(AbsoluteAnchor()),
        makeAnchored(AbsoluteAnchor({1.0F, 0.0F})),
        makeAnchored(OneCellAnchor()),
        makeAnchored(TwoCellAnchor()),
    });
}

TEST(ShapePropsTest, ANanIsNotLessAndLastInPools)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const auto makeWide = [](float width) {
        return makeProps([&](ShapeProps& props) { props.setExtent(Size2D<float>(width, 0.0F)); });
    };
    EXPECT_FALSE(makeWide(nan) < makeWide(1.0F));
    EXPECT_FALSE(makeWide(1.0F) < makeWide(nan));
    EXPECT_NE(makeWide(nan), makeWide(nan));
    EXPECT_TRUE(makeWide(1.0F).compare(makeWide(nan), NanOrder::Last) < 0);
    EXPECT_TRUE(makeWide(nan).compare(makeWide(nan), NanOrder::Last) == 0);
}

TEST(ShapePropsTest, ACopyClonesFillAndLineAndSharesThePadding)
{
    const ShapeProps source = makeFullProps();
    expectCopiesAndMoves(source);
    expectCopiesAndMoves(ShapeProps());
    ShapeProps copy(source);
    EXPECT_NE(copy.getFill(), source.getFill());
    EXPECT_NE(copy.getLineProps(), source.getLineProps());
    EXPECT_EQ(copy.getPadding(), source.getPadding());
    copy.setFill(nullptr);
    copy.setLineProps(makeLine(9.0F));
    copy.setPadding(nullptr);
    copy.setAnchor(boost::blank());
    EXPECT_EQ(source, makeFullProps());
    ShapeProps assigned;
    assigned = source;
    EXPECT_NE(assigned.getFill(), source.getFill());
    EXPECT_EQ(assigned, source);
}

TEST(ShapePropsTest, AMoveTakesFillAndLineAlong)
{
    ShapeProps source = makeFullProps();
    const Fill* const fill = source.getFill();
    const ShapeProps moved(std::move(source));
    EXPECT_EQ(moved.getFill(), fill);
}

} // namespace QN::DOM::ShapePropsTest
