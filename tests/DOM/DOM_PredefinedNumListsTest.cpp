#include "DOM/DOM_PredefinedNumLists.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_NumListMarker.h"
#include "DOM/Properties/StyleSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PredefinedNumListsTest {

using namespace Test;

namespace {

constexpr std::size_t ListCount = 15;
constexpr std::size_t LevelCount = 9;

NumberedListName toName(int number)
{
    return static_cast<NumberedListName>(number);
}

const NumberedList& getList(const std::vector<NumberedList>& lists, int name)
{
    for (const NumberedList& list : lists) {
        if (list.getName() == toName(name)) {
            return list;
        }
    }
    ADD_FAILURE() << "no list " << name;
    return lists.front();
}

std::vector<int> getNames(const std::vector<NumberedList>& lists)
{
    std::vector<int> names;
    for (const NumberedList& list : lists) {
        names.push_back(static_cast<int>(list.getName()));
    }
    return names;
}

const std::vector<int> NamesInOrder{3, 4, 5, 7, 6, 8, 9, 10, 12, 16, 13, 15, 14, 17, 11};

/// Checks a level as a whole: what it is made of, and that there is nothing else to it.
void expectLevel(const NumberedList& list, std::size_t level, int type, const std::string& text,
                 const char* font, float firstLineIndent, float leftIndent)
{
    SCOPED_TRACE("list " + std::to_string(static_cast<int>(list.getName())) + " level " +
                 std::to_string(level));
    ASSERT_EQ(list.getNumberingLevels().size(), LevelCount);
    const NumberingLevel& actual = list.getNumberingLevels()[level - 1];
    EXPECT_EQ(*actual.getListMarker(), with<NumListMarker>([&](NumListMarker& marker) {
        marker.setType(static_cast<NumberFormatType>(type));
        marker.setTextExpr(text);
        if (type != 5) {
            marker.setStartIndex(1UL);
        }
    })) << toJson(*actual.getListMarker());
    const auto paraProps = sharedWith<ParaProps>([&](ParaProps& props) {
        props.setFirstLineIndent(firstLineIndent);
        props.setLeftIndent(leftIndent);
    });
    std::shared_ptr<const RunProps> runProps;
    if (font != nullptr) {
        runProps = sharedWith<RunProps>([&](RunProps& props) {
            props.setFontProps(
                sharedWith<FontProps>([&](FontProps& fontProps) { fontProps.setFont(std::string(font)); }));
        });
    }
    EXPECT_EQ(actual.getStyle(), NumberingLevelStyle(paraProps, runProps)) << toJson(actual.getStyle());
}

struct Bullet {
    const char* glyph;
    const char* font;
};

constexpr Bullet Disc{"\xEF\x82\xB7", "Symbol"}; // U+F0B7
constexpr Bullet Circle{"o", "Courier New"};
constexpr Bullet Square{"\xEF\x82\xA7", "Wingdings"};   // U+F0A7
constexpr Bullet Arrow{"\xEF\x83\x98", "Wingdings"};    // U+F0D8
constexpr Bullet Diamonds{"\xEF\x81\xB6", "Wingdings"}; // U+F076
constexpr Bullet Check{"\xEF\x83\xBC", "Wingdings"};    // U+F0FC
constexpr Bullet Hyphen{"-", "Calibri"};

void expectBullets(const std::vector<NumberedList>& lists, int name, const std::array<Bullet, 3>& bullets)
{
    const NumberedList& list = getList(lists, name);
    for (std::size_t level = 1; level <= LevelCount; ++level) {
        const Bullet& bullet = bullets[(level - 1) % 3];
        expectLevel(list, level, 5, bullet.glyph, bullet.font, static_cast<float>(level) * 36.0F - 18.0F,
                    static_cast<float>(level) * 36.0F);
    }
}

void expectCounters(const std::vector<NumberedList>& lists, int name, const std::array<int, 3>& types,
                    const std::string& closings)
{
    const NumberedList& list = getList(lists, name);
    for (std::size_t level = 1; level <= LevelCount; ++level) {
        expectLevel(list, level, types[(level - 1) % 3], "%" + std::to_string(level) + closings[level - 1],
                    nullptr, static_cast<float>(level) * 36.0F - 18.0F, static_cast<float>(level) * 36.0F);
    }
}

} // namespace

