#include "DOM/DOM_FormatScheme.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_PatternFill.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/ValueChecks.h"
#include "Support/AllocationCount.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FormatSchemeTest {

using namespace Test;

namespace {

std::unique_ptr<RegularLineProps> makeLine(float width)
{
    auto line = std::make_unique<RegularLineProps>();
    line->setWidth(width);
    return line;
}

FormatScheme makeScheme()
{
    FormatScheme scheme;
    scheme.setName("name");
    scheme.getFills().push_back(std::make_unique<SolidFill>());
    scheme.getFills().push_back(std::make_unique<NoFill>());
    scheme.getLinePropsContainer().push_back(makeLine(1.0F));
    scheme.getLinePropsContainer().push_back(makeLine(2.0F));
    scheme.getEffects().push_back(std::make_unique<Effect>());
    scheme.getBackgroundFills().push_back(std::make_unique<PatternFill>());
    return scheme;
}

} // namespace

TEST(FormatSchemeTest, IsEmptyByDefault)
{
    EXPECT_EQ(toJson(FormatScheme()),
              R"({"_name":"","_fills":[],"_lineProps":[],"_effects":[],"_backgroundFills":[]})");
    expectPersists(FormatScheme());
}

TEST(FormatSchemeTest, FillsStandUnderTheirNamesAndLinesAndEffectsAsPlainPointers)
{
    EXPECT_EQ(
        toJson(makeScheme()),
        R"({"_name":"name",)"
        R"("_fills":[{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::SolidFill",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_color":{"hasValue":false}}}},)"
        R"({"polymorphic_id":2147483650,"polymorphic_name":"QN::DOM::NoFill",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}}],)"
        R"("_lineProps":[{"ptr_wrapper":{"valid":1,"data":{"value0":{},)"
        R"("_width":{"hasValue":true,"value":1.0},"_dashStyle":{"hasValue":false},)"
        R"("_head":{"ptr_wrapper":{"id":0}},"_tail":{"ptr_wrapper":{"id":0}},"_color":{"hasValue":false}}}},)"
        R"({"ptr_wrapper":{"valid":1,"data":{"value0":{},)"
        R"("_width":{"hasValue":true,"value":2.0},"_dashStyle":{"hasValue":false},)"
        R"("_head":{"ptr_wrapper":{"id":0}},"_tail":{"ptr_wrapper":{"id":0}},)"
        R"("_color":{"hasValue":false}}}}],)"
        R"("_effects":[{"ptr_wrapper":{"valid":1,"data":{}}}],)"
        R"("_backgroundFills":[{"polymorphic_id":2147483651,"polymorphic_name":"QN::DOM::PatternFill",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}}]})");
    expectPersists(makeScheme());
}

TEST(FormatSchemeTest, NullElementsPersist)
{
    FormatScheme scheme;
    scheme.getFills().push_back(nullptr);
    scheme.getLinePropsContainer().push_back(nullptr);
    scheme.getEffects().push_back(nullptr);
    scheme.getBackgroundFills().push_back(nullptr);
    EXPECT_EQ(toJson(scheme), R"({"_name":"","_fills":[{"polymorphic_id":0}],)"
                              R"("_lineProps":[{"ptr_wrapper":{"valid":0}}],)"
                              R"("_effects":[{"ptr_wrapper":{"valid":0}}],)"
                              R"("_backgroundFills":[{"polymorphic_id":0}]})");
    expectPersists(scheme);
    EXPECT_EQ(FormatScheme(scheme), scheme);
    EXPECT_NE(scheme, makeScheme());
}

TEST(FormatSchemeTest, AConstSchemeGivesItsListsForReadingOnly)
{
    const FormatScheme scheme = makeScheme();
    static_assert(std::is_same_v<decltype(scheme.getFills()[0]), const Fill&>);
    static_assert(std::is_same_v<decltype(scheme.getLinePropsContainer()[0]), const RegularLineProps&>);
    static_assert(std::is_same_v<decltype(scheme.getEffects()[0]), const Effect&>);
    static_assert(std::is_same_v<decltype(scheme.getBackgroundFills()[0]), const Fill&>);
    EXPECT_EQ(scheme.getFills().size(), 2U);
    EXPECT_TRUE(areDeeplyEqual(scheme.getFills()[1], NoFill()));
    EXPECT_EQ(scheme.getLinePropsContainer()[1], *makeLine(2.0F));
    EXPECT_EQ(scheme.getEffects()[0], Effect());
    EXPECT_TRUE(areDeeplyEqual(scheme.getBackgroundFills()[0], PatternFill()));
}

