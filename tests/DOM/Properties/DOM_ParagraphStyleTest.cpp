#include "DOM/Properties/DOM_ParagraphStyle.h"

#include <gtest/gtest.h>

#include <memory>

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ParagraphStyleTest {

using namespace Test;

namespace {

ParagraphStyle makeFullParagraphStyle()
{
    return with<ParagraphStyle>([](ParagraphStyle& style) {
        style.setParaProps(std::make_shared<ParaProps>(makeFullParaProps()));
        style.setRunProps(std::make_shared<RunProps>(makeFullRunProps()));
        style.setParentUUID(SomeUUID);
        style.setTrackedParaProps(makeTracked(makeParaProps(3.0F)));
        style.setTrackedParent(makeTracked(OtherUUID));
    });
}

} // namespace

TEST(ParagraphStyleTest, SaysNothingByDefault)
{
    const ParagraphStyle style;
    EXPECT_EQ(style.getParaProps(), nullptr);
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_EQ(style.getTrackedParaProps(), nullptr);
    EXPECT_EQ(style.getTrackedParent(), nullptr);
    EXPECT_TRUE(style.isEmpty());
}

TEST(ParagraphStyleTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(ParagraphStyle()),
              R"({"_paraProps":{"ptr_wrapper":{"id":0}},"_runProps":{"ptr_wrapper":{"id":0}},)"
              R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
              R"("_trackedParaProps":{"ptr_wrapper":{"id":0}},"_trackedParent":{"ptr_wrapper":{"id":0}}})");
}

TEST(ParagraphStyleTest, ASetMemberIsReadBackAndPersists)
{
    const ParagraphStyle style = makeFullParagraphStyle();
    EXPECT_EQ(*style.getParaProps(), makeFullParaProps());
    EXPECT_EQ(*style.getRunProps(), makeFullRunProps());
    EXPECT_EQ(style.getParentUUID(), SomeUUID);
    EXPECT_EQ(*style.getTrackedParaProps()->getValue(), *makeParaProps(3.0F));
    EXPECT_EQ(style.getTrackedParent()->getValue(), OtherUUID);
    expectPersists(style);
    expectPersists(ParagraphStyle());
    expectCopiesAndMoves(style);
}

TEST(ParagraphStyleTest, AnySingleMemberMakesItNonEmpty)
{
    using Props = std::shared_ptr<const ParaProps>;
    EXPECT_FALSE(with<ParagraphStyle>([](ParagraphStyle& s) {
                     s.setParaProps(std::make_shared<ParaProps>());
                 }).isEmpty());
    EXPECT_FALSE(with<ParagraphStyle>([](ParagraphStyle& s) {
                     s.setRunProps(std::make_shared<RunProps>());
                 }).isEmpty());
    EXPECT_FALSE(withParent<ParagraphStyle>(SomeUUID).isEmpty());
    EXPECT_FALSE(with<ParagraphStyle>([](ParagraphStyle& s) {
                     s.setTrackedParaProps(makeTracked(Props()));
                 }).isEmpty());
    EXPECT_FALSE(
        with<ParagraphStyle>([](ParagraphStyle& s) { s.setTrackedParent(makeTracked(UUID())); }).isEmpty());
}

TEST(ParagraphStyleTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<ParagraphStyle>({
        ParagraphStyle(),
        with<ParagraphStyle>([](ParagraphStyle& s) { s.setTrackedParent(makeTracked(SomeUUID)); }),
        with<ParagraphStyle>(
            [](ParagraphStyle& s) { s.setTrackedParaProps(makeTracked(makeParaProps(1.0F))); }),
        withParent<ParagraphStyle>(SomeUUID),
        with<ParagraphStyle>([](ParagraphStyle& s) { s.setRunProps(makeRunProps(1.0F)); }),
        with<ParagraphStyle>([](ParagraphStyle& s) { s.setParaProps(makeParaProps(1.0F)); }),
        with<ParagraphStyle>([](ParagraphStyle& s) { s.setParaProps(makeParaProps(2.0F)); }),
    });
}

TEST(ParagraphStyleTest, OverrideWithNothingWipesASetParentAndNothingElse)
{
    ParagraphStyle target = makeFullParagraphStyle();
    override(target, ParagraphStyle());
    ParagraphStyle expected = makeFullParagraphStyle();
    expected.setParentUUID(UUID());
    EXPECT_EQ(target, expected);
}

TEST(ParagraphStyleTest, OverrideCombinesThePropertiesAndLeavesTheTrackedMembers)
{
    ParagraphStyle target = with<ParagraphStyle>([](ParagraphStyle& s) {
        s.setParaProps(makeParaProps(1.0F));
        s.setTrackedParent(makeTracked(SomeUUID));
    });
    override(target, with<ParagraphStyle>([](ParagraphStyle& s) {
                 s.setParaProps(sharedWith<ParaProps>([](ParaProps& p) { p.setRightIndent(2.0F); }));
                 s.setRunProps(makeRunProps(3.0F));
                 s.setParentUUID(OtherUUID);
                 s.setTrackedParent(makeTracked(OtherUUID));
                 s.setTrackedParaProps(makeTracked(makeParaProps(4.0F)));
             }));
    EXPECT_EQ(target, with<ParagraphStyle>([](ParagraphStyle& s) {
                  s.setParaProps(sharedWith<ParaProps>([](ParaProps& p) {
                      p.setLeftIndent(1.0F);
                      p.setRightIndent(2.0F);
                  }));
                  s.setRunProps(makeRunProps(3.0F));
                  s.setParentUUID(OtherUUID);
                  s.setTrackedParent(makeTracked(SomeUUID));
              }));
}

TEST(ParagraphStyleTest, ExcludeLeavesTheParentAndTheTrackedMembers)
{
    ParagraphStyle target = makeFullParagraphStyle();
    exclude(target, makeFullParagraphStyle());
    ParagraphStyle expected = makeFullParagraphStyle();
    expected.setParaProps(nullptr);
    expected.setRunProps(nullptr);
    EXPECT_EQ(target, expected);
}

TEST(ParagraphStyleTest, ExcludeGoesThroughPropertiesThatDiffer)
{
    ParagraphStyle target = with<ParagraphStyle>([](ParagraphStyle& s) {
        s.setParaProps(sharedWith<ParaProps>([](ParaProps& p) {
            p.setLeftIndent(1.0F);
            p.setRightIndent(2.0F);
        }));
        s.setRunProps(makeRunProps(3.0F));
    });
    exclude(target, with<ParagraphStyle>([](ParagraphStyle& s) { s.setParaProps(makeParaProps(1.0F)); }));
    EXPECT_EQ(*target.getParaProps(), with<ParaProps>([](ParaProps& p) { p.setRightIndent(2.0F); }));
    EXPECT_EQ(*target.getRunProps(), *makeRunProps(3.0F));
}

TEST(ParagraphStyleTest, AStyleIsCombinedWithItself)
{
    ParagraphStyle style = makeFullParagraphStyle();
    const ParagraphStyle& itself = style;
    override(style, itself);
    EXPECT_EQ(style, makeFullParagraphStyle());
    exclude(style, itself);
    ParagraphStyle expected = makeFullParagraphStyle();
    expected.setParaProps(nullptr);
    expected.setRunProps(nullptr);
    EXPECT_EQ(style, expected);
}

} // namespace QN::DOM::ParagraphStyleTest
