#include "Utils/Public/TaggedValue.h"

#include <boost/container_hash/hash.hpp>
#include <boost/optional/optional.hpp>
#include <gtest/gtest.h>

#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <unordered_set>

#include "Utils/Public/UUID.h"

namespace QN::TaggedValueTest {

namespace {

using QN::TaggedValue;
using QN::UUID;

struct FirstTag;
struct SecondTag;
enum class Format : unsigned char { Decimal = 0, Roman = 1 };
struct Opaque {
    int number = 0;
};

using Index = TaggedValue<std::uint64_t, FirstTag>;
using Month = TaggedValue<unsigned char, FirstTag>;
using Year = TaggedValue<unsigned short, FirstTag>;
using Amount = TaggedValue<double, FirstTag>;
using Identity = TaggedValue<UUID, FirstTag>;
using FormatOpt = TaggedValue<boost::optional<Format>, FirstTag>;

template <class T>
concept Addable = requires(T value)
{
    value + value;
};
template <class T>
concept Incrementable = requires(T value)
{
    ++value;
};
template <class T>
concept Orderable = requires(const T& value)
{
    value < value;
};
template <class T>
concept BoostHashable = requires(const T& value)
{
    hash_value(value);
};
template <class T>
concept StdHashable = std::is_default_constructible_v<std::hash<T>>;

constexpr std::uint64_t Max = std::numeric_limits<std::uint64_t>::max();

TEST(TaggedValueTest, HasTheSizeOfItsValue)
{
    static_assert(sizeof(Index) == 8);
    static_assert(sizeof(Month) == 1);
    static_assert(sizeof(Year) == 2);
    static_assert(sizeof(Amount) == 8);
    static_assert(sizeof(Identity) == 16);
    static_assert(std::is_trivially_copyable_v<Index> && std::is_trivially_copyable_v<Amount>);
}

TEST(TaggedValueTest, NeitherConvertsFromItsValueNorFromAnotherTag)
{
    using Other = TaggedValue<std::uint64_t, SecondTag>;
    static_assert(std::is_constructible_v<Index, std::uint64_t>);
    static_assert(!std::is_convertible_v<std::uint64_t, Index>);
    static_assert(!std::is_convertible_v<Index, std::uint64_t>);
    static_assert(!std::is_constructible_v<Index, Other>);
    static_assert(!std::is_assignable_v<Index&, Other>);
    static_assert(!std::equality_comparable_with<Index, Other>);
}

TEST(TaggedValueTest, DefaultIsTheZeroOfItsType)
{
    EXPECT_EQ(Index().get(), 0U);
    EXPECT_EQ(Month().get(), 0);
    EXPECT_EQ(Amount().get(), 0.0);
    EXPECT_TRUE(Identity().get() == UUID());
    EXPECT_TRUE(FormatOpt().get() == boost::none);
}

TEST(TaggedValueTest, ValueCanBeReadAndReplaced)
{
    Index index(5);
    EXPECT_EQ(index.get(), 5U);
    index.get() = 6;
    EXPECT_EQ(index, Index(6));
    index.set(Max);
    EXPECT_EQ(index.get(), Max);
    EXPECT_EQ(Index(7).get(), 7U);
}

TEST(TaggedValueTest, ComparesByValue)
{
    constexpr Index One(1);
    constexpr Index Two(2);
    static_assert(One == One && One != Two);
    static_assert(One < Two && One <= Two && One <= One && Two > One && Two >= One);
    static_assert((One <=> Two) == std::strong_ordering::less);
}

TEST(TaggedValueTest, NotANumberDiffersFromItself)
{
    const Amount nan(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(nan == nan);
    EXPECT_FALSE(nan < Amount(1.0));
    EXPECT_FALSE(Amount(1.0) < nan);
    EXPECT_EQ(Amount(0.0), Amount(-0.0));
}

TEST(TaggedValueTest, AddsAndSubtractsValuesOfItsTag)
{
    EXPECT_EQ(Index(5) + Index(3), Index(8));
    EXPECT_EQ(Index(5) - Index(3), Index(2));
    Index index(5);
    index += Index(2);
    EXPECT_EQ(index, Index(7));
    index -= Index(6);
    EXPECT_EQ(index, Index(1));
}

TEST(TaggedValueTest, AddsAndSubtractsPlainNumbers)
{
    EXPECT_EQ(Index(5) + 3, Index(8));
    EXPECT_EQ(Index(5) - 3, Index(2));
    Index index(5);
    index += 2;
    EXPECT_EQ(index, Index(7));
    index -= 6;
    EXPECT_EQ(index, Index(1));
    EXPECT_EQ(Amount(0.5) + 0.25, Amount(0.75));
}

TEST(TaggedValueTest, StepsByOne)
{
    Index index(5);
    EXPECT_EQ(++index, Index(6));
    EXPECT_EQ(index++, Index(6));
    EXPECT_EQ(index, Index(7));
    EXPECT_EQ(--index, Index(6));
    EXPECT_EQ(index--, Index(6));
    EXPECT_EQ(index, Index(5));
}

TEST(TaggedValueTest, ArithmeticWrapsAsThatOfAnUnsignedNumber)
{
    EXPECT_EQ(Index(0) - 1, Index(Max));
    EXPECT_EQ(Index(Max) + 1, Index(0));
    EXPECT_EQ(Month(250) + 10, Month(4));
}

TEST(TaggedValueTest, OperandMayBeTheTargetItself)
{
    Index index(5);
    const Index& self = index;
    index += self;
    EXPECT_EQ(index, Index(10));
    index -= self;
    EXPECT_EQ(index, Index(0));
}

TEST(TaggedValueTest, HasTheOperationsThatItsTypeHasAndNoOthers)
{
    static_assert(Addable<Index> && Incrementable<Index> && Orderable<Index> && Addable<Month>);
    static_assert(Addable<Amount> && Orderable<Amount>);
    static_assert(!Addable<Identity> && !Incrementable<Identity> && Orderable<Identity>);
    static_assert(!Addable<FormatOpt> && Orderable<FormatOpt>);
    using Flag = TaggedValue<bool, FirstTag>;
    static_assert(!Addable<Flag> && !Incrementable<Flag> && std::equality_comparable<Flag>);
    using Closed = TaggedValue<Opaque, FirstTag>;
    static_assert(!Addable<Closed> && !Orderable<Closed> && !std::equality_comparable<Closed>);
    static_assert(BoostHashable<Index> && StdHashable<Index> && BoostHashable<Identity> &&
                  StdHashable<Identity>);
    static_assert(!BoostHashable<Closed> && !StdHashable<Closed>);
}

TEST(TaggedValueTest, WrapsAnIdentifier)
{
    const UUID low("00000000-0000-0000-0000-000000000001");
    const UUID high("10000000-0000-0000-0000-000000000000");
    EXPECT_EQ(Identity(low), Identity(low));
    EXPECT_LT(Identity(low), Identity(high));
}

TEST(TaggedValueTest, WrapsAnOptionalThatOrdersAbsentFirst)
{
    const FormatOpt absent;
    const FormatOpt decimal(Format::Decimal);
    const FormatOpt roman(Format::Roman);
    EXPECT_TRUE(absent < decimal && decimal < roman && !(decimal < absent));
    EXPECT_TRUE(roman >= decimal && decimal <= decimal && roman > absent);
    EXPECT_EQ(absent, FormatOpt(boost::none));
    EXPECT_NE(absent, decimal);
}

TEST(TaggedValueTest, MovesItsValueOutOfATemporary)
{
    using Text = TaggedValue<std::string, FirstTag>;
    Text text(std::string(100, 'x'));
    const char* const data = text.get().data();
    const std::string taken = std::move(text).get();
    EXPECT_EQ(taken.data(), data);
    EXPECT_EQ(taken, std::string(100, 'x'));
}

TEST(TaggedValueTest, EqualValuesHashEqually)
{
    EXPECT_EQ(hash_value(Index(5)), hash_value(Index(5)));
    EXPECT_EQ(boost::hash<Index>{}(Index(5)), std::hash<Index>{}(Index(5)));
    const std::unordered_set<Index> indices{Index(1), Index(2), Index(1)};
    EXPECT_EQ(indices.size(), 2U);
    EXPECT_TRUE(indices.contains(Index(2)));
}

} // namespace

} // namespace QN::TaggedValueTest
