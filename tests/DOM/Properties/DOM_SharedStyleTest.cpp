#include "DOM/Properties/DOM_SharedStyle.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include "DOM/Properties/StyleSamples.h"
#include "Support/RoundTrip.h"
#include "Utils/Public/ClassScheme/Ordering.h"

namespace QN::DOM::SharedStyleTest {

using namespace Test;

template <class T>
class SharedStyleTest : public ::testing::Test {
};

using StyleTypes = ::testing::Types<CellStyle, RowStyle, ColumnStyle, ParagraphStyle, RunStyle, ShapeStyle,
                                    TableStyle, NumberingLevelStyle>;
TYPED_TEST_SUITE(SharedStyleTest, StyleTypes);

static_assert(!std::is_copy_constructible_v<SharedStyle<RunStyle>>);
static_assert(!std::is_copy_assignable_v<SharedStyle<RunStyle>>);
static_assert(sizeof(SharedStylePtr<RunStyle>) == sizeof(void*));
static_assert(std::is_empty_v<SharedStyleFactoryPrivateAccessTag>);
static_assert(!std::is_default_constructible_v<SharedStyleFactoryPrivateAccessTag>);
static_assert(!std::is_aggregate_v<SharedStyleFactoryPrivateAccessTag>);

template <class T>
concept HolderMakeableByAnyone = requires(T style)
{
    SharedStyle<T>(style, {});
};
static_assert(!HolderMakeableByAnyone<RunStyle>);

TYPED_TEST(SharedStyleTest, ANullHandleStandsForOneEmptyStyleOfTheProcess)
{
    const SharedStylePtr<TypeParam> null;
    EXPECT_TRUE(isEmptyStyle(null));
    EXPECT_TRUE(derefSharedStyle(null).isEmpty());
    EXPECT_EQ(derefSharedStyle(null), TypeParam());
    EXPECT_EQ(&derefSharedStyle(null), &derefSharedStyle(SharedStylePtr<TypeParam>()));
    EXPECT_EQ(&derefSharedStyle(null), &SharedStyle<TypeParam>::getEmpty());
}

TYPED_TEST(SharedStyleTest, AHandleToAnEmptyStyleIsEmptyAndYetUnequalToANullOne)
{
    const auto empty = shareEmpty<TypeParam>();
    EXPECT_TRUE(isEmptyStyle(empty));
    EXPECT_NE(&derefSharedStyle(empty), &SharedStyle<TypeParam>::getEmpty());
    EXPECT_FALSE(areMembersDeeplyEqual(empty, SharedStylePtr<TypeParam>()));
    EXPECT_TRUE(compareDeeply(SharedStylePtr<TypeParam>(), empty, NanOrder::Unordered) < 0);
    EXPECT_TRUE(areMembersDeeplyEqual(empty, shareEmpty<TypeParam>()));
}

TYPED_TEST(SharedStyleTest, ANullHandlePersistsAsTheIdZero)
{
    EXPECT_EQ(toJson(SharedStylePtr<TypeParam>()), R"({"object":{"id":0}})");
    EXPECT_EQ(fromJson<SharedStylePtr<TypeParam>>(R"({"object":{"id":0}})"), nullptr);
}

TYPED_TEST(SharedStyleTest, AHandlePersistsAsAPlainPointerWithoutAKeyToAnObjectWithTheStyle)
{
    const auto empty = shareEmpty<TypeParam>();
    EXPECT_EQ(toJson(empty),
              R"({"object":{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_style":)" +
                  toJson(TypeParam()) + "}}}}}");
    expectPersists(empty);
}

TYPED_TEST(SharedStyleTest, AHandleThatIsNotValidInsideLoadsAsNull)
{
    EXPECT_EQ(fromJson<SharedStylePtr<TypeParam>>(
                  R"({"object":{"id":2147483649,"value0":{"ptr_wrapper":{"valid":0}}}})"),
              nullptr);
}

