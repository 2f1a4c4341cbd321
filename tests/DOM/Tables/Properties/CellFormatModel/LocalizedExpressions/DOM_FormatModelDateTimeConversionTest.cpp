#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeConversion.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

#include <map>
#include <vector>

namespace QN::DOM::CellFormatModel::FormatModelDateTimeConversionTest {

namespace {

DateTimeItem field(unsigned type)
{
    return {DateTimeItem::Type(type), boost::none};
}

TextItem separator()
{
    return TextItem(TextItem::Type::Literal, "/");
}

using Pairs = std::vector<std::pair<unsigned, unsigned>>;

Pairs convert(std::vector<Rule::Item> items, bool lenient = false)
{
    Pairs pairs;
    for (const auto& item : convertDateTimeRuleToItemSet(Rule(std::move(items), boost::none), lenient)) {
        pairs.emplace_back(static_cast<unsigned>(item.token), item.props);
    }
    return pairs;
}

const std::map<unsigned, std::pair<unsigned, unsigned>> Table{
    {2, {2, 0}},  {3, {2, 0}},  {4, {0, 0}},  {5, {0, 0}},  {6, {4, 0}},  {7, {4, 0}},
    {10, {5, 0}}, {11, {5, 0}}, {14, {6, 0}}, {15, {6, 0}}, {18, {1, 0}}, {19, {1, 0}},
    {20, {1, 2}}, {21, {1, 1}}, {22, {1, 2}}, {23, {3, 1}}, {24, {3, 0}},
};

} // namespace

TEST(FormatModelDateTimeConversionTest, EachTypeOfTheTableHasItsTokenAndProps)
{
    for (const auto& [type, pair] : Table) {
        EXPECT_EQ(convert({field(type)}), Pairs{pair}) << type;
        EXPECT_EQ(convert({field(type)}, true), Pairs{pair}) << type;
    }
}

TEST(FormatModelDateTimeConversionTest, TypesBesideTheTableMakeTheRuleUnconvertibleButForZeroAndOne)
{
    for (unsigned type = 0; type < 256; ++type) {
        if (Table.count(type) != 0) {
            continue;
        }
        const Pairs day{{2, 0}};
        EXPECT_EQ(convert({field(2), field(type)}), type <= 1 ? day : Pairs{}) << type;
        EXPECT_EQ(convert({field(2), field(type)}, true), day) << type;
        EXPECT_EQ(convert({field(type)}), Pairs{}) << type;
    }
}

TEST(FormatModelDateTimeConversionTest, TextBetweenTheFieldsDoesNotMatterAndTheTokensAreSorted)
{
    EXPECT_EQ(convert({field(2), separator(), field(18), separator(), field(24)}),
              (Pairs{{1, 0}, {2, 0}, {3, 0}}));
}

TEST(FormatModelDateTimeConversionTest, TheFirstFormOfAFieldStays)
{
    EXPECT_EQ(convert({field(20), field(18)}), (Pairs{{1, 2}}));
    EXPECT_EQ(convert({field(18), field(20)}), (Pairs{{1, 0}}));
}

TEST(FormatModelDateTimeConversionTest, OtherItemsGiveTheEmptySetUnlessLenient)
{
    for (const Rule::Item& item :
         {Rule::Item(NumberItem()), Rule::Item(CurrencyItem()), Rule::Item(ExtraItem())}) {
        EXPECT_EQ(convert({field(2), item}), Pairs{});
        EXPECT_EQ(convert({item, field(2)}), Pairs{});
        EXPECT_EQ(convert({field(2), item}, true), (Pairs{{2, 0}}));
    }
}

TEST(FormatModelDateTimeConversionTest, TypesZeroAndOneForgiveWhatStandsBeforeThem)
{
    EXPECT_EQ(convert({field(2), NumberItem(), field(0)}), (Pairs{{2, 0}}));
    EXPECT_EQ(convert({field(2), NumberItem(), field(1)}), (Pairs{{2, 0}}));
    EXPECT_EQ(convert({field(2), field(8), field(0)}), (Pairs{{2, 0}}));
    EXPECT_EQ(convert({field(2), field(0), NumberItem()}), Pairs{});
    EXPECT_EQ(convert({field(2), NumberItem(), field(18)}), Pairs{});
}

TEST(FormatModelDateTimeConversionTest, AnEmptyRuleGivesTheEmptySet)
{
    EXPECT_EQ(convert({}), Pairs{});
    EXPECT_EQ(convert({}, true), Pairs{});
    EXPECT_EQ(convert({separator()}), Pairs{});
}

} // namespace QN::DOM::CellFormatModel::FormatModelDateTimeConversionTest
