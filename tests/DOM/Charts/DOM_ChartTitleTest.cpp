#include "DOM/Charts/DOM_ChartTitle.h"

#include <boost/optional/optional_io.hpp>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <utility>

#include "DOM/Charts/ChartSamples.h"
#include "DOM/Charts/NestedSamples.h"
#include "DOM/Charts/UncopyablePaint.h"
#include "DOM/FormulaSyntaxTree/DOM_Number.h"

namespace QN::DOM::ChartTitleTest {
namespace {

using namespace Test;

constexpr const char* EmptyTextJson = R"({"_blocks":[],"_tombstones":{"_tombstones":[]}})";

std::string makeJson(const std::string& text)
{
    return R"({"_text":)" + text +
           R"(,"_x":{"hasValue":false},"_y":{"hasValue":false},"_overlay":{"value":-1},)"
           R"("_rotation":{"hasValue":false},"_direction":{"hasValue":false},"_graphicProps":{"hasValue":false},)"
           R"("_runProps":{"ptr_wrapper":{"id":0}}})";
}

TEST(ChartTitle, SaysNothingByDefault)
{
    static_assert(sizeof(ChartTextDirection) == 1);
    static_assert(!Ordered<ChartTitle>);
    const ChartTitle title;
    EXPECT_FALSE(title.getText());
    EXPECT_EQ(title.getX(), boost::none);
    EXPECT_EQ(title.getY(), boost::none);
    EXPECT_FALSE(title.getOverlay());
    EXPECT_EQ(title.getRotation(), boost::none);
    EXPECT_FALSE(title.getDirection());
    EXPECT_FALSE(title.getGraphicProps());
    EXPECT_EQ(title.getRunProps(), nullptr);
    expectText(title, makeJson(AbsentJson));
}

TEST(ChartTitle, KeepsEveryMember)
{
    ChartTitle title;
    title.setX(1.5F);
    title.setY(-2.5F);
    title.setOverlay(true);
    title.setRotation(90.0);
    title.setDirection(static_cast<ChartTextDirection>(200));
    title.setGraphicProps(ChartGraphicProps());
    EXPECT_EQ(title.getX(), 1.5F);
    EXPECT_EQ(title.getY(), -2.5F);
    EXPECT_EQ(title.getOverlay(), BoolOpt(true));
    EXPECT_EQ(title.getRotation(), 90.0);
    EXPECT_EQ(static_cast<int>(*title.getDirection()), 200);
    EXPECT_TRUE(title.getGraphicProps());
    expectText(title,
               R"({"_text":{"hasValue":false},"_x":{"hasValue":true,"value":1.5},)"
               R"("_y":{"hasValue":true,"value":-2.5},"_overlay":{"value":1},)"
               R"("_rotation":{"hasValue":true,"value":90.0},"_direction":{"hasValue":true,"value":200},)"
               R"("_graphicProps":)" +
                   makePresentJson(EmptyPaintJson) + R"(,"_runProps":{"ptr_wrapper":{"id":0}}})");
    title.setRunProps(makeRunProps(true));
    expectPersists(title);
    expectCopiesAndMoves(title);
}

TEST(ChartTitle, HoldsRichTextAsItsFirstAlternative)
{
    ChartTitle title;
    title.getText() = ChartTitle::Text(TextWithTombstones());
    expectText(title, makeJson(makePresentJson(std::string(R"({"which":0,"data":)") + EmptyTextJson + "}")));
    boost::get<TextWithTombstones>(*title.getText()).getBlocks().push_back(std::make_unique<Paragraph>());
    expectPersists(title);
    expectCopiesAndMoves(title);
    ChartTitle copy(title);
    EXPECT_EQ(boost::get<TextWithTombstones>(*copy.getText()).getBlocks().size(), 1U);
    EXPECT_EQ(copy, title);
    boost::get<TextWithTombstones>(*copy.getText()).getBlocks().clear();
    EXPECT_EQ(boost::get<TextWithTombstones>(*title.getText()).getBlocks().size(), 1U);
}

TEST(ChartTitle, HoldsFormulasAsItsSecondAlternative)
{
    ChartTitle title;
    title.getText() = ChartTitle::Text(std::vector<Formula>());
    boost::get<std::vector<Formula>>(*title.getText()).push_back(makeFormula(true));
    boost::get<std::vector<Formula>>(*title.getText()).push_back(makeFormula(false));
    expectText(title, makeJson(makePresentJson(R"({"which":1,"data":[)" + makeFormulaJson(true) + "," +
                                               makeFormulaJson(false) + "]}")));
    boost::get<std::vector<Formula>>(*title.getText())[0] =
        Formula(std::make_unique<FormulaSyntaxTree::Number>(4.5), false);
    expectPersists(title);
    const auto loaded = fromJson<ChartTitle>(toJson(title));
    EXPECT_EQ(boost::get<std::vector<Formula>>(*loaded.getText()).size(), 2U);
    EXPECT_EQ(loaded, title);
}

TEST(ChartTitle, RefusesAThirdAlternative)
{
    EXPECT_EQ(textError<ChartTitle>(makeJson(makePresentJson(R"({"which":2,"data":[]})"))),
              "Invalid 'which' selector when deserializing boost::variant");
}

TEST(ChartTitle, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectEachChangeMatters(
        ChartTitle(), [](ChartTitle& title) { title.getText() = ChartTitle::Text(TextWithTombstones()); },
        [](ChartTitle& title) { title.getText() = ChartTitle::Text(std::vector<Formula>()); },
        [](ChartTitle& title) { title.setX(0.0F); }, [](ChartTitle& title) { title.setY(0.0F); },
        [](ChartTitle& title) { title.setOverlay(false); }, [](ChartTitle& title) { title.setRotation(0.0); },
        [](ChartTitle& title) { title.setDirection(ChartTextDirection::Horizontal); },
        [](ChartTitle& title) { title.setGraphicProps(ChartGraphicProps()); },
        [](ChartTitle& title) { title.setRunProps(makeRunProps(true)); });
    expectSharesRunProps(ChartTitle());
}

/// A title without text of which all else is set.
ChartTitle makeTitle()
{
    ChartTitle title;
    title.setX(1.5F);
    title.setY(-2.5F);
    title.setOverlay(true);
    title.setRotation(90.0);
    title.setDirection(ChartTextDirection::Vertical270);
    title.setGraphicProps(makePaint());
    title.setRunProps(makeRunProps(true));
    return title;
}

TEST(ChartTitle, IsAssignedFromATitleInItsOwnTextBeforeThatTextGoes)
{
    auto inner = std::make_unique<ChartTitle>(makeTitle());
    const ChartTitle& source = *inner;
    auto space = std::make_unique<ChartSpace>();
    space->setTitle(std::move(inner));
    space = putIntoTitle(std::move(space));
    *space->getTitle() = source;
    EXPECT_EQ(*space->getTitle(), makeTitle());
}

TEST(ChartTitle, IsUnchangedWhenAnAssignmentFails)
{
    ChartTitle source;
    source.getText() = ChartTitle::Text(TextWithTombstones());
    source.setX(9.0F);
    source.setGraphicProps(makeUncopyablePaint());
    ChartTitle title = makeTitle();
    EXPECT_THROW(title = source, std::bad_alloc);
    EXPECT_EQ(title, makeTitle());
}

} // namespace
} // namespace QN::DOM::ChartTitleTest
