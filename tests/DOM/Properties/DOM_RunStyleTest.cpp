#include "DOM/Properties/DOM_RunStyle.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/DOM_Hyperlink.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::RunStyleTest {

using namespace Test;

namespace {

using TrackedRunProps = std::shared_ptr<const RunProps>;

RunStyle makeFullRunStyle()
{
    return with<RunStyle>([](RunStyle& style) {
        style.setRunProps(std::make_shared<RunProps>(makeFullRunProps()));
        style.setParentUUID(SomeUUID);
        style.setHyperlink(std::make_shared<Hyperlink>("http://a.example/"));
        style.setTrackedAction(makeTracked(TrackChangesType::Deletion));
        style.setTrackedRunProps(makeTracked(makeRunProps(3.0F)));
        style.setTrackedParent(makeTracked(OtherUUID));
        style.getCommentUUIDs() = {SomeUUID, OtherUUID};
    });
}

} // namespace

TEST(RunStyleTest, SaysNothingByDefault)
{
    const RunStyle style;
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_EQ(style.getHyperlink(), nullptr);
    EXPECT_EQ(style.getTrackedAction(), nullptr);
    EXPECT_EQ(style.getTrackedRunProps(), nullptr);
    EXPECT_EQ(style.getTrackedParent(), nullptr);
    EXPECT_TRUE(style.getCommentUUIDs().empty());
    EXPECT_FALSE(style.hasTrackedInfo());
    EXPECT_TRUE(style.isEmpty());
}

TEST(RunStyleTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(RunStyle()),
              R"({"_runProps":{"ptr_wrapper":{"id":0}},)"
              R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
              R"("_hyperlink":{"ptr_wrapper":{"id":0}},"_trackedAction":{"ptr_wrapper":{"id":0}},)"
              R"("_trackedRunProps":{"ptr_wrapper":{"id":0}},"_trackedParent":{"ptr_wrapper":{"id":0}},)"
              R"("_commentUUIDs":[]})");
}

TEST(RunStyleTest, ASetMemberIsReadBackAndPersists)
{
    const RunStyle style = makeFullRunStyle();
    EXPECT_EQ(*style.getRunProps(), makeFullRunProps());
    EXPECT_EQ(style.getParentUUID(), SomeUUID);
    EXPECT_EQ(style.getHyperlink()->getURL(), "http://a.example/");
    EXPECT_EQ(style.getTrackedAction()->getValue(), TrackChangesType::Deletion);
    EXPECT_EQ(*style.getTrackedRunProps()->getValue(), *makeRunProps(3.0F));
    EXPECT_EQ(style.getTrackedParent()->getValue(), OtherUUID);
    EXPECT_EQ(style.getCommentUUIDs(), (std::vector<UUID>{SomeUUID, OtherUUID}));
    expectPersists(style);
    expectPersists(RunStyle());
    expectCopiesAndMoves(style);
}

TEST(RunStyleTest, AnySingleMemberMakesItNonEmpty)
{
    EXPECT_FALSE(with<RunStyle>([](RunStyle& s) { s.setRunProps(std::make_shared<RunProps>()); }).isEmpty());
    EXPECT_FALSE(withParent<RunStyle>(SomeUUID).isEmpty());
    EXPECT_FALSE(
        with<RunStyle>([](RunStyle& s) { s.setHyperlink(std::make_shared<Hyperlink>()); }).isEmpty());
    EXPECT_FALSE(with<RunStyle>([](RunStyle& s) {
                     s.setTrackedAction(makeTracked(TrackChangesType::Insertion));
                 }).isEmpty());
    EXPECT_FALSE(
        with<RunStyle>([](RunStyle& s) { s.setTrackedRunProps(makeTracked(TrackedRunProps())); }).isEmpty());
    EXPECT_FALSE(with<RunStyle>([](RunStyle& s) { s.setTrackedParent(makeTracked(UUID())); }).isEmpty());
    EXPECT_FALSE(with<RunStyle>([](RunStyle& s) { s.getCommentUUIDs().emplace_back(); }).isEmpty());
}