TEST(FormatSchemeDeathTest, ReadingANullElementOfAConstSchemeFailsTheContract)
{
    FormatScheme scheme;
    scheme.getFills().push_back(nullptr);
    scheme.getLinePropsContainer().push_back(nullptr);
    scheme.getEffects().push_back(nullptr);
    scheme.getBackgroundFills().push_back(nullptr);
    const FormatScheme& read = scheme;
    EXPECT_EQ(read.getFills().getPointer(0), nullptr);
    constexpr const char* PlainPtr = "Utils/Public/Ptr/PtrUtils:254: plainPtr";
    EXPECT_DEATH(read.getFills()[0], PlainPtr);
    EXPECT_DEATH(read.getLinePropsContainer()[0], PlainPtr);
    EXPECT_DEATH(read.getEffects()[0], PlainPtr);
    EXPECT_DEATH(read.getBackgroundFills()[0], PlainPtr);
}

TEST(FormatSchemeTest, LoadingReplacesTheLists)
{
    FormatScheme scheme = makeScheme();
    loadJson(toJson(makeScheme()), scheme);
    EXPECT_EQ(scheme, makeScheme());
    loadJson(toJson(FormatScheme()), scheme);
    EXPECT_EQ(scheme, FormatScheme());
}

TEST(FormatSchemeTest, ALongListOfLinesThatAreNoneTakesLittleMemoryBeforeItIsRefused)
{
    constexpr std::size_t Count = 2'000'000;
    std::string json = R"({"_name":"","_fills":[],"_lineProps":[)";
    for (std::size_t index = 1; index < Count; ++index) {
        json += "0,";
    }
    json += R"(0],"_effects":[],"_backgroundFills":[]})";
    FormatScheme scheme;
    const std::size_t bytesBefore = getLiveBytes();
    EXPECT_THROW(loadJson(json, scheme), cereal::Exception);
    EXPECT_LE(getLiveBytes() - bytesBefore, std::size_t{2} << 20U);
}

TEST(FormatSchemeTest, EqualityComparesListsElementByElementThroughThePointers)
{
    EXPECT_EQ(makeScheme(), makeScheme());
    const auto differs = [](auto change) {
        FormatScheme scheme = makeScheme();
        change(scheme);
        return scheme != makeScheme();
    };
    EXPECT_TRUE(differs([](FormatScheme& scheme) { scheme.setName("other"); }));
    EXPECT_TRUE(differs([](FormatScheme& scheme) { std::swap(scheme.getFills()[0], scheme.getFills()[1]); }));
    EXPECT_TRUE(differs([](FormatScheme& scheme) { scheme.getFills().pop_back(); }));
    EXPECT_TRUE(differs([](FormatScheme& scheme) { scheme.getLinePropsContainer()[1]->setWidth(3.0F); }));
    EXPECT_TRUE(differs([](FormatScheme& scheme) { scheme.getEffects().clear(); }));
    EXPECT_TRUE(differs(
        [](FormatScheme& scheme) { scheme.getBackgroundFills().push_back(std::make_unique<NoFill>()); }));
}

TEST(FormatSchemeTest, ACopySharesNothing)
{
    const FormatScheme source = makeScheme();
    expectCopiesAndMoves(source);
    FormatScheme copy(source);
    EXPECT_NE(copy.getFills()[0].get(), &source.getFills()[0]);
    EXPECT_NE(copy.getLinePropsContainer()[0].get(), &source.getLinePropsContainer()[0]);
    EXPECT_NE(copy.getEffects()[0].get(), &source.getEffects()[0]);
    EXPECT_NE(copy.getBackgroundFills()[0].get(), &source.getBackgroundFills()[0]);
    copy.getLinePropsContainer()[0]->setWidth(9.0F);
    dynamic_cast<SolidFill&>(*copy.getFills()[0]).setColor(Color());
    copy.getFills().pop_back();
    copy.getEffects().clear();
    copy.getBackgroundFills()[0] = nullptr;
    EXPECT_EQ(source, makeScheme());
}

TEST(FormatSchemeTest, HasNoOrder)
{
    static_assert(!Ordered<FormatScheme>);
}

} // namespace QN::DOM::FormatSchemeTest
