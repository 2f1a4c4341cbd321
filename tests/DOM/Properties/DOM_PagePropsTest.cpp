#include "DOM/Properties/DOM_PageProps.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PagePropsTest {

using namespace Test;

namespace {

std::shared_ptr<const Insets> makeInsets(float left)
{
    return sharedWith<Insets>([&](Insets& insets) { insets.setLeft(left); });
}

PageProps makeFullPageProps()
{
    return with<PageProps>([](PageProps& props) {
        props.setMargins(makeInsets(10.0F));
        props.setWidth(595.0F);
        props.setHeight(842.0F);
        props.setHeaderHeight(36.0F);
        props.setFooterHeight(18.0F);
        props.setFitSettings(0.5F);
        props.setPageNumberFormat(NumberFormatType::LowerRoman);
    });
}

PageProps withFit(PageProps::FitSettings settings)
{
    return with<PageProps>([&](PageProps& props) { props.setFitSettings(std::move(settings)); });
}

} // namespace

TEST(PagePropsTest, EveryMemberIsAbsentByDefault)
{
    const PageProps props;
    EXPECT_EQ(props.getMargins(), nullptr);
    EXPECT_FALSE(props.getWidth());
    EXPECT_FALSE(props.getHeight());
    EXPECT_FALSE(props.getHeaderHeight());
    EXPECT_FALSE(props.getFooterHeight());
    EXPECT_EQ(props.getFitSettings().which(), 0);
    EXPECT_FALSE(props.getPageNumberFormat());
}

TEST(PagePropsTest, ADefaultWritesEachKeyInOrderAndTheMarginsUnderInsets)
{
    EXPECT_EQ(toJson(PageProps()),
              R"({"_insets":{"ptr_wrapper":{"id":0}},"_width":{"hasValue":false},)"
              R"("_height":{"hasValue":false},"_headerHeight":{"hasValue":false},)"
              R"("_footerHeight":{"hasValue":false},"_fitSettings":{"which":0,"data":{}},)"
              R"("_pageNumberFormat":{"hasValue":false}})");
}

TEST(PagePropsTest, ASetMemberIsReadBackAndPersists)
{
    const PageProps props = makeFullPageProps();
    EXPECT_EQ(*props.getMargins(), *makeInsets(10.0F));
    EXPECT_SAME(props.getWidth(), 595.0F);
    EXPECT_SAME(props.getHeight(), 842.0F);
    EXPECT_SAME(props.getHeaderHeight(), 36.0F);
    EXPECT_SAME(props.getFooterHeight(), 18.0F);
    EXPECT_EQ(boost::get<float>(props.getFitSettings()), 0.5F);
    EXPECT_SAME(props.getPageNumberFormat(), NumberFormatType::LowerRoman);
    expectPersists(props);
    expectPersists(PageProps());
    expectCopiesAndMoves(props);
}

TEST(PagePropsTest, EachKindOfFitSettingsPersistsUnderItsIndex)
{
    EXPECT_NE(toJson(withFit(2.0F)).find(R"("_fitSettings":{"which":1,"data":2.0})"), std::string::npos);
    const auto fit = with<FitToPages>([](FitToPages& f) { f.setValueByTall(3UL); });
    EXPECT_NE(toJson(withFit(fit))
                  .find(R"("_fitSettings":{"which":2,"data":{"_valueByWide":)"
                        R"({"hasValue":false},"_valueByTall":{"hasValue":true,"value":3}}})"),
              std::string::npos);
    expectPersists(withFit(2.0F));
    expectPersists(withFit(fit));
    EXPECT_NE(withFit(fit), withFit(FitToPages()));
}

TEST(PagePropsTest, ACopySharesTheMarginsAndNothingElse)
{
    const PageProps source = makeFullPageProps();
    PageProps copy(source);
    EXPECT_EQ(copy.getMargins(), source.getMargins());
    copy.setMargins(nullptr);
    copy.setWidth(1.0F);
    copy.setFitSettings(FitToPages());
    EXPECT_EQ(source, makeFullPageProps());
}

TEST(PagePropsTest, OverrideMergesMarginsAndReplacesFitSettingsThatAreSaid)
{
    PageProps target = makeFullPageProps();
    override(target, with<PageProps>([](PageProps& props) {
                 props.setMargins(sharedWith<Insets>([](Insets& insets) { insets.setTop(5.0F); }));
                 props.setWidth(1.0F);
             }));
    PageProps expected = makeFullPageProps();
    expected.setWidth(1.0F);
    expected.setMargins(sharedWith<Insets>([](Insets& insets) {
        insets.setLeft(10.0F);
        insets.setTop(5.0F);
    }));
    EXPECT_EQ(target, expected);
    override(target, withFit(FitToPages()));
    EXPECT_EQ(target.getFitSettings().which(), 2);
}

TEST(PagePropsTest, ExcludeAndIntersectGoByMember)
{
    PageProps target = makeFullPageProps();
    exclude(target, makeFullPageProps());
    EXPECT_EQ(target, PageProps());

    target = makeFullPageProps();
    PageProps other = makeFullPageProps();
    other.setFitSettings(0.75F);
    other.setHeight(1.0F);
    intersect(target, other);
    PageProps expected = makeFullPageProps();
    expected.setFitSettings(boost::blank());
    expected.setHeight(boost::none);
    EXPECT_EQ(target, expected);
}

TEST(PagePropsTest, RebaseTakesFitSettingsOnlyWhereTheReferencesAreTheSame)
{
    PageProps target = withFit(1.0F);
    rebaseProperty(target, withFit(2.0F), withFit(0.0F), PageProps());
    EXPECT_EQ(boost::get<float>(target.getFitSettings()), 1.0F);
    rebaseProperty(target, withFit(2.0F), withFit(0.5F), withFit(0.5F));
    EXPECT_EQ(boost::get<float>(target.getFitSettings()), 2.0F);
    rebaseProperty(target, PageProps(), PageProps(), PageProps());
    EXPECT_EQ(target.getFitSettings().which(), 0);
    EXPECT_EQ(*target.getMargins(), Insets());
}

} // namespace QN::DOM::PagePropsTest
