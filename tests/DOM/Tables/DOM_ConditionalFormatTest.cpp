#include "DOM/Tables/DOM_ConditionalFormat.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/DOM_Bool.h"
#include "DOM/FormulaSyntaxTree/DOM_FunctionCall.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::ConditionalFormatTest {
namespace {

using namespace QN::Test;

TableRangeByID makeIDRange(std::uint64_t beginRow, std::uint64_t lastRow, std::uint64_t beginColumn,
                           std::uint64_t lastColumn)
{
    return {{RowID(beginRow), RowID(lastRow)}, {ColumnID(beginColumn), ColumnID(lastColumn)}};
}

ConditionalFormat makeFormat()
{
    ConditionalFormat format;
    format.setStyleUUID(UUID("00000000-0000-0000-0000-00000000000a"));
    format.setStopCalculateConditions(true);
    format.setOperator(UnaryConditionalFormatOperator(UnaryConditionalFormatOperator::Type::Equal,
                                                      std::make_unique<FormulaSyntaxTree::Bool>(true)));
    format.setRanges({makeIDRange(1, 2, 3, 4), makeIDRange(5, 6, 7, 8)});
    return format;
}

TEST(DOM_ConditionalFormat, HasAConditionOfNumberZeroAndNoRangesByDefault)
{
    expectText(ConditionalFormat(), R"({"_styleUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
                                    R"("_stopCalculateConditions":false,"_operator":{"which":0,"data":0},)"
                                    R"("_ranges":[]})");
}

TEST(DOM_ConditionalFormat, WritesAllThatItHolds)
{
    expectText(
        makeFormat(),
        R"({"_styleUUID":{"_id":"00000000-0000-0000-0000-00000000000a"},"_stopCalculateConditions":true,)"
        R"("_operator":{"which":1,"data":{"_type":2,"_argument":{"polymorphic_id":2147483649,)"
        R"("polymorphic_name":"QN::DOM::FormulaSyntaxTree::Bool","ptr_wrapper":{"valid":1,)"
        R"("data":{"value0":{"value0":{}},"_bool":true}}}}},)"
        R"("_ranges":[{"_beginRowID":{"_value":1},"_beginColID":{"_value":3},"_lastRowID":{"_value":2},)"
        R"("_lastColID":{"_value":4}},{"_beginRowID":{"_value":5},"_beginColID":{"_value":7},)"
        R"("_lastRowID":{"_value":6},"_lastColID":{"_value":8}}]})");
    expectCopiesAndMoves(makeFormat());
}

TEST(DOM_ConditionalFormat, RefusesAnUnknownKindOfCondition)
{
    const auto load = [](const std::string& which) {
        return loadError<ConditionalFormat>(R"({"_styleUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
                                            R"("_stopCalculateConditions":false,"_operator":{"which":)" +
                                            which + R"(,"data":0},"_ranges":[]})");
    };
    EXPECT_EQ(load("6"), "<loaded>");
    EXPECT_EQ(load("7"), "Invalid 'which' selector when deserializing boost::variant");
}

TEST(DOM_ConditionalFormat, SharesNoExpressionWithItsCopy)
{
    const ConditionalFormat source = makeFormat();
    const ConditionalFormat copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(boost::get<UnaryConditionalFormatOperator>(copy.getOperator()).getArgument(),
              boost::get<UnaryConditionalFormatOperator>(source.getOperator()).getArgument());
}

TEST(DOM_ConditionalFormatDeathTest, WithACallWithoutArgumentsCannotBeCopied)
{
    ConditionalFormat format;
    format.setOperator(UnaryConditionalFormatOperator(UnaryConditionalFormatOperator::Type::Expression,
                                                      std::make_unique<FormulaSyntaxTree::FunctionCall>()));
    EXPECT_EQ(toText(fromText<ConditionalFormat>(toText(format))), toText(format));
    EXPECT_DEATH(ConditionalFormat copy(format),
                 R"(DOM_ExprTransformations\.cpp:[0-9]+: argsRange\.begin\(\) != end)");
}

TEST(DOM_ConditionalFormat, DiffersByEachOfItsMembers)
{
    ConditionalFormat format = makeFormat();
    format.setStyleUUID(UUID());
    EXPECT_NE(format, makeFormat());
    format = makeFormat();
    format.setStopCalculateConditions(false);
    EXPECT_NE(format, makeFormat());
    format = makeFormat();
    format.setOperator(NullaryConditionalFormatOperator::ContainsErrors);
    EXPECT_NE(format, makeFormat());
    format = makeFormat();
    format.setOperator(UnaryConditionalFormatOperator(UnaryConditionalFormatOperator::Type::Equal,
                                                      std::make_unique<FormulaSyntaxTree::Bool>(false)));
    EXPECT_NE(format, makeFormat());
    format = makeFormat();
    format.getRanges().pop_back();
    EXPECT_NE(format, makeFormat());
}

TEST(DOM_ConditionalFormat, GivesWhatItIsSetTo)
{
    const ConditionalFormat format = makeFormat();
    EXPECT_EQ(format.getStyleUUID(), UUID("00000000-0000-0000-0000-00000000000a"));
    EXPECT_TRUE(format.getStopCalculateConditions());
    EXPECT_EQ(format.getOperator().which(), 1);
    EXPECT_EQ(format.getRanges(), (std::vector{makeIDRange(1, 2, 3, 4), makeIDRange(5, 6, 7, 8)}));
}

TEST(DOM_ConditionalFormat, DiffersByTheOrderOfItsRanges)
{
    ConditionalFormat format = makeFormat();
    std::swap(format.getRanges().front(), format.getRanges().back());
    EXPECT_NE(format, makeFormat());
}

/// A table of 9 by 9 with a conditional format on the rows 2 to 4 and the columns 3 and 4, counted from 0.
Table makeTable()
{
    Table table(RowIndex(9), ColumnIndex(9));
    auto format = std::make_unique<ConditionalFormat>();
    format->setRanges({makeIDRange(3, 5, 4, 5)});
    table.getConditionalFormats().getElements().push_back(std::make_unique<ConditionalFormat>());
    table.getConditionalFormats().getElements().push_back(std::move(format));
    return table;
}

TEST(DOM_ConditionalFormat, HoldsTheCellsOfItsRanges)
{
    const Table table = makeTable();
    EXPECT_TRUE(isIndexInConditionalFormatRanges(table, makeIndex(2, 3)));
    EXPECT_TRUE(isIndexInConditionalFormatRanges(table, makeIndex(4, 4)));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(1, 3)));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(5, 3)));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(2, 2)));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(2, 5)));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(Table(RowIndex(9), ColumnIndex(9)), makeIndex(2, 3)));
}

