#include "DOM/Properties/DOM_PageProps.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

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

PageProps withMargins(std::shared_ptr<const Insets> margins)
{
    return with<PageProps>([&](PageProps& props) { props.setMargins(std::move(margins)); });
}

std::shared_ptr<const Insets> makeInsets(float left, float top)
{
    return sharedWith<Insets>([&](Insets& insets) {
        insets.setLeft(left);
        insets.setTop(top);
    });
}

/// What is said of one optional member, by number; `Absent` for nothing.
using Said = boost::optional<int>;
const Said Absent;

using SetOptional = void (*)(PageProps&, int);

/// Each member that is an optional.
constexpr std::array<SetOptional, 5> SetOptionals{
    [](PageProps& props, int number) { props.setWidth(static_cast<float>(number)); },
    [](PageProps& props, int number) { props.setHeight(static_cast<float>(number)); },
    [](PageProps& props, int number) { props.setHeaderHeight(static_cast<float>(number)); },
    [](PageProps& props, int number) { props.setFooterHeight(static_cast<float>(number)); },
    [](PageProps& props, int number) { props.setPageNumberFormat(static_cast<NumberFormatType>(number)); },
};

PageProps withOptional(SetOptional set, Said said)
{
    return with<PageProps>([&](PageProps& props) {
        if (said) {
            set(props, *said);
        }
    });
}

/// Calls `check(make)` for each optional member; `make` gives a set that says at most this member.
template <class Check>
void forEachOptional(Check check)
{
    for (std::size_t index = 0; index < SetOptionals.size(); ++index) {
        SCOPED_TRACE(index);
        check([&](Said said) { return withOptional(SetOptionals[index], said); });
    }
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

TEST(PagePropsTest, EachMemberTakesPartInEquality)
{
    const auto expectMatters = [](auto change) {
        PageProps changed = makeFullPageProps();
        change(changed);
        EXPECT_NE(changed, makeFullPageProps());
    };
    expectMatters([](PageProps& props) { props.setMargins(makeInsets(11.0F)); });
    expectMatters([](PageProps& props) { props.setMargins(nullptr); });
    expectMatters([](PageProps& props) { props.setWidth(boost::none); });
    expectMatters([](PageProps& props) { props.setHeight(boost::none); });
    expectMatters([](PageProps& props) { props.setHeaderHeight(boost::none); });
    expectMatters([](PageProps& props) { props.setFooterHeight(boost::none); });
    expectMatters([](PageProps& props) { props.setFitSettings(0.75F); });
    expectMatters([](PageProps& props) { props.setPageNumberFormat(NumberFormatType::Decimal); });
    EXPECT_EQ(withMargins(makeInsets(1.0F)), withMargins(makeInsets(1.0F)));
}

TEST(PagePropsTest, OverrideTakesEachOptionalThatIsSaid)
{
    forEachOptional([](auto make) {
        const auto overridden = [&](Said target, Said other) {
            PageProps props = make(target);
            override(props, make(other));
            return props;
        };
        EXPECT_EQ(overridden(1, 2), make(2));
        EXPECT_EQ(overridden(1, Absent), make(1));
        EXPECT_EQ(overridden(Absent, 2), make(2));
    });
}

TEST(PagePropsTest, ExcludeDropsEachOptionalThatIsSaidAlike)
{
    forEachOptional([](auto make) {
        const auto excluded = [&](Said target, Said other) {
            PageProps props = make(target);
            exclude(props, make(other));
            return props;
        };
        EXPECT_EQ(excluded(1, 1), make(Absent));
        EXPECT_EQ(excluded(1, 2), make(1));
        EXPECT_EQ(excluded(1, Absent), make(1));
    });
}

TEST(PagePropsTest, IntersectKeepsEachOptionalThatIsSaidAlike)
{
    forEachOptional([](auto make) {
        const auto intersected = [&](Said target, Said other) {
            PageProps props = make(target);
            intersect(props, make(other));
            return props;
        };
        EXPECT_EQ(intersected(1, 1), make(1));
        EXPECT_EQ(intersected(1, 2), make(Absent));
        EXPECT_EQ(intersected(1, Absent), make(Absent));
        EXPECT_EQ(intersected(Absent, 1), make(Absent));
    });
}

TEST(PagePropsTest, RebaseTakesEachOptionalWhoseReferencesAgree)
{
    forEachOptional([](auto make) {
        const auto expectRebased = [&](Said target, Said replacement, Said left, Said right, Said result) {
            PageProps props = make(target);
            rebaseProperty(props, make(replacement), make(left), make(right));
            PageProps expected = make(result);
            expected.setMargins(std::make_shared<const Insets>()); // rebased margins are never null
            EXPECT_EQ(props, expected) << toJson(props);
        };
        expectRebased(1, 2, 3, 3, 2);
        expectRebased(1, 2, 3, 4, 1);
        expectRebased(1, Absent, 3, 3, Absent);
        expectRebased(Absent, 2, Absent, Absent, 2);
        // An absent reference agrees with the default, but only to replace what is there.
        expectRebased(1, 2, Absent, 0, 2);
        expectRebased(1, 2, 0, Absent, 2);
        expectRebased(1, 2, Absent, 3, 1);
        expectRebased(1, Absent, Absent, 0, 1);
        expectRebased(Absent, 2, Absent, 0, Absent);
    });
}

TEST(PagePropsTest, MarginsAreExcludedIntersectedAndRebasedSideBySide)
{
    PageProps target = withMargins(makeInsets(1.0F, 2.0F));
    exclude(target, withMargins(makeInsets(1.0F)));
    EXPECT_EQ(target, withMargins(sharedWith<Insets>([](Insets& insets) { insets.setTop(2.0F); })));

    target = withMargins(makeInsets(1.0F, 2.0F));
    intersect(target, withMargins(makeInsets(1.0F, 3.0F)));
    EXPECT_EQ(target, withMargins(makeInsets(1.0F)));

    target = withMargins(makeInsets(1.0F, 2.0F));
    rebaseProperty(target, withMargins(makeInsets(5.0F, 6.0F)), withMargins(makeInsets(7.0F, 8.0F)),
                   withMargins(makeInsets(7.0F, 9.0F)));
    EXPECT_EQ(target, withMargins(makeInsets(5.0F, 2.0F)));
}

TEST(PagePropsTest, IntersectDropsMarginsThatOneSideDoesNotState)
{
    PageProps target = withMargins(makeInsets(1.0F));
    intersect(target, PageProps());
    EXPECT_EQ(target, PageProps());
    intersect(target, withMargins(makeInsets(1.0F)));
    EXPECT_EQ(target, PageProps());
}

TEST(PagePropsTest, RebaseTakesMarginsWholeWhereTheReferencesAreTheSame)
{
    PageProps target = withMargins(makeInsets(1.0F, 2.0F));
    rebaseProperty(target, withMargins(makeInsets(5.0F)), PageProps(), PageProps());
    EXPECT_EQ(target, withMargins(makeInsets(5.0F)));
    rebaseProperty(target, PageProps(), withMargins(makeInsets(7.0F)), withMargins(makeInsets(7.0F)));
    EXPECT_EQ(target, withMargins(std::make_shared<const Insets>()));
}

} // namespace QN::DOM::PagePropsTest