TEST(RunStyleTest, EachOfTheThreeTrackedMembersIsTrackedInfo)
{
    EXPECT_TRUE(with<RunStyle>([](RunStyle& s) {
                    s.setTrackedAction(makeTracked(TrackChangesType::Insertion));
                }).hasTrackedInfo());
    EXPECT_TRUE(with<RunStyle>([](RunStyle& s) {
                    s.setTrackedRunProps(makeTracked(TrackedRunProps()));
                }).hasTrackedInfo());
    EXPECT_TRUE(
        with<RunStyle>([](RunStyle& s) { s.setTrackedParent(makeTracked(UUID())); }).hasTrackedInfo());
    EXPECT_FALSE(with<RunStyle>([](RunStyle& s) {
                     s.setRunProps(std::make_shared<RunProps>());
                     s.setHyperlink(std::make_shared<Hyperlink>());
                     s.setParentUUID(SomeUUID);
                     s.getCommentUUIDs().push_back(SomeUUID);
                 }).hasTrackedInfo());
}

TEST(RunStyleTest, EqualityLooksThroughPointers)
{
    EXPECT_EQ(makeFullRunStyle(), makeFullRunStyle());
    RunStyle other = makeFullRunStyle();
    other.setHyperlink(std::make_shared<Hyperlink>("http://b.example/"));
    EXPECT_NE(other, makeFullRunStyle());
}

TEST(RunStyleTest, LoadingReplacesWhatWasThere)
{
    RunStyle style = makeFullRunStyle();
    loadJson(toJson(RunStyle()), style);
    EXPECT_EQ(style, RunStyle());
}

TEST(RunStyleTest, PropertiesThatTwoStylesShareAreWrittenOnceAndStayShared)
{
    const auto props = makeRunProps(1.0F);
    const auto makeStyle = [&](const UUID& parent) {
        return with<RunStyle>([&](RunStyle& style) {
            style.setRunProps(props);
            style.setParentUUID(parent);
        });
    };
    const std::vector<RunStyle> styles{makeStyle(SomeUUID), makeStyle(OtherUUID)};
    EXPECT_NE(toJson(styles).find(R"({"_runProps":{"ptr_wrapper":{"id":1}},)"), std::string::npos);
    const auto loaded = fromJson<std::vector<RunStyle>>(toJson(styles));
    EXPECT_EQ(loaded, styles);
    EXPECT_EQ(loaded[0].getRunProps(), loaded[1].getRunProps());
}

TEST(RunStyleTest, OneCommentMayBeStatedTwice)
{
    const auto style = with<RunStyle>([](RunStyle& s) { s.getCommentUUIDs() = {SomeUUID, SomeUUID}; });
    EXPECT_NE(style, with<RunStyle>([](RunStyle& s) { s.getCommentUUIDs() = {SomeUUID}; }));
    expectPersists(style);
}

TEST(RunStyleTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<RunStyle>({
        RunStyle(),
        with<RunStyle>([](RunStyle& s) { s.getCommentUUIDs() = {SomeUUID}; }),
        with<RunStyle>([](RunStyle& s) {
            s.getCommentUUIDs() = {SomeUUID, SomeUUID};
        }),
        with<RunStyle>([](RunStyle& s) { s.getCommentUUIDs() = {OtherUUID}; }),
        with<RunStyle>([](RunStyle& s) { s.setTrackedParent(makeTracked(SomeUUID)); }),
        with<RunStyle>([](RunStyle& s) { s.setTrackedParent(makeTracked(OtherUUID)); }),
        with<RunStyle>([](RunStyle& s) { s.setTrackedRunProps(makeTracked(TrackedRunProps())); }),
        with<RunStyle>([](RunStyle& s) { s.setTrackedRunProps(makeTracked(makeRunProps(1.0F))); }),
        with<RunStyle>([](RunStyle& s) { s.setTrackedAction(makeTracked(TrackChangesType::Insertion)); }),
        with<RunStyle>([](RunStyle& s) { s.setTrackedAction(makeTracked(TrackChangesType::Deletion)); }),
        with<RunStyle>([](RunStyle& s) { s.setHyperlink(std::make_shared<Hyperlink>("a")); }),
        with<RunStyle>([](RunStyle& s) { s.setHyperlink(std::make_shared<Hyperlink>("b")); }),
        withParent<RunStyle>(SomeUUID),
        withParent<RunStyle>(OtherUUID),
        with<RunStyle>([](RunStyle& s) { s.setRunProps(makeRunProps(1.0F)); }),
        with<RunStyle>([](RunStyle& s) { s.setRunProps(makeRunProps(2.0F)); }),
    });
}

} // namespace QN::DOM::RunStyleTest