TEST(PredefinedNumListsTest, ThereAreFifteenListsOfNineLevelsInTheirOrder)
{
    const auto lists = createPredefinedNumLists(SharedObjectFactory());
    ASSERT_EQ(lists.size(), ListCount);
    for (const NumberedList& list : lists) {
        EXPECT_EQ(list.getNumberingLevels().size(), LevelCount);
        EXPECT_TRUE(list.getUUID());
    }
    EXPECT_EQ(getNames(lists), NamesInOrder);
}

TEST(PredefinedNumListsTest, BulletsRepeatEveryThreeLevels)
{
    const auto lists = createPredefinedNumLists(SharedObjectFactory());
    expectBullets(lists, 3, {Disc, Circle, Square});
    expectBullets(lists, 4, {Circle, Arrow, Square});
    expectBullets(lists, 5, {Square, Circle, Arrow});
    expectBullets(lists, 7, {Hyphen, Circle, Square});
    expectBullets(lists, 6, {Diamonds, Arrow, Square});
    expectBullets(lists, 8, {Arrow, Diamonds, Check});
    expectBullets(lists, 9, {Check, Square, Circle});
}

TEST(PredefinedNumListsTest, TypesOfCountersRepeatEveryThreeLevels)
{
    const auto lists = createPredefinedNumLists(SharedObjectFactory());
    expectCounters(lists, 10, {0, 4, 2}, ".........");
    expectCounters(lists, 16, {1, 4, 0}, ".........");
    expectCounters(lists, 13, {3, 0, 2}, ".........");
    expectCounters(lists, 15, {4, 0, 2}, ")))))))))");
    expectCounters(lists, 14, {4, 0, 2}, ".........");
    expectCounters(lists, 17, {2, 4, 0}, ".........");
}

TEST(PredefinedNumListsTest, TheDecimalListWithParenthesesEndsInFullStopsFromLevelSevenOn)
{
    expectCounters(createPredefinedNumLists(SharedObjectFactory()), 12, {0, 4, 2}, "))))))...");
}

TEST(PredefinedNumListsTest, TheOutlineJoinsTheCountersOfAllLevelsAbove)
{
    const auto lists = createPredefinedNumLists(SharedObjectFactory());
    const NumberedList& list = getList(lists, 11);
    expectLevel(list, 1, 0, "%1.", nullptr, 18.0F, 18.0F);
    expectLevel(list, 2, 0, "%1.%2.", nullptr, 36.0F, 39.5F);
    expectLevel(list, 3, 0, "%1.%2.%3.", nullptr, 54.0F, 61.25F);
    expectLevel(list, 4, 0, "%1.%2.%3.%4.", nullptr, 72.0F, 86.5F);
    expectLevel(list, 5, 0, "%1.%2.%3.%4.%5.", nullptr, 90.0F, 111.5F);
    expectLevel(list, 6, 0, "%1.%2.%3.%4.%5.%6.", nullptr, 108.0F, 136.75F);
    expectLevel(list, 7, 0, "%1.%2.%3.%4.%5.%6.%7.", nullptr, 126.0F, 162.0F);
    expectLevel(list, 8, 0, "%1.%2.%3.%4.%5.%6.%7.%8.", nullptr, 144.0F, 187.25F);
    expectLevel(list, 9, 0, "%1.%2.%3.%4.%5.%6.%7.%8.%9.", nullptr, 162.0F, 216.0F);
}

