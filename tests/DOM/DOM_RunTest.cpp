#include "DOM/DOM_Run.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>
#include <typeinfo>

#include "DOM/TextSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::RunTest {
namespace {

using namespace QN::Test;

using Runs = std::vector<std::unique_ptr<Run>>;

static_assert(std::is_same_v<
              Run::Types, TypeList<TextRun, TabRun, BreakRun, DrawingRun, BookmarkRun, FieldRun, AnchorRun>>);

constexpr std::array<const char*, 7> PersistedNames{
    "QN::DOM::TextRun",     "QN::DOM::TabRun",   "QN::DOM::BreakRun",  "QN::DOM::DrawingRun",
    "QN::DOM::BookmarkRun", "QN::DOM::FieldRun", "QN::DOM::AnchorRun",
};

TEST(DOM_Run, HasNoStyleWhenItIsNew)
{
    for (const auto& run : makeOneRunOfEachKind()) {
        EXPECT_EQ(run->getSharedStyle(), nullptr);
    }
}

TEST(DOM_Run, ReadsANullHandleAsTheOneEmptyStyleOfTheProcess)
{
    const TextRun text;
    const TabRun tab;
    EXPECT_TRUE(text.getStyle().isEmpty());
    EXPECT_EQ(&text.getStyle(), &tab.getStyle());
}

TEST(DOM_Run, ReadsTheStyleBehindItsHandle)
{
    TabRun run;
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_EQ(&run.getStyle(), &run.getSharedStyle()->get());
    EXPECT_EQ(std::as_const(run).getSharedStyle()->get().getParentUUID(), makeUUID('1'));
}

TEST(DOM_Run, ComparesStylesByValue)
{
    for (const auto& run : makeOneRunOfEachKind()) {
        const auto other = cloneUnique(*run);
        run->getSharedStyle() = makeSharedStyle<RunStyle>('1');
        other->getSharedStyle() = makeSharedStyle<RunStyle>('1');
        ASSERT_NE(run->getSharedStyle(), other->getSharedStyle());
        EXPECT_TRUE(areDeeplyEqual(*run, *other));

        other->getSharedStyle() = makeSharedStyle<RunStyle>('2');
        EXPECT_FALSE(areDeeplyEqual(*run, *other));
    }
}

TEST(DOM_Run, ANullHandleIsUnequalToAHandleOfAnEmptyStyle)
{
    EXPECT_EQ(TabRun(), TabRun());
    TabRun withEmptyStyle;
    withEmptyStyle.getSharedStyle() = makeEmptySharedStyle<RunStyle>();
    EXPECT_NE(withEmptyStyle, TabRun());
    EXPECT_NE(TabRun(), withEmptyStyle);
}

TEST(DOM_Run, RunsOfTwoKindsAreNeverDeeplyEqualWhateverTheirStyles)
{
    const Runs runs = makeOneRunOfEachKind();
    const Runs others = makeOneRunOfEachKind();
    const auto style = makeSharedStyle<RunStyle>('1');
    for (std::size_t index = 0; index < runs.size(); ++index) {
        runs[index]->getSharedStyle() = style;
        others[index]->getSharedStyle() = style;
    }
    for (std::size_t left = 0; left < runs.size(); ++left) {
        for (std::size_t right = 0; right < others.size(); ++right) {
            EXPECT_EQ(areDeeplyEqual(*runs[left], *others[right]), left == right) << left << ' ' << right;
        }
    }
}

TEST(DOM_Run, ComparedThroughTheBaseOnlyTheStylesCount)
{
    const TextRun text("text");
    const TabRun tab;
    EXPECT_TRUE(static_cast<const DOM::Run&>(text) == static_cast<const DOM::Run&>(tab));
    EXPECT_FALSE(areDeeplyEqual(text, tab));
}

TEST(DOM_Run, ACloneHasTheKindTheContentAndTheStyleOfItsSource)
{
    for (const auto& run : makeOneRunOfEachKind()) {
        run->getSharedStyle() = makeSharedStyle<RunStyle>('1');
        const DOM::Run& source = *run;

        const auto copy = cloneUnique(source);
        const DOM::Run& unique = *copy;
        EXPECT_EQ(typeid(unique), typeid(source));
        EXPECT_TRUE(areDeeplyEqual(unique, source));
        EXPECT_EQ(unique.getSharedStyle(), source.getSharedStyle());

        const auto sharedCopy = cloneShared(source);
        const DOM::Run& shared = *sharedCopy;
        EXPECT_EQ(typeid(shared), typeid(source));
        EXPECT_TRUE(areDeeplyEqual(shared, source));
    }
}

TEST(DOM_Run, IsVisitedByItsKind)
{
    struct Position {
        int operator()(const TextRun&) const { return 0; }
        int operator()(const TabRun&) const { return 1; }
        int operator()(const BreakRun&) const { return 2; }
        int operator()(const DrawingRun&) const { return 3; }
        int operator()(const BookmarkRun&) const { return 4; }
        int operator()(const FieldRun&) const { return 5; }
        int operator()(const AnchorRun&) const { return 6; }
    };
    const Runs runs = makeOneRunOfEachKind();
    for (std::size_t index = 0; index < runs.size(); ++index) {
        EXPECT_EQ(visit<int>(*runs[index], Position()), static_cast<int>(index));
        EXPECT_EQ(visit<int>(std::as_const(*runs[index]), Position()), static_cast<int>(index));
    }
}

TEST(DOM_Run, TextHasOneCodePointForEachInlineObject)
{
    std::string text;
    for (const auto& run : makeOneRunOfEachKind()) {
        text += run->getText();
    }
    EXPECT_EQ(text, "text\t\f\xEE\x80\x80\xEE\x80\x81\xEE\x80\x82\xEE\x80\x83");
}

TEST(DOM_Run, TheTextOfAnInlineObjectLastsAsLongAsTheProcess)
{
    const Runs runs = makeOneRunOfEachKind();
    const Runs others = makeOneRunOfEachKind();
    for (std::size_t index = 1; index < runs.size(); ++index) {
        EXPECT_EQ(&runs[index]->getText(), &others[index]->getText());
    }
}

TEST(DOM_Run, IsPersistedUnderTheNameOfItsClass)
{
    const Runs runs = makeOneRunOfEachKind();
    for (std::size_t index = 0; index < runs.size(); ++index) {
        const std::string start =
            std::string(R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":")") +
            PersistedNames[index] + R"(","ptr_wrapper":{"valid":1,"data":{"value0":{"_style":{"id":0}})";
        EXPECT_EQ(toJson(runs[index]).substr(0, start.size()), start);
    }
}

TEST(DOM_Run, PersistsBehindAPointerWithNullsAmongOthers)
{
    Runs runs = makeOneRunOfEachKind();
    runs.insert(runs.begin() + 3, nullptr);
    runs[0]->getSharedStyle() = makeSharedStyle<RunStyle>('1');
    runs[5]->getSharedStyle() = runs[0]->getSharedStyle();
    expectPersists(runs);

    const auto loaded = fromJson<Runs>(toJson(runs));
    EXPECT_EQ(loaded[3], nullptr);
    EXPECT_EQ(loaded[0]->getSharedStyle(), loaded[5]->getSharedStyle());
}

TEST(DOM_Run, ASharedStyleIsWrittenAtItsFirstRun)
{
    Runs runs;
    runs.push_back(std::make_unique<TabRun>());
    runs.push_back(std::make_unique<TabRun>());
    runs[0]->getSharedStyle() = makeEmptySharedStyle<RunStyle>();
    runs[1]->getSharedStyle() = runs[0]->getSharedStyle();
    EXPECT_EQ(toJson(runs),
              R"({"object":[{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::TabRun",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{"_style":{"id":2147483649,"value0":)"
              R"({"ptr_wrapper":{"valid":1,"data":{"_style":)" +
                  toJson(RunStyle()) +
                  R"(}}}}}}}},{"polymorphic_id":1,"ptr_wrapper":{"valid":1,"data":)"
                  R"({"value0":{"_style":{"id":1}}}}}]})");
}

} // namespace
} // namespace QN::DOM::RunTest
