#include "DOM/Properties/DOM_SharedStyleFactory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <new>
#include <random>
#include <set>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include "DOM/Properties/StyleSamples.h"
#include "Support/AllocationCount.h"

namespace QN::DOM::SharedStyleFactoryTest {

using namespace Test;

namespace {

using RunStyleFactory = SharedStyleFactory<RunStyle, StyleSharingPolicy::EmptyIsNull>;
using CellStyleFactory = SharedStyleFactory<CellStyle, StyleSharingPolicy::EmptyIsShared>;

RunStyle makeStyle(float spacing)
{
    return with<RunStyle>([&](RunStyle& style) { style.setRunProps(makeRunProps(spacing)); });
}

} // namespace

static_assert(static_cast<int>(StyleSharingPolicy::EmptyIsNull) == 0);
static_assert(static_cast<int>(StyleSharingPolicy::EmptyIsShared) == 1);
static_assert(std::is_nothrow_move_constructible_v<RunStyleFactory>);
static_assert(std::is_nothrow_move_assignable_v<RunStyleFactory>);

TEST(SharedStyleFactoryTest, AnEmptyStyleIsNullWhereThePolicySaysSo)
{
    const RunStyleFactory factory;
    EXPECT_EQ(factory.create(RunStyle()), nullptr);
}

TEST(SharedStyleFactoryTest, AnEmptyStyleIsSharedLikeAnyOtherWhereThePolicySaysSo)
{
    const CellStyleFactory factory;
    const auto style = factory.create(CellStyle());
    ASSERT_NE(style, nullptr);
    EXPECT_TRUE(style->get().isEmpty());
    EXPECT_EQ(factory.create(CellStyle()), style);
}

TEST(SharedStyleFactoryTest, EqualStylesAreOneObject)
{
    const RunStyleFactory factory;
    const auto style = factory.create(makeStyle(1.0F));
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->get(), makeStyle(1.0F));
    EXPECT_EQ(factory.create(makeStyle(1.0F)), style);
    EXPECT_NE(factory.create(makeStyle(2.0F)), style);
}

TEST(SharedStyleFactoryTest, AStyleThatDiffersOnlyInItsParentIsAnotherObject)
{
    const RunStyleFactory factory;
    RunStyle style = makeStyle(1.0F);
    const auto first = factory.create(style);
    style.setParentUUID(SomeUUID);
    const auto second = factory.create(style);
    EXPECT_NE(first, second);
    style.setParentUUID(OtherUUID);
    EXPECT_NE(factory.create(style), second);
    style.setParentUUID(SomeUUID);
    EXPECT_EQ(factory.create(style), second);
}

TEST(SharedStyleFactoryTest, ManyStylesInAnyOrderAreFoundAgain)
{
    constexpr unsigned Seed = 20261;
    SCOPED_TRACE(Seed);
    std::mt19937 random(Seed);
    std::vector<int> numbers(500);
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        numbers[index] = static_cast<int>(index);
    }
    const RunStyleFactory factory;
    std::vector<SharedStylePtr<RunStyle>> styles(numbers.size());
    for (int round = 0; round < 3; ++round) {
        std::shuffle(numbers.begin(), numbers.end(), random);
        for (const int number : numbers) {
            const auto style = factory.create(makeStyle(static_cast<float>(number)));
            auto& known = styles[static_cast<std::size_t>(number)];
            if (!known) {
                known = style;
            }
            EXPECT_EQ(style, known) << number;
        }
    }
    EXPECT_EQ(std::set<SharedStylePtr<RunStyle>>(styles.begin(), styles.end()).size(), numbers.size());
}

TEST(SharedStyleFactoryTest, AStyleLivesAsLongAsItsFactory)
{
    const auto props = makeRunProps(1.0F);
    const auto style = with<RunStyle>([&](RunStyle& s) { s.setRunProps(props); });
    const auto before = props.use_count();
    {
        const RunStyleFactory factory;
        const SharedStyle<RunStyle>* const address = factory.create(style).get();
        EXPECT_EQ(props.use_count(), before + 1);
        EXPECT_EQ(factory.create(style).get(), address);
    }
    EXPECT_EQ(props.use_count(), before);
}

TEST(SharedStyleFactoryTest, AStyleOutlivesAFactoryThatIsGone)
{
    SharedStylePtr<RunStyle> style;
    {
        const RunStyleFactory factory;
        style = factory.create(makeStyle(1.0F));
    }
    EXPECT_EQ(style->get(), makeStyle(1.0F));
}

