#include "DOM/Tables/DOM_PivotTableValue.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::PivotTableValueTest {
namespace {

using namespace QN::Test;

TEST(DOM_PivotTableValue, IsEmptyByDefault)
{
    expectText(PivotTableValue(), R"({"_blocks":[],"_style":{"id":0}})");
    EXPECT_TRUE(PivotTableValue().getBlocks().empty());
    EXPECT_TRUE(PivotTableValue().getStyle().isEmpty());
}

TEST(DOM_PivotTableValue, HoldsBlocksAndAStyle)
{
    PivotTableValue value;
    value.getBlocks().push_back(makeTextBlock("a"));
    value.getSharedStyle() = makeStyle<CellStyle>('1');
    expectPersists(value);
    expectCopiesAndMoves(value);

    const PivotTableValue copy(value);
    EXPECT_NE(&copy.getBlocks()[0], &std::as_const(value).getBlocks()[0]);
    EXPECT_EQ(copy.getSharedStyle(), value.getSharedStyle());
    value.getSharedStyle() = makeStyle<CellStyle>('1');
    EXPECT_EQ(copy, value);
    value.getSharedStyle() = makeStyle<CellStyle>('2');
    EXPECT_NE(copy, value);
}

TEST(DOM_PivotTableValue, DiffersByItsBlocks)
{
    const auto makeValue = [](const std::string& text) {
        PivotTableValue value;
        value.getBlocks().push_back(makeTextBlock(text));
        return value;
    };
    EXPECT_EQ(makeValue("a"), makeValue("a"));
    EXPECT_NE(makeValue("a"), makeValue("b"));
    EXPECT_NE(makeValue("a"), PivotTableValue());
    PivotTableValue value;
    value.getBlocks().push_back(nullptr);
    EXPECT_NE(value, makeValue("a"));
    expectCopiesAndMoves(value);
}

} // namespace
} // namespace QN::DOM::PivotTableValueTest
