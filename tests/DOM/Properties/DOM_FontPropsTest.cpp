#include "DOM/Properties/DOM_FontProps.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FontPropsTest {

using namespace Test;

namespace {

FontProps makeFullFontProps()
{
    return with<FontProps>([](FontProps& props) {
        props.setFont(std::string("Courier New"));
        props.setSize(10.5F);
        props.setScriptPosition(ScriptPosition::Subscript);
        props.setBold(true);
        props.setItalic(false);
    });
}

} // namespace

static_assert(sizeof(ScriptPosition) == 1);
static_assert(std::is_same_v<std::underlying_type_t<ScriptPosition>, unsigned char>);

TEST(FontPropsTest, EveryMemberIsAbsentByDefault)
{
    const FontProps props;
    EXPECT_EQ(props.getFont().which(), 0);
    EXPECT_FALSE(props.getSize());
    EXPECT_FALSE(props.getScriptPosition());
    EXPECT_FALSE(props.getBold());
    EXPECT_FALSE(props.getItalic());
    EXPECT_EQ(props, FontProps());
}

TEST(FontPropsTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(FontProps()),
              R"({"_font":{"which":0,"data":{}},"_fontSize":{"hasValue":false},)"
              R"("_scriptPosition":{"hasValue":false},"_bold":{"value":-1},"_italic":{"value":-1}})");
}

TEST(FontPropsTest, ASetMemberIsReadBackAndPersists)
{
    const FontProps props = makeFullFontProps();
    EXPECT_EQ(boost::get<std::string>(props.getFont()), "Courier New");
    EXPECT_SAME(props.getSize(), 10.5F);
    EXPECT_SAME(props.getScriptPosition(), ScriptPosition::Subscript);
    EXPECT_EQ(props.getBold(), BoolOpt(true));
    EXPECT_EQ(props.getItalic(), BoolOpt(false));
    EXPECT_EQ(toJson(props),
              R"({"_font":{"which":1,"data":"Courier New"},"_fontSize":{"hasValue":true,"value":10.5},)"
              R"("_scriptPosition":{"hasValue":true,"value":2},"_bold":{"value":1},"_italic":{"value":0}})");
    expectPersists(props);
    expectPersists(FontProps());
    expectCopiesAndMoves(props);
}

TEST(FontPropsTest, AFontOfTheThemePersistsAsItsNumber)
{
    const FontProps props = with<FontProps>([](FontProps& font) { font.setFont(ThemeFontId::Minor); });
    EXPECT_EQ(toJson(props).substr(0, 30), R"({"_font":{"which":2,"data":1},)");
    expectPersists(props);
    expectPersists(with<FontProps>([](FontProps& font) { font.setFont(static_cast<ThemeFontId>(77)); }));
}

TEST(FontPropsTest, AnUnknownScriptPositionPassesThroughUnchanged)
{
    expectPersists(
        with<FontProps>([](FontProps& font) { font.setScriptPosition(static_cast<ScriptPosition>(255)); }));
}

TEST(FontPropsTest, AnAlternativeOfTheFontThatDoesNotExistIsRefused)
{
    std::string json = toJson(FontProps());
    json.replace(json.find("\"which\":0"), 9, "\"which\":3");
    EXPECT_EQ(loadError<FontProps>(json), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(FontPropsTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<FontProps>({
        FontProps(),
        with<FontProps>([](FontProps& p) { p.setItalic(false); }),
        with<FontProps>([](FontProps& p) { p.setItalic(true); }),
        with<FontProps>([](FontProps& p) { p.setBold(false); }),
        with<FontProps>([](FontProps& p) { p.setScriptPosition(ScriptPosition::Baseline); }),
        with<FontProps>([](FontProps& p) { p.setSize(1.0F); }),
        with<FontProps>([](FontProps& p) { p.setSize(2.0F); }),
        with<FontProps>([](FontProps& p) { p.setFont(std::string("Z")); }),
        with<FontProps>([](FontProps& p) { p.setFont(std::string("a")); }),
        with<FontProps>([](FontProps& p) { p.setFont(ThemeFontId::Major); }),
    });
}

TEST(FontPropsTest, ANaNSizeIsUnequalToItselfAndLastInPools)
{
    const auto nan =
        with<FontProps>([](FontProps& p) { p.setSize(std::numeric_limits<float>::quiet_NaN()); });
    const auto number = with<FontProps>([](FontProps& p) { p.setSize(1e30F); });
    EXPECT_NE(nan, nan);
    EXPECT_FALSE(nan < number);
    EXPECT_FALSE(number < nan);
    EXPECT_TRUE(nan.compare(number, NanOrder::Last) > 0);
    EXPECT_TRUE(nan.compare(nan, NanOrder::Last) == 0);
}

TEST(FontPropsTest, OverrideTakesWhatTheOtherSays)
{
    FontProps target = makeFullFontProps();
    override(target, FontProps());
    EXPECT_EQ(target, makeFullFontProps());

    override(target, with<FontProps>([](FontProps& p) {
                 p.setFont(ThemeFontId::Major);
                 p.setBold(false);
             }));
    EXPECT_SAME(target.getFont(), FontProps::Font(ThemeFontId::Major));
    EXPECT_EQ(target.getBold(), BoolOpt(false));
    EXPECT_SAME(target.getSize(), 10.5F);
}

TEST(FontPropsTest, ExcludingASetFromItselfLeavesNothing)
{
    FontProps target = makeFullFontProps();
    exclude(target, makeFullFontProps());
    EXPECT_EQ(target, FontProps());
}

TEST(FontPropsTest, IntersectKeepsWhatBothSayAlike)
{
    FontProps target = makeFullFontProps();
    intersect(target, with<FontProps>([](FontProps& p) {
                  p.setFont(std::string("Courier New"));
                  p.setSize(11.0F);
                  p.setBold(true);
              }));
    EXPECT_EQ(target, with<FontProps>([](FontProps& p) {
                  p.setFont(std::string("Courier New"));
                  p.setBold(true);
              }));
}

TEST(FontPropsTest, RebaseOfAnOptionalHoldsAbsentAndDefaultForAgreeingWhereATargetIsPresent)
{
    const auto withSize = [](float size) { return with<FontProps>([&](FontProps& p) { p.setSize(size); }); };
    FontProps target = withSize(5.0F);
    rebaseProperty(target, withSize(7.0F), FontProps(), withSize(0.0F));
    EXPECT_SAME(target.getSize(), 7.0F);

    target = FontProps();
    rebaseProperty(target, withSize(7.0F), FontProps(), withSize(0.0F));
    EXPECT_FALSE(target.getSize());

    target = withSize(5.0F);
    rebaseProperty(target, withSize(7.0F), FontProps(), withSize(3.0F));
    EXPECT_SAME(target.getSize(), 5.0F);
}

TEST(FontPropsTest, RebaseClearsWhereTheReferencesAgreeAndTheReplacementIsAbsent)
{
    FontProps target = makeFullFontProps();
    rebaseProperty(target, FontProps(), FontProps(), FontProps());
    EXPECT_EQ(target, FontProps());
}

TEST(FontPropsTest, RebaseTakesNoUnsetReferenceForFalse)
{
    FontProps target = makeFullFontProps();
    const auto isBold = [](bool bold) { return with<FontProps>([&](FontProps& p) { p.setBold(bold); }); };
    rebaseProperty(target, isBold(false), FontProps(), isBold(false));
    EXPECT_EQ(target.getBold(), BoolOpt(true));
}

} // namespace QN::DOM::FontPropsTest
