#include "DOM/Shapes/DOM_Shape.h"

#include <gtest/gtest.h>

#include <string>

#include "DOM/DOM_Paragraph.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Properties/PaintSamples.h"
#include "DOM/Shapes/DOM_CustomGeometry.h"
#include "DOM/Shapes/DOM_PresetGeometry.h"
#include "DOM/Shapes/DOM_ShapeProps.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ShapeTest {

using namespace Test;

namespace {

ShapeStyle makeStyle(float width)
{
    ShapeProps props;
    props.setExtent(Size2D<float>(width, 1.0F));
    ShapeStyle style;
    style.setShapeProps(std::make_shared<const ShapeProps>(props));
    return style;
}

Shape makeFullShape()
{
    Shape shape;
    shape.getBlocks().push_back(std::make_unique<Paragraph>());
    shape.getSharedStyle() = SharedObjectFactory().create(makeStyle(7.0F));
    shape.setGeometry(std::make_unique<PresetGeometry>("star"));
    shape.setShapeType(ShapeType::TextBox);
    return shape;
}

} // namespace

TEST(ShapeTest, IsEmptyByDefault)
{
    const Shape shape;
    EXPECT_TRUE(shape.getBlocks().empty());
    EXPECT_FALSE(shape.getSharedStyle());
    EXPECT_EQ(shape.getGeometry(), nullptr);
    EXPECT_FALSE(shape.getShapeType());
    EXPECT_EQ(toJson(shape), R"({"value0":{},"_text":{"_blocks":[],"_tombstones":{"_tombstones":[]}},)"
                             R"("_style":{"id":0},"_geometry":{"polymorphic_id":0},)"
                             R"("_shapeType":{"hasValue":false}})");
}

TEST(ShapeTest, PersistsItsMembersInOrder)
{
    Shape shape;
    shape.getSharedStyle() = SharedObjectFactory().create([] {
        ShapeStyle style;
        style.setParentUUID(UUID("219be34f-66e7-4590-8db5-375443207e49"));
        return style;
    }());
    shape.setGeometry(std::make_unique<PresetGeometry>("star"));
    shape.setShapeType(ShapeType::Connector);
    const std::string start =
        R"({"value0":{},"_text":{"_blocks":[],"_tombstones":{"_tombstones":[]}},)"
        R"("_style":{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_style":{)"
        R"("_shapeProps":{"ptr_wrapper":{"id":0}},)"
        R"("_parentUUID":{"_id":"219be34f-66e7-4590-8db5-375443207e49"}}}}}},)"
        R"("_geometry":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::PresetGeometry",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_type":"star",)";
    const std::string end = R"("_shapeType":{"hasValue":true,"value":2}})";
    const std::string json = toJson(shape);
    EXPECT_EQ(json.substr(0, start.size()), start);
    EXPECT_EQ(json.substr(json.size() - end.size()), end);
    expectRoundTrip(shape);
}

TEST(ShapeTest, Persists)
{
    expectPersists(Shape());
    expectPersists(makeFullShape());
}

TEST(ShapeTest, StandsInAFileUnderItsName)
{
    const std::unique_ptr<Block> shape = std::make_unique<Shape>();
    const std::string start = R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::Shape",)"
                              R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_text":{)";
    EXPECT_EQ(toJson(shape).substr(0, start.size()), start);
    expectPersists(shape);
}

TEST(ShapeTest, AnyTypePassesThrough)
{
    static_assert(sizeof(ShapeType) == 1);
    Shape shape;
    shape.setShapeType(static_cast<ShapeType>(255));
    expectRoundTrip(shape);
}

TEST(ShapeTest, WithoutAStyleItHasTheSameEmptyOneEachTime)
{
    const Shape shape;
    EXPECT_EQ(shape.getStyle(), ShapeStyle());
    EXPECT_EQ(&shape.getStyle(), &shape.getStyle());
    EXPECT_EQ(&shape.getStyle(), &Shape().getStyle());
    EXPECT_FALSE(shape.getSharedStyle()) << "the handle itself stays null";
}

TEST(ShapeTest, GivesTheStyleOfItsHandle)
{
    const Shape shape = makeFullShape();
    EXPECT_EQ(shape.getStyle(), makeStyle(7.0F));
    EXPECT_EQ(&shape.getStyle(), &shape.getSharedStyle()->get());
}