TEST(DOM_ConditionalFormat, FollowsItsRowsAndShrinksToTheLiveOnes)
{
    Table table = makeTable();
    using Position = Table::IndexIncludingTombstones;
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(0));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(2, 3)));
    EXPECT_TRUE(isIndexInConditionalFormatRanges(table, makeIndex(5, 3)));
    table.replaceRowWithTombstone(Position(3));
    table.replaceRowWithTombstone(Position(5));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(2, 3)));
    EXPECT_TRUE(isIndexInConditionalFormatRanges(table, makeIndex(3, 3)));
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(4, 3)));
    table.replaceRowWithTombstone(Position(4));
    for (std::uint64_t row = 0; row < 9; ++row) {
        EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(row, 3))) << row;
    }
}

TEST(DOM_ConditionalFormat, DoesNotCountOnceItIsDeleted)
{
    Table table = makeTable();
    table.getConditionalFormats().getTombstones().replaceWithTombstone(
        CollaborationUtils::IndexIncludingTombstones(1));
    table.getConditionalFormats().getElements().pop_back();
    EXPECT_FALSE(isIndexInConditionalFormatRanges(table, makeIndex(2, 3)));
}

TEST(DOM_ConditionalFormatDeathTest, MustNotBeNullWhereItIsAskedFor)
{
    Table table = makeTable();
    table.getConditionalFormats().getElements().push_back(nullptr);
    EXPECT_TRUE(isIndexInConditionalFormatRanges(table, makeIndex(2, 3)));
    EXPECT_DEATH(isIndexInConditionalFormatRanges(table, makeIndex(0, 0)),
                 "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

} // namespace
} // namespace QN::DOM::ConditionalFormatTest