TEST(SharedStyleFactoryTest, ACopySharesTheStylesOfItsSourceAndGrowsOnItsOwn)
{
    const RunStyleFactory source;
    const auto old = source.create(makeStyle(1.0F));
    const RunStyleFactory copy(source);
    EXPECT_EQ(copy.create(makeStyle(1.0F)), old);

    const auto inSource = source.create(makeStyle(2.0F));
    const auto inCopy = copy.create(makeStyle(2.0F));
    EXPECT_NE(inSource, inCopy);
    EXPECT_EQ(source.create(makeStyle(2.0F)), inSource);
    EXPECT_EQ(copy.create(makeStyle(2.0F)), inCopy);
}

TEST(SharedStyleFactoryTest, AssignmentReplacesTheStyles)
{
    const RunStyleFactory source;
    const auto inSource = source.create(makeStyle(1.0F));
    RunStyleFactory target;
    const auto inTarget = target.create(makeStyle(1.0F));
    target = source;
    EXPECT_EQ(target.create(makeStyle(1.0F)), inSource);
    EXPECT_NE(inTarget, inSource);
}

TEST(SharedStyleFactoryTest, AssignmentToItselfChangesNothing)
{
    RunStyleFactory factory;
    const auto style = factory.create(makeStyle(1.0F));
    const RunStyleFactory& itself = factory;
    factory = itself;
    EXPECT_EQ(factory.create(makeStyle(1.0F)), style);
    RunStyleFactory& other = factory;
    factory = std::move(other);
    EXPECT_EQ(factory.create(makeStyle(1.0F)), style);
}

TEST(SharedStyleFactoryTest, AMoveTakesTheStylesOver)
{
    RunStyleFactory source;
    const auto style = source.create(makeStyle(1.0F));
    RunStyleFactory moved(std::move(source));
    EXPECT_EQ(moved.create(makeStyle(1.0F)), style);
    RunStyleFactory assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.create(makeStyle(1.0F)), style);
}

TEST(SharedStyleFactoryTest, AFactoryThatWasMovedFromHasNoStylesAndTakesNewOnes)
{
    RunStyleFactory source;
    const auto style = source.create(makeStyle(1.0F));
    const RunStyleFactory moved(std::move(source));
    const auto again = source.create(makeStyle(1.0F));
    EXPECT_NE(again, style);
    EXPECT_EQ(source.create(makeStyle(1.0F)), again);
    EXPECT_EQ(moved.create(makeStyle(1.0F)), style);
}

TEST(SharedStyleFactoryTest, ANegativeZeroFindsTheStyleWithZero)
{
    const RunStyleFactory factory;
    EXPECT_EQ(factory.create(makeStyle(0.0F)), factory.create(makeStyle(-0.0F)));
}

TEST(SharedStyleFactoryTest, AStyleWithANaNBehindAnotherPointerIsAnotherAndHarmsNone)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const RunStyleFactory factory;
    const auto one = factory.create(makeStyle(1.0F));
    const auto first = factory.create(makeStyle(nan));
    const auto two = factory.create(makeStyle(2.0F));
    EXPECT_NE(factory.create(makeStyle(nan)), first);
    EXPECT_EQ(factory.create(makeStyle(1.0F)), one);
    EXPECT_EQ(factory.create(makeStyle(2.0F)), two);
}

TEST(SharedStyleFactoryTest, ANaNBehindOneAndTheSamePointerIsFoundAgain)
{
    const auto style = makeStyle(std::numeric_limits<float>::quiet_NaN());
    const RunStyleFactory factory;
    EXPECT_EQ(factory.create(style), factory.create(style));
}

TEST(SharedStyleFactoryTest, OfTwoStylesWithANaNInOnePlaceTheLaterHidesTheEarlier)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const RunStyle earlier = makeStyle(nan);
    const RunStyle later = makeStyle(nan);
    const RunStyleFactory factory;
    const auto first = factory.create(earlier);
    EXPECT_EQ(factory.create(earlier), first);
    const auto second = factory.create(later);
    EXPECT_NE(second, first);
    EXPECT_EQ(factory.create(later), second);
    EXPECT_NE(factory.create(earlier), first);
}

TEST(SharedStyleFactoryTest, ANaNAmongTheTabPositionsHarmsNoOtherStyle)
{
    const auto makeTabbed = [](std::initializer_list<float> positions) {
        TabStops stops;
        for (const float position : positions) {
            stops[position];
        }
        return with<ParagraphStyle>([&](ParagraphStyle& style) {
            style.setParaProps(sharedWith<ParaProps>([&](ParaProps& props) { props.setTabStops(stops); }));
        });
    };
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const SharedStyleFactory<ParagraphStyle, StyleSharingPolicy::EmptyIsNull> factory;
    const auto one = factory.create(makeTabbed({1.0F}));
    const auto unknown = factory.create(makeTabbed({1.0F, nan}));
    const auto two = factory.create(makeTabbed({2.0F}));
    EXPECT_NE(factory.create(makeTabbed({nan, 1.0F})), unknown);
    EXPECT_EQ(factory.create(unknown->get())->get(), unknown->get()) << "through the same pointer";
    EXPECT_EQ(factory.create(makeTabbed({1.0F})), one);
    EXPECT_EQ(factory.create(makeTabbed({2.0F})), two);
}