TEST(ShapeTest, ItsBlocksAreThoseOfItsText)
{
    Shape shape;
    shape.getBlocks().push_back(std::make_unique<Paragraph>());
    EXPECT_EQ(shape.getTextWithTombstones().getBlocks().size(), 1U);
    const Shape& constShape = shape;
    EXPECT_EQ(constShape.getBlocks().size(), 1U);
    EXPECT_EQ(&constShape.getBlocks().front(), shape.getBlocks().front().get());
    EXPECT_EQ(&constShape.getTextWithTombstones(), &shape.getTextWithTombstones());
}

TEST(ShapeTest, TakesOwnershipOfItsGeometry)
{
    Shape shape;
    auto geometry = std::make_unique<PresetGeometry>("star");
    const Geometry* const address = geometry.get();
    shape.setGeometry(std::move(geometry));
    EXPECT_EQ(shape.getGeometry(), address);
    shape.setGeometry(nullptr);
    EXPECT_EQ(shape.getGeometry(), nullptr);
}

TEST(ShapeTest, EachMemberTakesPartInEqualityByContent)
{
    EXPECT_EQ(makeFullShape(), makeFullShape());
    const auto differs = [](auto change) {
        Shape shape = makeFullShape();
        change(shape);
        return shape != makeFullShape();
    };
    EXPECT_TRUE(differs([](Shape& shape) { shape.getBlocks().clear(); }));
    EXPECT_TRUE(differs([](Shape& shape) {
        shape.getTextWithTombstones().getTombstones().insertElement(
            CollaborationUtils::IndexIncludingTombstones(0));
        shape.getTextWithTombstones().getTombstones().replaceWithTombstone(
            CollaborationUtils::IndexIncludingTombstones(0));
    }));
    EXPECT_TRUE(differs([](Shape& shape) { shape.getSharedStyle() = nullptr; }));
    EXPECT_TRUE(differs(
        [](Shape& shape) { shape.getSharedStyle() = SharedObjectFactory().create(makeStyle(8.0F)); }));
    EXPECT_TRUE(differs([](Shape& shape) { shape.setGeometry(nullptr); }));
    EXPECT_TRUE(differs([](Shape& shape) { shape.setGeometry(std::make_unique<PresetGeometry>("cloud")); }));
    EXPECT_TRUE(differs([](Shape& shape) { shape.setGeometry(std::make_unique<CustomGeometry>()); }));
    EXPECT_TRUE(differs([](Shape& shape) { shape.setShapeType(ShapeType::Shape); }));
}

TEST(ShapeTest, CopiesAreDeepButForTheStyleAndKeepTheIdentity)
{
    const Shape source = makeFullShape();
    expectCopiesAndMoves(source);
    expectCopiesAndMoves(Shape());
    const Shape copy = makeCopy(source);
    EXPECT_EQ(copy.getID(), source.getID());
    EXPECT_EQ(copy.getSharedStyle(), source.getSharedStyle());
    EXPECT_NE(copy.getGeometry(), source.getGeometry());
    EXPECT_NE(&copy.getBlocks().front(), &source.getBlocks().front());
    Shape assigned;
    assigned = source;
    EXPECT_EQ(assigned.getID(), source.getID());
    EXPECT_EQ(cloneUnique<Block>(source)->getID(), source.getID());
    EXPECT_EQ(cloneShared<Block>(source)->getID(), source.getID());
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<Block>(source), source));
    EXPECT_NE(makeFullShape().getID(), source.getID());
}

TEST(ShapeTest, AChangedCopyLeavesItsSourceAsItWas)
{
    const Shape source = makeFullShape();
    Shape copy(source);
    copy.getBlocks().clear();
    copy.setGeometry(nullptr);
    copy.getSharedStyle() = nullptr;
    EXPECT_EQ(source, makeFullShape());
}

TEST(ShapeTest, AShapeMayStandInTheTextOfAShape)
{
    Shape outer;
    outer.getBlocks().push_back(std::make_unique<Shape>(makeFullShape()));
    outer.getBlocks().push_back(nullptr);
    expectRoundTrip(outer);
    EXPECT_EQ(Shape(outer), outer);
}

TEST(ShapeTest, MayBeAssignedFromAShapeOfItsOwnText)
{
    const Shape inner = makeFullShape();
    Shape shape;
    shape.getBlocks().push_back(std::make_unique<Shape>(inner));
    const Shape& read = shape;
    shape = dynamic_cast<const Shape&>(read.getBlocks()[0]);
    EXPECT_EQ(shape, inner);
    EXPECT_EQ(shape.getID(), inner.getID());
}

TEST(ShapeTest, HasNoOrder)
{
    static_assert(!Ordered<Shape>);
}

} // namespace QN::DOM::ShapeTest