TEST(PredefinedNumListsTest, LevelsThreeAndSixOfAListDifferInTheirIndentsAlone)
{
    const auto lists = createPredefinedNumLists(SharedObjectFactory());
    const auto levels = getList(lists, 3).getNumberingLevels();
    EXPECT_EQ(*levels[2].getListMarker(), *levels[5].getListMarker());
    EXPECT_NE(levels[2], levels[5]);
    EXPECT_SAME(levels[2].getStyle().getParaProps()->getFirstLineIndent(), 90.0F);
    EXPECT_SAME(levels[2].getStyle().getParaProps()->getLeftIndent(), 108.0F);
    EXPECT_SAME(levels[5].getStyle().getParaProps()->getFirstLineIndent(), 198.0F);
    EXPECT_SAME(levels[5].getStyle().getParaProps()->getLeftIndent(), 216.0F);
}

TEST(PredefinedNumListsTest, TheLevelsShareFortyTwoStylesFromTheGivenPools)
{
    const SharedObjectFactory factory;
    const auto lists = createPredefinedNumLists(factory);
    std::set<SharedStylePtr<NumberingLevelStyle>> styles;
    for (const NumberedList& list : lists) {
        for (const NumberingLevel& level : list.getNumberingLevels()) {
            ASSERT_NE(level.getSharedStyle(), nullptr);
            styles.insert(level.getSharedStyle());
            EXPECT_EQ(factory.create(level.getStyle()), level.getSharedStyle());
        }
    }
    EXPECT_EQ(styles.size(), 42U);
}

TEST(PredefinedNumListsTest, EachCallMakesListsOfAnIdentityOfTheirOwn)
{
    const SharedObjectFactory factory;
    EXPECT_NE(createPredefinedNumLists(factory)[0].getUUID(), createPredefinedNumLists(factory)[0].getUUID());
}

TEST(PredefinedNumListsTest, AppendingToAnEmptyVectorAddsAllInTheirOrder)
{
    const SharedObjectFactory factory;
    std::vector<NumberedList> lists;
    appendPredefinedNumLists(factory, lists);
    EXPECT_EQ(getNames(lists), NamesInOrder);
}

TEST(PredefinedNumListsTest, AppendingAgainAddsNothing)
{
    const SharedObjectFactory factory;
    std::vector<NumberedList> lists;
    appendPredefinedNumLists(factory, lists);
    const std::vector<NumberedList> before(lists);
    appendPredefinedNumLists(factory, lists);
    EXPECT_EQ(lists, before);
    appendPredefinedNumLists(SharedObjectFactory(), lists);
    EXPECT_EQ(lists, before);
}

TEST(PredefinedNumListsTest, AListWithTheSameLevelsUnderAnotherNameIsEnough)
{
    const SharedObjectFactory factory;
    std::vector<NumberedList> lists{getList(createPredefinedNumLists(factory), 10)};
    lists[0].setName(toName(200));
    const UUID uuid = lists[0].getUUID();
    appendPredefinedNumLists(factory, lists);
    EXPECT_EQ(lists[0].getUUID(), uuid);
    EXPECT_EQ(getNames(lists), (std::vector<int>{200, 3, 4, 5, 7, 6, 8, 9, 12, 16, 13, 15, 14, 17, 11}));
}

TEST(PredefinedNumListsTest, AListWithFewerLevelsOrANullOneIsNotEnough)
{
    const SharedObjectFactory factory;
    std::vector<NumberedList> lists(2, getList(createPredefinedNumLists(factory), 10));
    lists[0].getNumberingLevels().pop_back();
    lists[1].getNumberingLevels()[4].reset();
    appendPredefinedNumLists(factory, lists);
    std::vector<int> names{10, 10};
    names.insert(names.end(), NamesInOrder.begin(), NamesInOrder.end());
    EXPECT_EQ(getNames(lists), names);
}

TEST(PredefinedNumListsTest, EveryListPersists)
{
    for (const NumberedList& list : createPredefinedNumLists(SharedObjectFactory())) {
        expectRoundTrip(list);
    }
}

} // namespace QN::DOM::PredefinedNumListsTest
