#include "DOM/Properties/DOM_LineProps.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "DOM/Properties/PaintSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::LinePropsTest {

using namespace Test;

TEST(LinePropsTest, TheUsualWidthsAreThese)
{
    static_assert(std::is_same_v<decltype(ThinLineWidth), const float>);
    EXPECT_EQ(ThinLineWidth, 0.0576F);
    EXPECT_EQ(MediumLineWidth, 1.00008F);
    EXPECT_EQ(ThickLineWidth, 2.49696F);
}

TEST(LinePropsTest, TheFamilyStandsInItsOrder)
{
    static_assert(std::is_same_v<LineProps::Types, TypeList<RegularLineProps, ThemeLineProps>>);
    static_assert(std::is_abstract_v<LineProps>);
}

TEST(LinePropsTest, EachClassStandsInAFileUnderItsName)
{
    const std::unique_ptr<LineProps> regular = std::make_unique<RegularLineProps>();
    EXPECT_EQ(toJson(regular),
              R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::RegularLineProps",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_width":{"hasValue":false},)"
              R"("_dashStyle":{"hasValue":false},"_head":{"ptr_wrapper":{"id":0}},)"
              R"("_tail":{"ptr_wrapper":{"id":0}},"_color":{"hasValue":false}}}}})");
    expectPersists(regular);
    const std::unique_ptr<LineProps> theme = std::make_unique<ThemeLineProps>();
    EXPECT_EQ(toJson(theme),
              R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::ThemeLineProps",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_indexOpt":{"hasValue":false},)"
              R"("_colorOpt":{"hasValue":false}}}}})");
    expectPersists(theme);
    expectPersists(std::unique_ptr<LineProps>());
}

TEST(LinePropsTest, APointerToAConcreteLineIsWrittenWithItsName)
{
    const std::shared_ptr<const RegularLineProps> line = std::make_shared<RegularLineProps>();
    const std::string start =
        R"({"object":{"polymorphic_id":2147483649,)"
        R"("polymorphic_name":"QN::DOM::RegularLineProps","ptr_wrapper":{"id":2147483649,)";
    EXPECT_EQ(toJson(line).substr(0, start.size()), start);
    expectPersists(line);
}

TEST(LinePropsTest, ALineOfOneClassNeverEqualsALineOfTheOtherAndRegularLinesOrderFirst)
{
    RegularLineProps regular;
    regular.setWidth(100.0F);
    const ThemeLineProps theme;
    EXPECT_FALSE(areDeeplyEqual(regular, theme));
    EXPECT_FALSE(areDeeplyEqual(theme, regular));
    EXPECT_TRUE(areDeeplyLess(regular, theme));
    EXPECT_FALSE(areDeeplyLess(theme, regular));
    EXPECT_TRUE(compareDeeply(theme, regular, NanOrder::Last) > 0);
}

TEST(LinePropsTest, LinesOfOneClassCompareByTheirMembers)
{
    RegularLineProps thin;
    thin.setWidth(ThinLineWidth);
    RegularLineProps thick;
    thick.setWidth(ThickLineWidth);
    EXPECT_TRUE(areDeeplyEqual(thin, RegularLineProps(thin)));
    EXPECT_FALSE(areDeeplyEqual(thin, thick));
    EXPECT_TRUE(areDeeplyLess(thin, thick));
    EXPECT_FALSE(areDeeplyLess(thick, thin));
    EXPECT_FALSE(areDeeplyLess(thin, thin));
}

TEST(LinePropsTest, AClonedLineHasTheClassAndContentOfItsSource)
{
    RegularLineProps regular;
    regular.setWidth(1.0F);
    ThemeLineProps theme;
    theme.setIndex(2);
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<LineProps>(regular), regular));
    EXPECT_TRUE(areDeeplyEqual(*cloneShared<LineProps>(regular), regular));
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<LineProps>(theme), theme));
    EXPECT_TRUE(areDeeplyEqual(*cloneShared<LineProps>(theme), theme));
}

TEST(LinePropsTest, AVisitorGetsTheConcreteLine)
{
    const auto isRegular = [](auto& line) {
        return std::is_same_v<std::remove_cvref_t<decltype(line)>, RegularLineProps>;
    };
    const std::unique_ptr<LineProps> regular = std::make_unique<RegularLineProps>();
    const std::unique_ptr<const LineProps> theme = std::make_unique<ThemeLineProps>();
    EXPECT_TRUE(visit<bool>(*regular, isRegular));
    EXPECT_FALSE(visit<bool>(*theme, isRegular));
}

} // namespace QN::DOM::LinePropsTest
