#include "DOM/Properties/DOM_ClearProps.h"

#include <gtest/gtest.h>

#include <memory>

#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_TabRun.h"
#include "DOM/DOM_TextRun.h"
#include "DOM/Properties/StyleSamples.h"

namespace QN::DOM::ClearPropsTest {

using namespace Test;

namespace {

Paragraph makeStyledParagraph()
{
    Paragraph paragraph;
    paragraph.getSharedStyle() = share(withParent<ParagraphStyle>(SomeUUID));
    paragraph.getSharedParaMarkStyle() = share(withParent<RunStyle>(SomeUUID));
    paragraph.getNumRef() = std::make_unique<NumberingRef>();
    paragraph.getRuns().push_back(std::make_unique<TextRun>());
    paragraph.getRuns().push_back(std::make_unique<TabRun>());
    for (auto& run : paragraph.getRuns()) {
        run->getSharedStyle() = share(withParent<RunStyle>(OtherUUID));
    }
    return paragraph;
}

void expectNoStyles(Paragraph& paragraph)
{
    EXPECT_EQ(paragraph.getSharedStyle(), nullptr);
    EXPECT_EQ(paragraph.getSharedParaMarkStyle(), nullptr);
    ASSERT_EQ(paragraph.getRuns().size(), 2U);
    EXPECT_EQ(paragraph.getRuns()[0]->getSharedStyle(), nullptr);
    EXPECT_EQ(paragraph.getRuns()[1]->getSharedStyle(), nullptr);
}

} // namespace

TEST(ClearPropsTest, ARunLetsGoOfItsStyle)
{
    const auto props = makeRunProps(1.0F);
    TextRun run;
    run.getSharedStyle() = share(with<RunStyle>([&](RunStyle& s) { s.setRunProps(props); }));
    EXPECT_EQ(props.use_count(), 2);
    clearAllProps(static_cast<DOM::Run&>(run));
    EXPECT_EQ(run.getSharedStyle(), nullptr);
    EXPECT_EQ(props.use_count(), 1);
}

TEST(ClearPropsTest, AParagraphKeepsItsPlaceInAListWhereTold)
{
    Paragraph paragraph = makeStyledParagraph();
    clearAllPropsExceptNumRef(paragraph);
    expectNoStyles(paragraph);
    EXPECT_NE(paragraph.getNumRef(), nullptr);
}

TEST(ClearPropsTest, AParagraphLosesItsStylesAndItsPlaceInAList)
{
    Paragraph paragraph = makeStyledParagraph();
    clearAllProps(paragraph);
    expectNoStyles(paragraph);
    EXPECT_EQ(paragraph.getNumRef(), nullptr);
}

TEST(ClearPropsDeathTest, ANullRunIsAContractFailure)
{
    Paragraph paragraph;
    paragraph.getRuns().push_back(nullptr);
    EXPECT_DEATH(clearAllPropsExceptNumRef(paragraph), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
    EXPECT_DEATH(clearAllProps(paragraph), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
}

} // namespace QN::DOM::ClearPropsTest
