#include "Utils/Public/ClassScheme/Ordering.h"

#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <gtest/gtest.h>

#include <compare>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Support/AllocationCount.h"
#include "Support/TestFamily.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/FloatNumber.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/TaggedEmpty.h"
#include "Utils/Public/TaggedValue.h"

namespace QN::OrderingTest {

namespace {

using namespace QN::Test;

constexpr auto Less = std::partial_ordering::less;
constexpr auto Equivalent = std::partial_ordering::equivalent;
constexpr auto Greater = std::partial_ordering::greater;
constexpr auto Unordered = std::partial_ordering::unordered;

const float NaN = std::numeric_limits<float>::quiet_NaN();
const float Infinity = std::numeric_limits<float>::infinity();

struct AmountTag;
struct Style : boost::intrusive_ref_counter<Style> {
    explicit Style(float size) : _size(size) {}
    float _size;
    QN_ORDER(Style)
    BOOST_DESCRIBE_CLASS(Style, (), (_size), (), ())
};
QN_DEFINE_ORDER(Style)

struct Weighted {
    int _weight = 0;
    QN_ORDER(Weighted)
    BOOST_DESCRIBE_CLASS(Weighted, (), (_weight), (), ())
};
QN_DEFINE_ORDER(Weighted)

struct Mark : Weighted {
    Mark(int weight, float size, std::string name) : Weighted{weight}, _size(size), _name(std::move(name)) {}
    float _size;
    std::string _name;
    QN_ORDER(Mark)
    BOOST_DESCRIBE_CLASS(Mark, (Weighted), (_size, _name), (), ())
};
QN_DEFINE_ORDER(Mark)

/// Each value is less than all that follow it and equivalent to itself.
template <class T>
void expectAscending(const std::vector<T>& values, NanOrder nanOrder = NanOrder::Unordered)
{
    for (std::size_t left = 0; left < values.size(); ++left) {
        for (std::size_t right = 0; right < values.size(); ++right) {
            const auto expected = left < right ? Less : right < left ? Greater : Equivalent;
            EXPECT_EQ(compareDeeply(values[left], values[right], nanOrder), expected)
                << left << ", " << right;
        }
    }
}

/// The same with the NaN in last place, which is unordered with all, itself included, unless it is told to be last.
template <class T>
void expectAscendingUpToNaN(const std::vector<T>& values)
{
    expectAscending(values, NanOrder::Last);
    expectAscending(std::vector<T>(values.begin(), values.end() - 1));
    for (const T& value : values) {
        EXPECT_EQ(compareDeeply(value, values.back(), NanOrder::Unordered), Unordered);
        EXPECT_EQ(compareDeeply(values.back(), value, NanOrder::Unordered), Unordered);
    }
}

TEST(OrderingTest, NumbersAndBoolsAndEnumerationsOrderByValue)
{
    enum class Side : unsigned char { Left = 0, Right = 1, Beyond = 255 };
    expectAscending<int>({-5, 0, 7});
    expectAscending<unsigned long>({0, 7, std::numeric_limits<unsigned long>::max()});
    expectAscending<Side>({Side::Left, Side::Right, Side::Beyond});
    EXPECT_EQ(compareDeeply(false, true, NanOrder::Unordered), Less);
    EXPECT_EQ(compareDeeply(true, true, NanOrder::Unordered), Equivalent);
}

TEST(OrderingTest, NaNIsUnorderedOrLastAsAskedFor)
{
    expectAscendingUpToNaN<float>({-Infinity, -1, 0, 1, Infinity, NaN});
    expectAscendingUpToNaN<double>({-Infinity, -1, 0, 1, Infinity, NaN});
    EXPECT_EQ(compareDeeply(NaN, -NaN, NanOrder::Last), Equivalent);
    EXPECT_EQ(compareDeeply(0.0F, -0.0F, NanOrder::Last), Equivalent);
}

TEST(OrderingTest, WrappedNumbersOrderAsTheNumbersDo)
{
    using Amount = TaggedValue<double, AmountTag>;
    expectAscendingUpToNaN<FloatNumber>({FloatNumber(-1), FloatNumber(1), FloatNumber(NaN)});
    expectAscendingUpToNaN<Amount>({Amount(-1), Amount(1), Amount(NaN)});
    expectAscendingUpToNaN<Size2D<float>>({{1, 1}, {1, 2}, {2, 0}, {NaN, 0}});
    EXPECT_EQ(compareDeeply(Size2D<float>(1, NaN), Size2D<float>(2, 0), NanOrder::Last), Less);
}

TEST(OrderingTest, VectorsAndPolygonsOrderByTheirCoordinates)
{
    using Vec2 = cinder::Vec2<float>;
    using Vec3 = cinder::Vec3<float>;
    using Polygon = cinder::PolyLine<Vec2>;
    expectAscendingUpToNaN<Vec2>({{0, 1}, {1, 0}, {1, 1}, {NaN, 0}});
    expectAscending<Vec2>({{1, 1}, {1, NaN}, {2, 0}, {NaN, 0}, {NaN, NaN}}, NanOrder::Last);
    expectAscending<Vec3>({{0, 1, 1}, {1, 0, 1}, {1, 1, 0}, {1, 1, 1}, {1, 1, NaN}, {1, NaN, 0}, {NaN, 0, 0}},
                          NanOrder::Last);
    expectAscending<Polygon>({Polygon(), Polygon({}, true), Polygon({{0, 0}}), Polygon({{0, 0}}, true),
                              Polygon({{0, 0}, {0, 0}}), Polygon({{0, NaN}}), Polygon({{1, 0}})},
                             NanOrder::Last);
}

TEST(OrderingTest, StringsOrderByTheirBytes)
{
    using namespace std::string_literals;
    expectAscending<std::string>({"", "\0"s, "A", "a", "aa", "b", "\x7F", "\x80", "\xFF"});
}

TEST(OrderingTest, AbsentOptionalComesFirst)
{
    using Optional = boost::optional<float>;
    expectAscending<Optional>({boost::none, -Infinity, 0.0F, 1.0F, NaN}, NanOrder::Last);
    EXPECT_EQ(compareDeeply(Optional(), Optional(NaN), NanOrder::Unordered), Less);
    EXPECT_EQ(compareDeeply(Optional(1.0F), Optional(NaN), NanOrder::Unordered), Unordered);
}

TEST(OrderingTest, NullPointerComesFirst)
{
    const auto make = [](float size) { return std::make_shared<const float>(size); };
    expectAscending<std::shared_ptr<const float>>({nullptr, make(-1), make(2)});
    using Handle = boost::intrusive_ptr<const Style>;
    expectAscending<Handle>({nullptr, Handle(new Style(1)), Handle(new Style(2))});
    EXPECT_EQ(compareDeeply(make(1), make(1), NanOrder::Unordered), Equivalent);
}

TEST(OrderingTest, OneObjectWithANaNIsEquivalentToItselfOnlyWhereNaNIsLast)
{
    const auto shared = std::make_shared<const float>(NaN);
    EXPECT_EQ(compareDeeply(shared, shared, NanOrder::Unordered), Unordered);
    EXPECT_EQ(compareDeeply(shared, shared, NanOrder::Last), Equivalent);
}

TEST(OrderingTest, PointersToAFamilyOrderByTypeAndThenByValue)
{
    using Pointer = std::shared_ptr<const Tone>;
    expectAscending<Pointer>({nullptr, std::make_shared<Striped>(1.0F), std::make_shared<Striped>(2.0F),
                              std::make_shared<Flat>(0.0F), std::make_shared<Flat>(1.0F)});
}

TEST(OrderingTest, VariantsOrderByAlternativeAndThenByValue)
{
    using Variant = boost::variant<boost::blank, double, std::string, TaggedEmpty<AmountTag>>;
    expectAscending<Variant>({Variant(), Variant(-1.0), Variant(5.0), Variant(std::string()),
                              Variant(std::string("a")), Variant(TaggedEmpty<AmountTag>())});
}

TEST(OrderingTest, SequencesOrderLexicographicallyAndAPrefixIsLess)
{
    expectAscending<std::vector<int>>({{}, {1}, {1, 1}, {1, 2}, {2}, {2, 0}});
    expectAscending<std::vector<float>>({{}, {1}, {1, 5}, {1, NaN}, {NaN}, {NaN, NaN}}, NanOrder::Last);
    EXPECT_EQ(compareDeeply(std::vector<float>{}, std::vector<float>{NaN}, NanOrder::Unordered), Less);
    EXPECT_EQ(compareDeeply(std::vector<float>{1, NaN}, std::vector<float>{1, NaN, 2}, NanOrder::Unordered),
              Unordered);
    EXPECT_EQ(compareDeeply(std::vector<float>{1, NaN}, std::vector<float>{2, NaN}, NanOrder::Unordered),
              Less);
    using Map = std::map<int, int>;
    expectAscending<Map>({{}, {{1, 1}}, {{1, 1}, {2, 0}}, {{1, 2}}, {{2, 0}}});
    expectAscending<std::set<int>>({{}, {1}, {1, 2}, {2}});
}

TEST(OrderingTest, PairsOrderByTheirMembersInTurn)
{
    using Pair = std::pair<int, std::string>;
    expectAscending<Pair>({{1, "b"}, {2, "a"}, {2, "b"}});
}

TEST(OrderingTest, OtherValuesUseTheirOwnOrder)
{
    expectAscending<BoolOpt>({BoolOpt(), BoolOpt(false), BoolOpt(true)});
}

TEST(OrderingTest, ClassOrdersByItsBaseAndThenByItsMembersInTheOrderOfTheList)
{
    expectAscending<Mark>({{0, 9, "z"}, {1, 0, "z"}, {1, 1, "a"}, {1, 1, "b"}, {1, 2, ""}});
}

TEST(OrderingTest, OperatorsFollowFromTheOneComparison)
{
    const Mark low(0, 1, "");
    const Mark high(0, 2, "");
    EXPECT_TRUE(low < high && low <= high && high > low && high >= low);
    EXPECT_FALSE(high < low || high <= low || low > high || low >= high);
    EXPECT_TRUE(low <= low && low >= low);
    EXPECT_TRUE(Weighted{0} < Weighted{1} && Style(1) < Style(2));
    EXPECT_FALSE(low < low || low > low);
}

TEST(OrderingTest, NaNEndsTheComparisonOfAClassAsNotLess)
{
    const Mark first(0, NaN, "a");
    const Mark second(0, NaN, "b");
    EXPECT_FALSE(first < second || second < first || first <= second || first >= second);
    EXPECT_TRUE(Mark(0, NaN, "a") < Mark(1, NaN, "a"));
    EXPECT_EQ(first.compare(second, NanOrder::Last), Less);
}

TEST(OrderingTest, OrderWithNaNLastIsAStrictWeakOrder)
{
    std::vector<Mark> marks;
    for (const int weight : {0, 1}) {
        for (const float size : {NaN, -NaN, -Infinity, -0.0F, 0.0F, 1.0F}) {
            for (const char* name : {"", "a"}) {
                marks.emplace_back(weight, size, name);
            }
        }
    }
    const auto isLess = [](const Mark& left, const Mark& right) {
        return left.compare(right, NanOrder::Last) < 0;
    };
    const auto areEquivalent = [&](const Mark& left, const Mark& right) {
        return !isLess(left, right) && !isLess(right, left);
    };
    for (const Mark& a : marks) {
        EXPECT_FALSE(isLess(a, a));
        for (const Mark& b : marks) {
            EXPECT_FALSE(isLess(a, b) && isLess(b, a));
            for (const Mark& c : marks) {
                EXPECT_TRUE(!(isLess(a, b) && isLess(b, c)) || isLess(a, c));
                EXPECT_TRUE(!(areEquivalent(a, b) && areEquivalent(b, c)) || areEquivalent(a, c));
            }
        }
    }
}

TEST(OrderingTest, ComparingAllocatesNothing)
{
    const Mark mark(1, 2, "a text that is too long to stand inside a string object");
    const cinder::PolyLine<cinder::Vec2<float>> polygon({{1, 2}, {3, 4}}, true);
    EXPECT_EQ(countAllocations([&] {
                  EXPECT_EQ(compareDeeply(mark, mark, NanOrder::Last), Equivalent);
                  EXPECT_EQ(compareDeeply(polygon, polygon, NanOrder::Last), Equivalent);
              }),
              0U);
}

} // namespace

} // namespace QN::OrderingTest
