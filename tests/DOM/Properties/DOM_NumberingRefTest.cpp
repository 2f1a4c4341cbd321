#include "DOM/Properties/DOM_NumberingRef.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NumberingRefTest {

using namespace Test;

namespace {

NumberingRef makeRef(const UUID& tag, const UUID& list, unsigned long level)
{
    return with<NumberingRef>([&](NumberingRef& ref) {
        ref.setListTagUUID(ListTagUUID(tag));
        ref.setNumListUUID(NumListUUID(list));
        ref.setLevel(level);
    });
}

} // namespace

static_assert(!std::is_same_v<ListTagUUID, NumListUUID>);

TEST(NumberingRefTest, EveryMemberIsAbsentByDefault)
{
    const NumberingRef ref;
    EXPECT_FALSE(ref.getListTagUUID());
    EXPECT_FALSE(ref.getNumListUUID());
    EXPECT_FALSE(ref.getLevel());
    EXPECT_EQ(toJson(ref), R"({"_listTagUUID":{"hasValue":false},"_numListUUID":{"hasValue":false},)"
                           R"("_level":{"hasValue":false}})");
}

TEST(NumberingRefTest, ASetMemberIsReadBackAndPersists)
{
    const NumberingRef ref = makeRef(SomeUUID, OtherUUID, 18446744073709551615UL);
    EXPECT_EQ(ref.getListTagUUID()->get(), SomeUUID);
    EXPECT_EQ(ref.getNumListUUID()->get(), OtherUUID);
    EXPECT_EQ(*ref.getLevel(), 18446744073709551615UL);
    EXPECT_EQ(toJson(ref),
              R"({"_listTagUUID":{"hasValue":true,"value":{"_value":{"_id":")" + SomeUUID.toString() +
                  R"("}}},"_numListUUID":{"hasValue":true,"value":{"_value":{"_id":")" +
                  OtherUUID.toString() + R"("}}},"_level":{"hasValue":true,"value":18446744073709551615}})");
    expectPersists(ref);
    expectPersists(NumberingRef());
    expectCopiesAndMoves(ref);
}

TEST(NumberingRefTest, EachMemberTakesPartInEquality)
{
    const NumberingRef ref = makeRef(SomeUUID, SomeUUID, 1);
    EXPECT_EQ(ref, makeRef(SomeUUID, SomeUUID, 1));
    EXPECT_NE(ref, makeRef(OtherUUID, SomeUUID, 1));
    EXPECT_NE(ref, makeRef(SomeUUID, OtherUUID, 1));
    EXPECT_NE(ref, makeRef(SomeUUID, SomeUUID, 2));
}

TEST(NumberingRefTest, AReferenceThatLacksEitherUUIDIsEmpty)
{
    std::unique_ptr<NumberingRef> ref;
    EXPECT_TRUE(isEmpty(ref));
    ref = std::make_unique<NumberingRef>();
    EXPECT_TRUE(isEmpty(ref));
    ref->setListTagUUID(ListTagUUID(SomeUUID));
    EXPECT_TRUE(isEmpty(ref));
    ref->setNumListUUID(NumListUUID(SomeUUID));
    EXPECT_FALSE(isEmpty(ref));
    ref->setLevel(3UL);
    EXPECT_FALSE(isEmpty(ref));
    ref->setListTagUUID(boost::none);
    EXPECT_TRUE(isEmpty(ref));
}

TEST(NumberingRefTest, AReferenceToNilUUIDsIsNotEmpty)
{
    EXPECT_FALSE(isEmpty(std::make_unique<NumberingRef>(makeRef(UUID(), UUID(), 0))));
}

TEST(NumberingRefTest, CombinesAsThreeOptionals)
{
    NumberingRef target = makeRef(SomeUUID, SomeUUID, 1);
    override(target, with<NumberingRef>([](NumberingRef& ref) { ref.setLevel(2UL); }));
    EXPECT_EQ(target, makeRef(SomeUUID, SomeUUID, 2));

    intersect(target, makeRef(SomeUUID, OtherUUID, 2));
    EXPECT_FALSE(target.getNumListUUID());
    EXPECT_TRUE(target.getListTagUUID());
    EXPECT_TRUE(target.getLevel());

    exclude(target, makeRef(SomeUUID, OtherUUID, 3));
    EXPECT_EQ(target, with<NumberingRef>([](NumberingRef& ref) { ref.setLevel(2UL); }));

    rebaseProperty(target, makeRef(SomeUUID, SomeUUID, 5), makeRef(UUID(), SomeUUID, 0),
                   with<NumberingRef>([](NumberingRef& ref) { ref.setNumListUUID(NumListUUID(SomeUUID)); }));
    EXPECT_FALSE(
        target.getListTagUUID()); // a nil reference agrees with an absent one, but no target is there
    EXPECT_EQ(target.getNumListUUID()->get(), SomeUUID);
    EXPECT_EQ(*target.getLevel(), 5UL); // level 0 agrees with an absent one
}

} // namespace QN::DOM::NumberingRefTest
