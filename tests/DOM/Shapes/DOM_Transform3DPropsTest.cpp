#include "DOM/Shapes/DOM_Transform3DProps.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::Transform3DPropsTest {

using namespace Test;

namespace {

Transform3DProps makeProps()
{
    Transform3DProps props;
    props.setRotationX(15);
    props.setRotationY(-20);
    props.setRotationZ(360);
    props.setRightAngledAxes(true);
    props.setPerspectiveProjection(false);
    props.setPerspective(30.5);
    props.setScaleVector(cinder::Vec3<float>(1.0F, 2.0F, 0.5F));
    props.setTranslation(cinder::Vec3<float>(-1.0F, 0.0F, 3.0F));
    return props;
}

} // namespace

TEST(Transform3DPropsTest, SaysNothingByDefault)
{
    const Transform3DProps props;
    EXPECT_FALSE(props.getRotationX());
    EXPECT_FALSE(props.getRotationY());
    EXPECT_FALSE(props.getRotationZ());
    EXPECT_FALSE(props.isRightAngledAxes());
    EXPECT_FALSE(props.isPerspectiveProjection());
    EXPECT_FALSE(props.getPerspective());
    EXPECT_FALSE(props.getScaleVector());
    EXPECT_FALSE(props.getTranslation());
}

TEST(Transform3DPropsTest, ItsKeysAreNamedOtherwiseThanItsAccessors)
{
    EXPECT_EQ(
        toJson(makeProps()),
        R"({"_rotateXangle":{"hasValue":true,"value":15},"_rotateYangle":{"hasValue":true,"value":-20},)"
        R"("_rotateZangle":{"hasValue":true,"value":360},"_rightAngledAxes":{"value":1},)"
        R"("_perspectiveProjection":{"value":0},"_perspective":{"hasValue":true,"value":30.5},)"
        R"("_scale":{"hasValue":true,"value":{"x":1.0,"y":2.0,"z":0.5}},)"
        R"("_translate":{"hasValue":true,"value":{"x":-1.0,"y":0.0,"z":3.0}}})");
    EXPECT_EQ(toJson(Transform3DProps()),
              R"({"_rotateXangle":{"hasValue":false},"_rotateYangle":{"hasValue":false},)"
              R"("_rotateZangle":{"hasValue":false},"_rightAngledAxes":{"value":-1},)"
              R"("_perspectiveProjection":{"value":-1},"_perspective":{"hasValue":false},)"
              R"("_scale":{"hasValue":false},"_translate":{"hasValue":false}})");
    expectPersists(makeProps());
    expectPersists(Transform3DProps());
}

TEST(Transform3DPropsTest, AccessorsGiveWhatWasSet)
{
    Transform3DProps props = makeProps();
    EXPECT_EQ(*props.getRotationX(), 15);
    EXPECT_EQ(*props.getRotationY(), -20);
    EXPECT_EQ(*props.getRotationZ(), 360);
    EXPECT_EQ(props.isRightAngledAxes(), BoolOpt(true));
    EXPECT_EQ(props.isPerspectiveProjection(), BoolOpt(false));
    EXPECT_EQ(*props.getPerspective(), 30.5);
    EXPECT_EQ(*props.getScaleVector(), cinder::Vec3<float>(1.0F, 2.0F, 0.5F));
    EXPECT_EQ(*props.getTranslation(), cinder::Vec3<float>(-1.0F, 0.0F, 3.0F));
    props.setRotationX(boost::none);
    props.setRotationY(boost::none);
    props.setRotationZ(boost::none);
    props.setRightAngledAxes(boost::none);
    props.setPerspectiveProjection(boost::none);
    props.setPerspective(boost::none);
    props.setScaleVector(boost::none);
    props.setTranslation(boost::none);
    EXPECT_EQ(props, Transform3DProps());
}

TEST(Transform3DPropsTest, EachMemberTakesPartInEquality)
{
    const auto differs = [](auto change) {
        Transform3DProps props = makeProps();
        change(props);
        return props != makeProps();
    };
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setRotationX(16); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setRotationY(16); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setRotationZ(16); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setRightAngledAxes(false); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setPerspectiveProjection(boost::none); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setPerspective(30.0); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setScaleVector(boost::none); }));
    EXPECT_TRUE(differs([](Transform3DProps& props) { props.setTranslation(cinder::Vec3<float>()); }));
}

TEST(Transform3DPropsTest, HasNoOrder)
{
    static_assert(!Ordered<Transform3DProps>);
}

TEST(Transform3DPropsTest, AnIntegerOutsideItsRangeIsRefused)
{
    std::string json = toJson(makeProps());
    json.replace(json.find("15"), 2, "2147483648");
    EXPECT_EQ(loadError<Transform3DProps>(json),
              "rapidjson internal assertion failure: data_.f.flags & kIntFlag");
}

TEST(Transform3DPropsTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(makeProps());
}

} // namespace QN::DOM::Transform3DPropsTest