TEST(SharedStyleFactoryTest, AKnownStyleCostsNoAllocation)
{
    const RunStyleFactory factory;
    for (int number = 0; number < 1000; ++number) {
        factory.create(makeStyle(static_cast<float>(number)));
    }
    RunStyle style = makeStyle(500.0F);
    RunStyle empty;
    EXPECT_EQ(countAllocations([&] { factory.create(std::move(style)); }), 0U);
    EXPECT_EQ(countAllocations([&] { factory.create(std::move(empty)); }), 0U);
    RunStyle unknown = makeStyle(-1.0F);
    EXPECT_GT(countAllocations([&] { factory.create(std::move(unknown)); }), 0U);
}

TEST(SharedStyleFactoryTest, AFailureToEnterAStyleLeavesThePoolAsItWasAndFree)
{
    const auto props = makeRunProps(1.0F);
    const auto before = props.use_count();
    const RunStyleFactory factory;
    const auto known = factory.create(makeStyle(2.0F));
    std::size_t failures = 0;
    for (bool failed = true; failed;) {
        RunStyle style = with<RunStyle>([&](RunStyle& s) { s.setRunProps(props); });
        bool isReported = false;
        {
            const AllocationFailure failure(failures);
            try {
                factory.create(std::move(style));
            } catch (const std::bad_alloc&) {
                isReported = true;
            }
            failed = failure.hasHappened();
        }
        style = RunStyle();
        ASSERT_EQ(isReported, failed) << failures;
        EXPECT_EQ(props.use_count(), before + (failed ? 0 : 1)) << failures;
        EXPECT_EQ(factory.create(makeStyle(2.0F)), known) << failures;
        failures += failed ? 1 : 0;
    }
    EXPECT_GE(failures, 2U) << "the style and the list of a pool that was full";
    const auto entered = factory.create(makeStyle(1.0F));
    EXPECT_EQ(entered->get().getRunProps(), props);
}

TEST(SharedStyleFactoryTest, SeveralThreadsGetTheSameStyles)
{
    const RunStyleFactory factory;
    constexpr int Count = 50;
    std::vector<std::vector<SharedStylePtr<RunStyle>>> results(4);
    std::vector<std::thread> threads;
    for (auto& result : results) {
        threads.emplace_back([&factory, &result] {
            for (int number = 0; number < Count; ++number) {
                result.push_back(factory.create(makeStyle(static_cast<float>(number % 25))));
                const RunStyleFactory copy(factory);
                EXPECT_EQ(copy.create(result.back()->get()), result.back());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const auto& result : results) {
        EXPECT_EQ(result, results.front());
    }
}

TEST(SharedStyleFactoryTest, TwoFactoriesAreAssignedToEachOtherWithoutWaitingForEver)
{
    RunStyleFactory left;
    RunStyleFactory right;
    const auto style = left.create(makeStyle(1.0F));
    right = left;
    std::thread toLeft([&] {
        for (int round = 0; round < 500; ++round) {
            left = right;
        }
    });
    for (int round = 0; round < 500; ++round) {
        right = left;
    }
    toLeft.join();
    EXPECT_EQ(left.create(makeStyle(1.0F)), style);
    EXPECT_EQ(right.create(makeStyle(1.0F)), style);
}

TEST(SharedStyleFactoryTest, ARowStyleIsFoundThroughItsDefaultCellStyle)
{
    const SharedStyleFactory<RowStyle, StyleSharingPolicy::EmptyIsNull> factory;
    const auto makeRow = [](const UUID& parent) {
        return with<RowStyle>([&](RowStyle& style) {
            style.getSharedDefaultCellStyle() = share(withParent<CellStyle>(parent));
        });
    };
    const auto style = factory.create(makeRow(SomeUUID));
    EXPECT_EQ(factory.create(makeRow(SomeUUID)), style);
    EXPECT_NE(factory.create(makeRow(OtherUUID)), style);
}

TEST(SharedStyleFactoryTest, ARowStyleWithAHandleToAnEmptyCellStyleIsNotThatWithoutAHandle)
{
    const SharedStyleFactory<RowStyle, StyleSharingPolicy::EmptyIsNull> factory;
    const auto null = factory.create(withParent<RowStyle>(SomeUUID));
    auto row = withParent<RowStyle>(SomeUUID);
    row.getSharedDefaultCellStyle() = shareEmpty<CellStyle>();
    const auto empty = factory.create(row);
    EXPECT_NE(empty, null);
    row.getSharedDefaultCellStyle() = shareEmpty<CellStyle>();
    EXPECT_EQ(factory.create(row), empty);
}

} // namespace QN::DOM::SharedStyleFactoryTest
