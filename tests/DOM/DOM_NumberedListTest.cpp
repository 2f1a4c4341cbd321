#include "DOM/DOM_NumberedList.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "DOM/DOM_NumListMarker.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NumberedListTest {

using namespace Test;

static_assert(std::is_base_of_v<UUIDable, NumberedList>);
static_assert(std::is_same_v<std::underlying_type_t<NumberedListName>, unsigned char>);

namespace {

std::unique_ptr<NumberingLevel> makeLevel(unsigned long start)
{
    auto level = std::make_unique<NumberingLevel>();
    level->setListMarker(
        sharedWith<NumListMarker>([&](NumListMarker& marker) { marker.setStartIndex(start); }));
    return level;
}

NumberedList makeList()
{
    NumberedList list(SomeUUID);
    list.setName(NumberedListName::Outline);
    list.getNumberingLevels().push_back(makeLevel(1));
    list.getNumberingLevels().push_back(nullptr);
    list.getNumberingLevels().push_back(makeLevel(2));
    return list;
}

} // namespace

TEST(NumberedListTest, ANewListHasAnIdentityAndNoLevels)
{
    const NumberedList list;
    EXPECT_TRUE(list.getUUID());
    EXPECT_NE(list.getUUID(), NumberedList().getUUID());
    EXPECT_TRUE(list.getNumberingLevels().empty());
    EXPECT_EQ(static_cast<int>(list.getName()), 0);
}

TEST(NumberedListTest, TheBaseIsWrittenFirstThenTheLevelsAndTheName)
{
    EXPECT_EQ(toJson(NumberedList(SomeUUID)),
              R"({"value0":{"_uuid":{"_id":")" + SomeUUID.toString() + R"("}},"_levels":[],"_name":0})");
    NumberedList list(SomeUUID);
    list.setName(static_cast<NumberedListName>(255));
    list.getNumberingLevels().push_back(std::make_unique<NumberingLevel>());
    list.getNumberingLevels().push_back(nullptr);
    EXPECT_EQ(toJson(list), R"({"value0":{"_uuid":{"_id":")" + SomeUUID.toString() +
                                R"("}},"_levels":[{"ptr_wrapper":{"valid":1,"data":)" +
                                toJson(NumberingLevel()) + R"(}},{"ptr_wrapper":{"valid":0}}],"_name":255})");
}

TEST(NumberedListTest, PersistsWithNullLevels)
{
    expectPersists(makeList());
    expectPersists(NumberedList());
    expectCopiesAndMoves(makeList());
}

TEST(NumberedListTest, ACopyOwnsItsLevelsAndSharesTheirMarkers)
{
    const NumberedList list = makeList();
    NumberedList copy(list);
    EXPECT_EQ(copy, list);
    EXPECT_EQ(copy.getUUID(), list.getUUID());
    EXPECT_NE(copy.getNumberingLevels()[0].get(), &list.getNumberingLevels()[0]);
    EXPECT_EQ(copy.getNumberingLevels()[1], nullptr);
    EXPECT_EQ(copy.getNumberingLevels()[0]->getListMarker(), list.getNumberingLevels()[0].getListMarker());
    copy.getNumberingLevels()[0]->setListMarker(nullptr);
    EXPECT_EQ(list, makeList());
}

TEST(NumberedListTest, AConstListGivesItsLevelsForReadingOnly)
{
    const NumberedList list = makeList();
    static_assert(std::is_same_v<decltype(list.getNumberingLevels()[0]), const NumberingLevel&>);
    EXPECT_EQ(list.getNumberingLevels().size(), 3U);
    EXPECT_EQ(list.getNumberingLevels()[2], *makeLevel(2));
    EXPECT_EQ(list.getNumberingLevels().getPointer(1), nullptr);
}

TEST(NumberedListDeathTest, ReadingANullLevelOfAConstListFailsTheContract)
{
    const NumberedList list = makeList();
    EXPECT_DEATH(list.getNumberingLevels()[1], "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

TEST(NumberedListTest, IdentityLevelsAndNameTakePartInEquality)
{
    const auto changed = [](auto change) {
        NumberedList list = makeList();
        change(list);
        return list;
    };
    EXPECT_EQ(makeList(), makeList());
    EXPECT_NE(makeList(), changed([](NumberedList& list) { list.setUUID(OtherUUID); }));
    EXPECT_NE(makeList(), changed([](NumberedList& list) { list.setName(NumberedListName::None); }));
    EXPECT_NE(makeList(), changed([](NumberedList& list) { list.getNumberingLevels().pop_back(); }));
    EXPECT_NE(makeList(), changed([](NumberedList& list) { list.getNumberingLevels()[1] = makeLevel(1); }));
}

} // namespace QN::DOM::NumberedListTest
