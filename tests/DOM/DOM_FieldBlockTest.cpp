#include "DOM/DOM_FieldBlock.h"

#include <gtest/gtest.h>

#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Number.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::FieldBlockTest {
namespace {

using namespace QN::Test;

using NumberValue = BlockValue<FloatNumber>;
using ErrorValue = BlockValue<FormulaErrorType>;
using BoolValue = BlockValue<bool>;

Formula makeFormula(double value)
{
    return Formula(std::make_unique<FormulaSyntaxTree::Number>(value), true);
}

/// Each alternative in order.
std::vector<FieldBlock::FieldInfo> makeInfos()
{
    TableOfContentsInfo contents;
    contents.setOutlineLevelsRange(TableOfContentsInfo::OutlineLevelsRange(1, 3));
    return {
        makeFormula(1.5),
        ArrayFormulaShift(1, 2),
        NumberValue(FloatNumber(1.5)),
        ErrorValue(static_cast<FormulaErrorType>(5)),
        BoolValue(true),
        contents,
    };
}

FieldBlock makeFullBlock(FieldBlock::FieldInfo info)
{
    FieldBlock block(std::move(info));
    block.setHyperlink(std::make_shared<const Hyperlink>("url"));
    block.getCommentUUIDs() = {makeUUID('1'), makeUUID('2')};
    return block;
}

TEST(DOM_FieldBlock, HoldsAnEmptyFormulaByDefault)
{
    const FieldBlock block;
    EXPECT_EQ(block.getFieldInfo().which(), 0);
    EXPECT_EQ(boost::get<Formula>(block.getFieldInfo()).getSyntaxTree(), nullptr);
    EXPECT_EQ(block.getHyperlink(), nullptr);
    EXPECT_TRUE(block.getCommentUUIDs().empty());
    EXPECT_EQ(toJson(block), R"({"value0":{},"_fieldInfo":{"which":0,"data":)" + toJson(Formula()) +
                                 R"(},"_hyperlink":{"ptr_wrapper":{"id":0}},"_commentUUIDs":[]})");
}

TEST(DOM_FieldBlock, WritesTheNumberOfItsKind)
{
    const auto infos = makeInfos();
    for (std::size_t which = 0; which < infos.size(); ++which) {
        EXPECT_EQ(infos[which].which(), static_cast<int>(which));
        const std::string start =
            R"({"value0":{},"_fieldInfo":{"which":)" + std::to_string(which) + R"(,"data":)";
        EXPECT_EQ(toJson(FieldBlock(infos[which])).substr(0, start.size()), start);
    }
}

TEST(DOM_FieldBlock, WritesHyperlinkAndComments)
{
    const std::string json = toJson(makeFullBlock(BoolValue(true)));
    EXPECT_EQ(json, R"({"value0":{},"_fieldInfo":{"which":4,"data":{"_value":true}},)"
                    R"("_hyperlink":{"ptr_wrapper":{"id":2147483649,"data":)" +
                        toJson(Hyperlink("url")) + R"(}},"_commentUUIDs":[)" + makeUUIDJson('1') + "," +
                        makeUUIDJson('2') + "]}");
}

TEST(DOM_FieldBlock, PersistsEachKind)
{
    expectPersists(FieldBlock());
    for (const auto& info : makeInfos()) {
        expectPersists(makeFullBlock(info));
    }
}

TEST(DOM_FieldBlock, AKindThatDoesNotExistIsRefused)
{
    const auto makeJson = [](int which) {
        return R"({"value0":{},"_fieldInfo":{"which":)" + std::to_string(which) + R"(,"data":{}}})";
    };
    EXPECT_EQ(loadError<FieldBlock>(makeJson(6)),
              "Invalid 'which' selector when deserializing boost::variant");
    EXPECT_EQ(loadError<FieldBlock>(makeJson(-1)), "Error traversing variant during load");
}

TEST(DOM_FieldBlock, BlocksOfTwoKindsAreUnequalWhateverTheirValues)
{
    const auto infos = makeInfos();
    for (std::size_t left = 0; left < infos.size(); ++left) {
        for (std::size_t right = 0; right < infos.size(); ++right) {
            EXPECT_EQ(FieldBlock(infos[left]) == FieldBlock(infos[right]), left == right)
                << left << ' ' << right;
        }
    }
    EXPECT_NE(FieldBlock(NumberValue(FloatNumber(1))), FieldBlock(BoolValue(true)));
    EXPECT_NE(FieldBlock(NumberValue(FloatNumber(0))), FieldBlock(BoolValue(false)));
}

TEST(DOM_FieldBlock, ComparesTheValueOfItsKind)
{
    TableOfContentsInfo contents;
    contents.getHeadingStylesLevels().push_back({makeUUID('1'), 0});
    EXPECT_NE(FieldBlock(makeFormula(1)), FieldBlock(makeFormula(2)));
    EXPECT_NE(FieldBlock(makeFormula(1)), FieldBlock());
    EXPECT_NE(FieldBlock(ArrayFormulaShift(1, 2)), FieldBlock(ArrayFormulaShift(2, 1)));
    EXPECT_NE(FieldBlock(NumberValue(FloatNumber(1))), FieldBlock(NumberValue(FloatNumber(2))));
    EXPECT_EQ(FieldBlock(NumberValue(FloatNumber(0.0))), FieldBlock(NumberValue(FloatNumber(-0.0))));
    EXPECT_NE(FieldBlock(ErrorValue(static_cast<FormulaErrorType>(1))),
              FieldBlock(ErrorValue(static_cast<FormulaErrorType>(2))));
    EXPECT_NE(FieldBlock(BoolValue(true)), FieldBlock(BoolValue(false)));
    EXPECT_NE(FieldBlock(TableOfContentsInfo()), FieldBlock(contents));
}

TEST(DOM_FieldBlock, ComparesTheHyperlinkByValueAndTheComments)
{
    const FieldBlock block = makeFullBlock(BoolValue(true));
    EXPECT_EQ(block, makeFullBlock(BoolValue(true)));
    FieldBlock other = block;
    other.setHyperlink(std::make_shared<const Hyperlink>("other"));
    EXPECT_NE(other, block);
    other.setHyperlink(nullptr);
    EXPECT_NE(other, block);
    other = block;
    other.getCommentUUIDs().pop_back();
    EXPECT_NE(other, block);
    other.getCommentUUIDs() = {makeUUID('2'), makeUUID('1')};
    EXPECT_NE(other, block);
}

TEST(DOM_FieldBlock, ACloneOwnsItsFormulaAndSharesTheHyperlink)
{
    const FieldBlock block = makeFullBlock(makeFormula(1.5));
    const auto copy = cloneUnique<Block>(block);
    EXPECT_TRUE(areDeeplyEqual(*copy, block));
    EXPECT_EQ(copy->getID(), block.getID());
    auto& field = dynamic_cast<FieldBlock&>(*copy);
    EXPECT_EQ(field.getHyperlink(), block.getHyperlink());
    auto& formula = boost::get<Formula>(field.getFieldInfo());
    dynamic_cast<FormulaSyntaxTree::Number&>(*formula.getSyntaxTree()).setValue(2.5);
    EXPECT_EQ(block, makeFullBlock(makeFormula(1.5)));
    EXPECT_TRUE(areDeeplyEqual(*cloneShared<Block>(block), block));
}

TEST(DOM_FieldBlock, CopiesAndMoves)
{
    for (const auto& info : makeInfos()) {
        expectCopiesAndMoves(makeFullBlock(info));
    }
}

} // namespace
} // namespace QN::DOM::FieldBlockTest
