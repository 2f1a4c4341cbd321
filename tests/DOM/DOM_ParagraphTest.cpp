#include "DOM/DOM_Paragraph.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <new>
#include <utility>

#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ParagraphTest {
namespace {

using namespace QN::Test;

/// Everything set, a run of each kind and a null run included.
Paragraph makeFullParagraph()
{
    Paragraph paragraph;
    paragraph.getRuns() = makeOneRunOfEachKind();
    paragraph.getRuns().push_back(nullptr);
    paragraph.getSharedStyle() = makeSharedStyle<ParagraphStyle>('1');
    paragraph.getSharedParaMarkStyle() = makeSharedStyle<RunStyle>('2');
    paragraph.getRuns().front()->getSharedStyle() = paragraph.getSharedParaMarkStyle();
    paragraph.getNumRef() = std::make_unique<NumberingRef>();
    paragraph.getNumRef()->setLevel(3);
    return paragraph;
}

TEST(DOM_Paragraph, IsEmptyByDefault)
{
    const Paragraph paragraph;
    EXPECT_TRUE(paragraph.getRuns().empty());
    EXPECT_EQ(paragraph.getSharedStyle(), nullptr);
    EXPECT_EQ(paragraph.getSharedParaMarkStyle(), nullptr);
    EXPECT_EQ(paragraph.getNumRef(), nullptr);
}

TEST(DOM_Paragraph, WritesItsDefaults)
{
    EXPECT_EQ(toJson(Paragraph()), R"({"value0":{},"_runs":[],"_style":{"id":0},"_paraMarkStyle":{"id":0},)"
                                   R"("_numRef":{"ptr_wrapper":{"valid":0}}})");
}

TEST(DOM_Paragraph, ReadsNullHandlesAsTheEmptyStylesOfTheProcess)
{
    const Paragraph paragraph;
    const Paragraph other;
    EXPECT_TRUE(paragraph.getStyle().isEmpty());
    EXPECT_EQ(&paragraph.getStyle(), &other.getStyle());
    EXPECT_TRUE(paragraph.getParaMarkStyle().isEmpty());
    EXPECT_EQ(&paragraph.getParaMarkStyle(), &other.getParaMarkStyle());
}

TEST(DOM_Paragraph, ReadsTheStylesBehindItsHandles)
{
    const Paragraph paragraph = makeFullParagraph();
    EXPECT_EQ(&paragraph.getStyle(), &paragraph.getSharedStyle()->get());
    EXPECT_EQ(&paragraph.getParaMarkStyle(), &paragraph.getSharedParaMarkStyle()->get());
}

TEST(DOM_Paragraph, IsReadRunByRun)
{
    const Paragraph paragraph = makeParagraphValue({"one ", "two"});
    std::string text;
    for (const DOM::Run& run : paragraph.getRuns()) {
        text += run.getText();
    }
    EXPECT_EQ(text, "one two");
}

TEST(DOM_Paragraph, CopiesAndMoves)
{
    expectCopiesAndMoves(Paragraph());
    expectCopiesAndMoves(makeFullParagraph());
}

TEST(DOM_Paragraph, ACopySharesStylesAndNothingElse)
{
    const Paragraph paragraph = makeFullParagraph();
    Paragraph copy(paragraph);
    EXPECT_EQ(copy.getSharedStyle(), paragraph.getSharedStyle());
    EXPECT_EQ(copy.getSharedParaMarkStyle(), paragraph.getSharedParaMarkStyle());
    EXPECT_NE(copy.getNumRef(), paragraph.getNumRef());
    for (std::size_t index = 0; index + 1 < paragraph.getRuns().size(); ++index) {
        EXPECT_NE(copy.getRuns()[index].get(), &paragraph.getRuns()[index]);
    }
    EXPECT_EQ(copy.getRuns().back(), nullptr);

    copy.getNumRef()->setLevel(4);
    dynamic_cast<TextRun&>(*copy.getRuns().front()).setText("other");
    EXPECT_EQ(paragraph, makeFullParagraph());
}

TEST(DOM_Paragraph, ACopyStrategyTellsWhetherTheRunsAreTaken)
{
    EXPECT_EQ(static_cast<int>(Paragraph::CopyStrategy::Everything), 0);
    EXPECT_EQ(static_cast<int>(Paragraph::CopyStrategy::WithoutRuns), 1);

    const Paragraph paragraph = makeFullParagraph();
    EXPECT_EQ(Paragraph(paragraph, Paragraph::CopyStrategy::Everything), paragraph);

    const Paragraph without(paragraph, Paragraph::CopyStrategy::WithoutRuns);
    EXPECT_TRUE(without.getRuns().empty());
    EXPECT_EQ(without.getSharedStyle(), paragraph.getSharedStyle());
    EXPECT_EQ(without.getSharedParaMarkStyle(), paragraph.getSharedParaMarkStyle());
    EXPECT_EQ(*without.getNumRef(), *paragraph.getNumRef());
    EXPECT_EQ(without.getID(), paragraph.getID());
}

TEST(DOM_Paragraph, ACopyOfAParagraphOutsideListsIsOutsideListsByEitherStrategy)
{
    const Paragraph paragraph = makeParagraphValue({"a"});
    EXPECT_EQ(Paragraph(paragraph, Paragraph::CopyStrategy::Everything).getNumRef(), nullptr);
    EXPECT_EQ(Paragraph(paragraph, Paragraph::CopyStrategy::WithoutRuns).getNumRef(), nullptr);
}

TEST(DOM_Paragraph, ACopyThatFailsLeavesTheTargetAsItWas)
{
    Paragraph source;
    source.getSharedStyle() = makeSharedStyle<ParagraphStyle>('3');
    source.getRuns().push_back(std::make_unique<UncopyableRun>());
    Paragraph target = makeFullParagraph();
    const auto token = target.getID();
    EXPECT_THROW(target = source, std::bad_alloc);
    EXPECT_EQ(target, makeFullParagraph());
    EXPECT_EQ(target.getID(), token);
    EXPECT_TRUE(Paragraph(source, Paragraph::CopyStrategy::WithoutRuns).getRuns().empty());
}

TEST(DOM_Paragraph, AMoveTakesTheContentOverAndLeavesTheTokenToBoth)
{
    Paragraph source = makeFullParagraph();
    const auto token = source.getID();
    const DOM::Run* const run = source.getRuns().front().get();
    const Paragraph moved(std::move(source));
    EXPECT_EQ(&moved.getRuns().front(), run);
    EXPECT_EQ(moved.getID(), token);
    EXPECT_EQ(source.getID(), token);
    loadJson(toJson(Paragraph()), source);
    EXPECT_EQ(source, Paragraph());
}

TEST(DOM_Paragraph, SwappingItWithItselfChangesNothing)
{
    Paragraph paragraph = makeFullParagraph();
    Paragraph& itself = paragraph;
    std::swap(paragraph, itself);
    EXPECT_EQ(paragraph, makeFullParagraph());
}

TEST(DOM_Paragraph, LoadingReplacesWhatWasThere)
{
    Paragraph paragraph = makeFullParagraph();
    loadJson(toJson(Paragraph()), paragraph);
    EXPECT_EQ(paragraph, Paragraph());
}

TEST(DOM_Paragraph, ACopyHasTheTokenOfItsSource)
{
    const Paragraph paragraph = makeParagraphValue({"a"});
    EXPECT_EQ(Paragraph(paragraph).getID(), paragraph.getID());
    EXPECT_EQ(cloneUnique<Block>(paragraph)->getID(), paragraph.getID());
    EXPECT_EQ(cloneShared<Block>(paragraph)->getID(), paragraph.getID());
    Paragraph assigned;
    assigned = paragraph;
    EXPECT_EQ(assigned.getID(), paragraph.getID());
}

TEST(DOM_Paragraph, ParagraphsBuiltApartAreEqualAndHaveTokensOfTheirOwn)
{
    const Paragraph paragraph = makeFullParagraph();
    const Paragraph other = makeFullParagraph();
    EXPECT_EQ(paragraph, other);
    EXPECT_NE(paragraph.getID(), other.getID());
}

TEST(DOM_Paragraph, ACloneIsAFullCopy)
{
    const Paragraph paragraph = makeFullParagraph();
    EXPECT_TRUE(areDeeplyEqual(*cloneUnique<Block>(paragraph), paragraph));
    EXPECT_TRUE(areDeeplyEqual(*cloneShared<Block>(paragraph), paragraph));
}

TEST(DOM_Paragraph, ComparesRunsByNumberAndValue)
{
    EXPECT_EQ(makeParagraphValue({"a", "b"}), makeParagraphValue({"a", "b"}));
    EXPECT_NE(makeParagraphValue({"a", "b"}), makeParagraphValue({"a"}));
    EXPECT_NE(makeParagraphValue({"a", "b"}), makeParagraphValue({"a", "c"}));
    EXPECT_NE(makeParagraphValue({"a", "b"}), makeParagraphValue({"ab"}));
}

TEST(DOM_Paragraph, ANullRunEqualsANullRunOnly)
{
    Paragraph paragraph = makeParagraphValue({"a"});
    paragraph.getRuns().front().reset();
    EXPECT_NE(paragraph, makeParagraphValue({"a"}));
    EXPECT_NE(paragraph, Paragraph());
    EXPECT_EQ(paragraph, Paragraph(paragraph));
}

TEST(DOM_Paragraph, ComparesStylesByValueAndNullByPointer)
{
    Paragraph left;
    Paragraph right;
    left.getSharedStyle() = makeSharedStyle<ParagraphStyle>('1');
    EXPECT_NE(left, right);
    right.getSharedStyle() = makeSharedStyle<ParagraphStyle>('1');
    EXPECT_EQ(left, right);
    right.getSharedStyle() = makeSharedStyle<ParagraphStyle>('2');
    EXPECT_NE(left, right);
    left.getSharedStyle() = makeEmptySharedStyle<ParagraphStyle>();
    EXPECT_NE(left, Paragraph());

    left = Paragraph();
    right = Paragraph();
    left.getSharedParaMarkStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(left, right);
    right.getSharedParaMarkStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_EQ(left, right);
    right.getSharedParaMarkStyle() = makeSharedStyle<RunStyle>('2');
    EXPECT_NE(left, right);
    left.getSharedParaMarkStyle() = makeEmptySharedStyle<RunStyle>();
    EXPECT_NE(left, Paragraph());
}

TEST(DOM_Paragraph, AStyleWithANaNIsEqualThroughOneHandleAlone)
{
    const auto makeStyle = [] {
        auto props = std::make_shared<RunProps>();
        props->setSpacing(std::numeric_limits<float>::quiet_NaN());
        RunStyle style;
        style.setRunProps(std::move(props));
        return SharedObjectFactory().create(std::move(style));
    };
    Paragraph paragraph;
    paragraph.getSharedParaMarkStyle() = makeStyle();
    Paragraph copy(paragraph);
    EXPECT_EQ(copy, paragraph);
    copy.getSharedParaMarkStyle() = makeStyle();
    EXPECT_NE(copy, paragraph);
}

TEST(DOM_Paragraph, ComparesTheNumberingByValue)
{
    Paragraph left;
    Paragraph right;
    left.getNumRef() = std::make_unique<NumberingRef>();
    EXPECT_NE(left, right);
    right.getNumRef() = std::make_unique<NumberingRef>();
    EXPECT_EQ(left, right);
    right.getNumRef()->setLevel(1);
    EXPECT_NE(left, right);
}

TEST(DOM_Paragraph, WritesItsKeysInOrder)
{
    Paragraph paragraph = makeParagraphValue({"a"});
    paragraph.getSharedStyle() = makeEmptySharedStyle<ParagraphStyle>();
    paragraph.getNumRef() = std::make_unique<NumberingRef>();
    EXPECT_EQ(toJson(paragraph),
              R"({"value0":{},"_runs":[{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::TextRun",)"
              R"("ptr_wrapper":{"valid":1,"data":{"value0":{"_style":{"id":0}},"_text":"a"}}}],)"
              R"("_style":{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_style":)" +
                  toJson(ParagraphStyle()) +
                  R"(}}}},"_paraMarkStyle":{"id":0},"_numRef":{"ptr_wrapper":{"valid":1,"data":)" +
                  toJson(NumberingRef()) + "}}}");
}

TEST(DOM_Paragraph, Persists)
{
    expectPersists(Paragraph());
    expectPersists(makeFullParagraph());
}

TEST(DOM_ParagraphDeathTest, ReadingANullRunFailsTheContract)
{
    const Paragraph paragraph = makeFullParagraph();
    EXPECT_DEATH(paragraph.getRuns().back(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

} // namespace
} // namespace QN::DOM::ParagraphTest
