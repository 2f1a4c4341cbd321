#include "DOM/Properties/DOM_NamedTextStyle.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NamedTextStyleTest {

using namespace Test;

namespace {

NamedTextStyle makeFullStyle()
{
    NamedTextStyle style(SomeUUID);
    style.setName(std::string("Quote"));
    style.setParaProps(makeParaProps(1.0F));
    style.setRunProps(makeRunProps(2.0F));
    style.setParentUUID(OtherUUID);
    style.getNumRef() = std::make_unique<NumberingRef>();
    style.getNumRef()->setLevel(3UL);
    style.setNextParagraphStyleUUID(SomeUUID);
    return style;
}

} // namespace

static_assert(std::is_base_of_v<UUIDable, NamedTextStyle>);
static_assert(!Ordered<NamedTextStyle>);
static_assert(std::is_same_v<NamedStyleName, boost::variant<boost::blank, PredefinedStyleName, std::string>>);

TEST(NamedTextStyleTest, ANewStyleHasAnIdentityAndSaysNothing)
{
    const NamedTextStyle style;
    EXPECT_TRUE(style.getUUID());
    EXPECT_NE(style.getUUID(), NamedTextStyle().getUUID());
    EXPECT_EQ(style.getName().which(), 0);
    EXPECT_EQ(style.getParaProps(), nullptr);
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_EQ(style.getNumRef(), nullptr);
    EXPECT_FALSE(style.getNextParagraphStyleUUID());
}

TEST(NamedTextStyleTest, TheBaseIsWrittenFirstAndThenEachKeyInOrder)
{
    EXPECT_EQ(toJson(NamedTextStyle(SomeUUID)),
              R"({"value0":{"_uuid":{"_id":")" + SomeUUID.toString() +
                  R"("}},"_name":{"which":0,"data":{}},"_paraProps":{"ptr_wrapper":{"id":0}},)"
                  R"("_runProps":{"ptr_wrapper":{"id":0}},)"
                  R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
                  R"("_numRef":{"ptr_wrapper":{"valid":0}},)"
                  R"("_nextParagraphStyleUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TEST(NamedTextStyleTest, ASetMemberIsReadBackAndPersists)
{
    const NamedTextStyle style = makeFullStyle();
    EXPECT_EQ(style.getUUID(), SomeUUID);
    EXPECT_EQ(boost::get<std::string>(style.getName()), "Quote");
    EXPECT_EQ(*style.getParaProps(), *makeParaProps(1.0F));
    EXPECT_EQ(*style.getRunProps(), *makeRunProps(2.0F));
    EXPECT_EQ(style.getParentUUID(), OtherUUID);
    EXPECT_SAME(style.getNumRef()->getLevel(), 3UL);
    EXPECT_EQ(style.getNextParagraphStyleUUID(), SomeUUID);
    expectPersists(style);
    expectPersists(NamedTextStyle());
    expectCopiesAndMoves(style);
}

TEST(NamedTextStyleTest, EachKindOfNamePersistsUnderItsIndex)
{
    NamedTextStyle style(SomeUUID);
    style.setName(PredefinedStyleName::Hyperlink);
    EXPECT_NE(toJson(style).find(R"("_name":{"which":1,"data":25})"), std::string::npos);
    expectPersists(style);
    style.setName(std::string());
    EXPECT_NE(toJson(style).find(R"("_name":{"which":2,"data":""})"), std::string::npos);
    expectPersists(style);
    style.setName(static_cast<PredefinedStyleName>(255));
    EXPECT_NE(toJson(style).find(R"("_name":{"which":1,"data":255})"), std::string::npos);
    expectPersists(style);
}

TEST(NamedTextStyleTest, AKindOfNameThatDoesNotExistIsRefused)
{
    std::string json = toJson(NamedTextStyle(SomeUUID));
    const std::string blank = R"("_name":{"which":0,)";
    json.replace(json.find(blank), blank.size(), R"("_name":{"which":3,)");
    EXPECT_EQ(loadError<NamedTextStyle>(json), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(NamedTextStyleTest, ACopyHasTheIdentityOfItsSourceAndItsOwnNumbering)
{
    const NamedTextStyle style = makeFullStyle();
    NamedTextStyle copy(style);
    EXPECT_EQ(copy, style);
    EXPECT_NE(copy.getNumRef(), style.getNumRef());
    EXPECT_EQ(copy.getParaProps(), style.getParaProps());
    copy.getNumRef()->setLevel(7UL);
    EXPECT_SAME(style.getNumRef()->getLevel(), 3UL);
    EXPECT_NE(copy, style);
}

TEST(NamedTextStyleTest, AStyleMayBeItsOwnParent)
{
    NamedTextStyle style(SomeUUID);
    style.setParentUUID(SomeUUID);
    style.setNextParagraphStyleUUID(SomeUUID);
    expectPersists(style);
    expectCopiesAndMoves(style);
}

TEST(NamedTextStyleTest, LoadingReplacesWhatWasThere)
{
    NamedTextStyle style = makeFullStyle();
    loadJson(toJson(NamedTextStyle(OtherUUID)), style);
    EXPECT_EQ(style, NamedTextStyle(OtherUUID));
}

TEST(NamedTextStyleTest, EachMemberAndTheIdentityTakePartInEquality)
{
    const auto changed = [](auto change) {
        NamedTextStyle style = makeFullStyle();
        change(style);
        return style;
    };
    EXPECT_EQ(makeFullStyle(), makeFullStyle());
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.setUUID(OtherUUID); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.setName(boost::blank()); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.setParaProps(nullptr); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.setRunProps(makeRunProps(9.0F)); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.setParentUUID(UUID()); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.getNumRef().reset(); }));
    EXPECT_NE(makeFullStyle(), changed([](NamedTextStyle& s) { s.setNextParagraphStyleUUID(UUID()); }));
}

} // namespace QN::DOM::NamedTextStyleTest