TEST(SharedStyleHandleTest, TwoHandlesToOneStyleAreWrittenOnceAndStayOne)
{
    const auto style = share(withParent<RunStyle>(SomeUUID));
    const std::vector<SharedStylePtr<RunStyle>> handles{style, style, nullptr, style};
    const std::string json = toJson(handles);
    EXPECT_EQ(json, R"({"object":[{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_style":)" +
                        toJson(style->get()) + R"(}}}},{"id":1},{"id":0},{"id":1}]})");
    const auto loaded = fromJson<std::vector<SharedStylePtr<RunStyle>>>(json);
    ASSERT_EQ(loaded.size(), 4U);
    EXPECT_EQ(loaded[0]->get(), style->get());
    EXPECT_EQ(loaded[0], loaded[1]);
    EXPECT_EQ(loaded[2], nullptr);
    EXPECT_EQ(loaded[0], loaded[3]);
}

TEST(SharedStyleHandleTest, AnIdThatNoHandleStatedBeforeIsRefused)
{
    EXPECT_EQ(loadError<SharedStylePtr<RunStyle>>(R"({"object":{"id":3}})"),
              "Error while trying to deserialize a smart pointer. Could not find id 3");
}

TEST(SharedStyleHandleTest, AnIdOfAStyleOfAnotherTypeIsRefused)
{
    std::string json = toJson(std::make_pair(shareEmpty<RunStyle>(), SharedStylePtr<ParagraphStyle>()));
    json.replace(json.rfind("\"id\":0"), 6, "\"id\":1");
    using Pair = std::pair<SharedStylePtr<RunStyle>, SharedStylePtr<ParagraphStyle>>;
    EXPECT_EQ(loadError<Pair>(json),
              "Error while trying to deserialize a smart pointer. Could not find id 1");
}

TEST(SharedStyleHandleTest, OfTwoStylesThatAFileStatesUnderOneIdTheLaterIsMeantFromThenOn)
{
    const auto state = [](const UUID& parent) {
        return R"({"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_style":)" +
               toJson(withParent<RunStyle>(parent)) + "}}}}";
    };
    const auto loaded = fromJson<std::vector<SharedStylePtr<RunStyle>>>(
        R"({"object":[)" + state(SomeUUID) + "," + state(OtherUUID) + R"(,{"id":1}]})");
    ASSERT_EQ(loaded.size(), 3U);
    EXPECT_EQ(loaded[0]->get().getParentUUID(), SomeUUID);
    EXPECT_EQ(loaded[1]->get().getParentUUID(), OtherUUID);
    EXPECT_EQ(loaded[2], loaded[1]);
}

TEST(SharedStyleHandleTest, AStyleThatRefersToItselfIsRefused)
{
    std::string json = toJson(shareEmpty<RowStyle>());
    const std::string null = R"("_defaultCellStyle":{"id":0})";
    json.replace(json.find(null), null.size(), R"("_defaultCellStyle":{"id":1})");
    EXPECT_EQ(loadError<SharedStylePtr<RowStyle>>(json),
              "Error while trying to deserialize a smart pointer. Could not find id 1");
}

TEST(SharedStyleHandleTest, ALoadedStyleIsDestroyedWithItsLastHandle)
{
    const auto props = makeRunProps(1.0F);
    RunStyle style;
    style.setRunProps(props);
    auto handle = share(std::move(style));
    EXPECT_EQ(props.use_count(), 2);
    auto other = handle;
    handle.reset();
    EXPECT_EQ(props.use_count(), 2);
    other.reset();
    EXPECT_EQ(props.use_count(), 1);
}

TEST(SharedStyleHandleTest, HandlesAreCopiedAndDroppedInSeveralThreads)
{
    const auto props = makeRunProps(1.0F);
    auto handle = share(with<RunStyle>([&](RunStyle& style) { style.setRunProps(props); }));
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([handle] {
            std::vector<SharedStylePtr<RunStyle>> copies;
            for (int round = 0; round < 1000; ++round) {
                copies.push_back(handle);
                EXPECT_FALSE(isEmptyStyle(copies.back()));
            }
        });
    }
    handle.reset();
    for (std::thread& thread : threads) {
        thread.join();
    }
    threads.clear();
    EXPECT_EQ(props.use_count(), 1);
}

TEST(SharedStyleHandleTest, AHandleToAStyleWithOneCommentIsNotEmpty)
{
    const auto style = share(with<RunStyle>([](RunStyle& s) { s.getCommentUUIDs().push_back(SomeUUID); }));
    EXPECT_FALSE(isEmptyStyle(style));
}

} // namespace QN::DOM::SharedStyleTest
