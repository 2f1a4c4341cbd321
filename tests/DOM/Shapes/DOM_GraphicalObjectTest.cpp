#include "DOM/Shapes/DOM_GraphicalObject.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "DOM/Charts/DOM_ChartSpace.h"
#include "DOM/Properties/PaintSamples.h"
#include "DOM/Shapes/DOM_Picture.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::GraphicalObjectTest {

using namespace Test;

namespace {

Picture makePicture(const std::string& bytes)
{
    return Picture(std::make_shared<const std::string>(bytes));
}

} // namespace

TEST(GraphicalObjectTest, TheFamilyStandsInItsOrder)
{
    static_assert(std::is_same_v<GraphicalObject::Types, TypeList<Picture, ChartSpace>>);
    static_assert(std::is_abstract_v<GraphicalObject>);
    static_assert(std::is_base_of_v<IDHolder, GraphicalObject>);
}

TEST(GraphicalObjectTest, EachClassStandsInAFileUnderItsName)
{
    const std::unique_ptr<GraphicalObject> picture = std::make_unique<Picture>();
    EXPECT_EQ(toJson(picture),
              R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::Picture",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_pictureData":{"ptr_wrapper":{"id":0}}}}}})");
    expectPersists(picture);
    const std::unique_ptr<GraphicalObject> chartSpace = std::make_unique<ChartSpace>();
    const std::string start = R"({"object":{"polymorphic_id":2147483649,)"
                              R"("polymorphic_name":"QN::DOM::ChartSpace","ptr_wrapper":{"valid":1,)"
                              R"("data":{"value0":{},)";
    EXPECT_EQ(toJson(chartSpace).substr(0, start.size()), start);
    expectRoundTrip(chartSpace);
    expectPersists(std::unique_ptr<GraphicalObject>());
}

TEST(GraphicalObjectTest, EqualityLooksAtClassAndContentAndNotAtIdentity)
{
    EXPECT_TRUE(areDeeplyEqual(makePicture("a"), makePicture("a")));
    EXPECT_FALSE(areDeeplyEqual(makePicture("a"), makePicture("b")));
    EXPECT_FALSE(areDeeplyEqual(Picture(), ChartSpace()));
    EXPECT_FALSE(areDeeplyEqual(ChartSpace(), Picture()));
    EXPECT_TRUE(areDeeplyEqual(ChartSpace(), ChartSpace()));
}

TEST(GraphicalObjectTest, ALoadedObjectHasAnIdentityOfItsOwn)
{
    const std::unique_ptr<GraphicalObject> source = std::make_unique<Picture>(makePicture("a"));
    const auto loaded = fromJson<std::unique_ptr<GraphicalObject>>(toJson(source));
    EXPECT_TRUE(areDeeplyEqual(*loaded, *source));
    EXPECT_NE(loaded->getID(), source->getID());
}

TEST(GraphicalObjectTest, AClonedObjectHasClassContentAndIdentityOfItsSource)
{
    const Picture picture = makePicture("a");
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<GraphicalObject>(picture), picture));
    EXPECT_EQ(cloneShared<GraphicalObject>(picture)->getID(), picture.getID());
    const ChartSpace chartSpace;
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<GraphicalObject>(chartSpace), chartSpace));
    EXPECT_EQ(cloneShared<GraphicalObject>(chartSpace)->getID(), chartSpace.getID());
}

TEST(GraphicalObjectTest, AVisitorGetsTheConcreteObject)
{
    const auto isPicture = [](auto& object) {
        return std::is_same_v<std::remove_cvref_t<decltype(object)>, Picture>;
    };
    const std::unique_ptr<GraphicalObject> picture = std::make_unique<Picture>();
    const std::unique_ptr<const GraphicalObject> chartSpace = std::make_unique<ChartSpace>();
    EXPECT_TRUE(visit<bool>(*picture, isPicture));
    EXPECT_FALSE(visit<bool>(*chartSpace, isPicture));
}

} // namespace QN::DOM::GraphicalObjectTest
