#include "DOM/Tables/DOM_FieldCache.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::FieldCacheTest {
namespace {

using namespace QN::Test;

FieldCache makeNilCache()
{
    FieldCache cache;
    cache.setUUID(UUID());
    return cache;
}

const Block& getOnlyBlock(const FieldCache& cache, ColumnID id)
{
    EXPECT_EQ(cache.getValues(id)->size(), 1U);
    EXPECT_EQ(cache.getValues(id)->front().getBlocks().size(), 1U);
    return cache.getValues(id)->front().getBlocks()[0];
}

TEST(DOM_FieldCache, HasNoValuesForAnUnknownField)
{
    FieldCache cache;
    EXPECT_EQ(cache.getValues(ColumnID(1)), nullptr);
    cache.addValue(ColumnID(1), PivotTableValue());
    EXPECT_EQ(cache.getValues(ColumnID(2)), nullptr);
    EXPECT_EQ(cache.getValues(ColumnID(1))->size(), 1U);
}

TEST(DOM_FieldCache, MakesAParagraphOfAText)
{
    FieldCache cache;
    cache.addValue(ColumnID(1), std::string("apple"));
    cache.addValue(ColumnID(2), "apple");
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(1)), *makeTextBlock("apple")));
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(2)), *makeTextBlock("apple")));
}

TEST(DOM_FieldCache, MakesAParagraphWithoutRunOfAnEmptyText)
{
    FieldCache cache;
    cache.addValue(ColumnID(1), "");
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(1)), Paragraph()));
}

TEST(DOM_FieldCache, MakesAFieldBlockOfANumberAndOfABoolean)
{
    FieldCache cache;
    cache.addValue(ColumnID(1), 1.5);
    cache.addValue(ColumnID(2), BlockValue<FloatNumber>(FloatNumber(2.5)));
    cache.addValue(ColumnID(3), true);
    cache.addValue(ColumnID(4), 3);
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(1)), *makeNumberBlock(1.5)));
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(2)), *makeNumberBlock(2.5)));
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(3)), *makeFieldBlock(BlockValue<bool>(true))));
    EXPECT_TRUE(areDeeplyEqual(getOnlyBlock(cache, ColumnID(4)), *makeNumberBlock(3.0)));
}

TEST(DOM_FieldCacheDeathTest, TakesFiniteNumbersAlone)
{
    FieldCache cache;
    EXPECT_DEATH(cache.addValue(ColumnID(1), std::numeric_limits<double>::infinity()),
                 R"(DOM_BlockValue\.cpp:[0-9]+: isfinite\(value\))");
    EXPECT_DEATH(cache.addValue(ColumnID(1), std::numeric_limits<double>::quiet_NaN()),
                 R"(DOM_BlockValue\.cpp:[0-9]+: isfinite\(value\))");
}

TEST(DOM_FieldCache, KeepsTheValuesOfAFieldInTheOrderOfAdding)
{
    FieldCache cache;
    cache.addValue(ColumnID(1), 2.0);
    cache.addValue(ColumnID(1), 1.0);
    ASSERT_EQ(cache.getValues(ColumnID(1))->size(), 2U);
    EXPECT_TRUE(areDeeplyEqual((*cache.getValues(ColumnID(1)))[0].getBlocks()[0], *makeNumberBlock(2.0)));
    cache.reset();
    EXPECT_EQ(cache.getValues(ColumnID(1)), nullptr);
}

TEST(DOM_FieldCache, SharesNoBlockWithItsCopy)
{
    FieldCache cache;
    cache.addValue(ColumnID(1), "apple");
    const FieldCache copy(cache);
    EXPECT_NE(&getOnlyBlock(copy, ColumnID(1)), &getOnlyBlock(cache, ColumnID(1)));
}

TEST(DOM_FieldCache, HasAnIdentityThatTakesPartInEquality)
{
    EXPECT_NE(FieldCache(), FieldCache());
    EXPECT_EQ(makeNilCache(), makeNilCache());
    FieldCache cache = makeNilCache();
    cache.addValue(ColumnID(1), true);
    EXPECT_NE(cache, makeNilCache());
    expectCopiesAndMoves(cache);
}

TEST(DOM_FieldCache, WritesItsIdentityAndThenItsFieldsByIdentifier)
{
    const std::string base = R"({"value0":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},)";
    expectText(makeNilCache(), base + R"("_fieldValueCache":[]})");
    FieldCache cache = makeNilCache();
    cache.addValue(ColumnID(9), PivotTableValue());
    cache.addValue(ColumnID(2), PivotTableValue());
    const std::string value = R"({"_blocks":[],"_style":{"id":0}})";
    expectText(cache, base + R"("_fieldValueCache":[{"key":{"_value":2},"value":[)" + value +
                          R"(]},{"key":{"_value":9},"value":[)" + value + "]}]}");
}

} // namespace
} // namespace QN::DOM::FieldCacheTest
