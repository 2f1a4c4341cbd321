#include "Utils/Public/Archive/Persist.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "Support/ValueText.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::PersistTest {

namespace {

using namespace QN::Test;

enum class Side : std::uint8_t { Left = 0, Right = 1 };
enum class Shift : std::int16_t { Down = -1, None = 0, Up = 1 };

struct Empty {
    void serialize(cereal::JSONOutputArchive&) const {}
    void serialize(cereal::JSONInputArchive&) {}
    friend bool operator==(const Empty&, const Empty&) = default;
    BOOST_DESCRIBE_CLASS(Empty, (), (), (), ())
};

struct Sized {
    int _size = 4;
    QN_VALUE(Sized)
    BOOST_DESCRIBE_CLASS(Sized, (), (_size), (), ())
};
QN_DEFINE_VALUE(Sized)

/// A class with two bases, members of two kinds, and a member that does not stand in the file.
struct Label : Empty, Sized {
    std::string _text = "t";
    Sized _frame;
    int cache = 0;
    QN_VALUE(Label)
    BOOST_DESCRIBE_CLASS(Label, (Empty, Sized), (_text, _frame), (), ())
};
QN_DEFINE_VALUE(Label)

/// No operations of its own: the member list is enough.
struct Plain {
    int x = 1;
    bool isSet = false;
    friend bool operator==(const Plain&, const Plain&) = default;
};
BOOST_DESCRIBE_STRUCT(Plain, (), (x, isSet))

TEST(PersistTest, BoolIsTrueOrFalse)
{
    expectText(true, "true");
    expectText(false, "false");
    for (const char* text : {"0", "1", "1.0", "\"true\"", "null", "[]", "{}", "NaN"}) {
        EXPECT_EQ(typeError<bool>(text), "IsBool()") << text;
    }
}

template <class T>
class PersistIntegerTest : public testing::Test {
};

using Integers = testing::Types<signed char, unsigned char, short, unsigned short, int, unsigned, long,
                                unsigned long, long long, unsigned long long>;
TYPED_TEST_SUITE(PersistIntegerTest, Integers);

/// The decimal number that follows another one, or the one before a negative number.
std::string oneBeyond(std::string number)
{
    for (auto digit = number.rbegin(); digit != number.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            break;
        }
        *digit = '0';
    }
    return number;
}

TYPED_TEST(PersistIntegerTest, IsAPlainNumberUpToTheLimitsOfItsType)
{
    using Limits = std::numeric_limits<TypeParam>;
    for (const TypeParam value :
         {Limits::min(), static_cast<TypeParam>(Limits::min() + 1), TypeParam{0}, TypeParam{7},
          TypeParam{100}, static_cast<TypeParam>(Limits::max() - 1), Limits::max()}) {
        expectText(value, std::to_string(value));
    }
}

/// What a value raises that does not fit the 32 or 64 bits that are read, and one that does and still not the type.
template <class T>
std::string getFlagMessage()
{
    constexpr bool IsSigned = std::is_signed_v<T>;
    return std::string("data_.f.flags & ") + (sizeof(T) == 8 ? (IsSigned ? "kInt64Flag" : "kUint64Flag")
                                                             : (IsSigned ? "kIntFlag" : "kUintFlag"));
}

constexpr const char* OutOfRange = "value is within the range of its type";

TYPED_TEST(PersistIntegerTest, RaisesOneBeyondTheLimitsOfItsType)
{
    using Limits = std::numeric_limits<TypeParam>;
    const std::string flag = getFlagMessage<TypeParam>();
    const std::string narrow = sizeof(TypeParam) < 4 ? OutOfRange : flag;
    EXPECT_EQ(typeError<TypeParam>(oneBeyond(std::to_string(Limits::max()))), narrow);
    if (std::is_signed_v<TypeParam>) {
        EXPECT_EQ(typeError<TypeParam>(oneBeyond(std::to_string(Limits::min()))), narrow);
    } else {
        EXPECT_EQ(typeError<TypeParam>("-1"), flag);
    }
    EXPECT_EQ(typeError<TypeParam>("36893488147419103232"), flag);
    EXPECT_EQ(typeError<TypeParam>("-99999999999999999999"), flag);
}

TYPED_TEST(PersistIntegerTest, RaisesForAnythingButAnInteger)
{
    for (const char* text : {"true", "1.0", "1e0", "\"1\"", "null", "[]", "[1]", "{}", "NaN", "Infinity"}) {
        EXPECT_EQ(typeError<TypeParam>(text), getFlagMessage<TypeParam>()) << text;
    }
}

TEST(PersistTest, CharIsANumberWithASignOnAnyPlatform)
{
    expectText('a', "97");
    expectText('\0', "0");
    expectText('\x7F', "127");
    expectText('\x80', "-128");
    expectText('\xFF', "-1");
    EXPECT_EQ(typeError<char>("128"), OutOfRange);
    EXPECT_EQ(typeError<char>("255"), OutOfRange);
    EXPECT_EQ(typeError<char>("-129"), OutOfRange);
    EXPECT_EQ(typeError<char>("\"a\""), "data_.f.flags & kIntFlag");
}

TEST(PersistTest, WrongTypeOfAnIntegerNamesTheFlagThatIsMissing)
{
    for (const char* text : {"\"1\"", "1.5", "2147483648", "-2147483649", "true"}) {
        EXPECT_EQ(typeError<int>(text), "data_.f.flags & kIntFlag") << text;
    }
    for (const char* text : {"\"1\"", "1.5", "4294967296", "-1", "null"}) {
        EXPECT_EQ(typeError<unsigned>(text), "data_.f.flags & kUintFlag") << text;
    }
    for (const char* text : {"\"1\"", "1.5", "18446744073709551616", "-1", "{}"}) {
        EXPECT_EQ(typeError<unsigned long>(text), "data_.f.flags & kUint64Flag") << text;
    }
}

TEST(PersistTest, IntegersOf64BitsDoNotPassThroughADouble)
{
    // Neither is a number that a double holds.
    expectText(std::uint64_t{9007199254740993}, "9007199254740993");
    expectText(std::uint64_t{18446744073709551613U}, "18446744073709551613");
    expectText(std::int64_t{-9007199254740993}, "-9007199254740993");
    expectText(std::vector<std::uint64_t>{9223372036854775809U, 9007199254740995},
               "[9223372036854775809,9007199254740995]");
}

TEST(PersistTest, EnumerationIsItsUnderlyingNumber)
{
    expectText(Side::Right, "1");
    expectText(Shift::Down, "-1");
}

TEST(PersistTest, EnumerationTakesAnyNumberOfItsUnderlyingType)
{
    expectText(static_cast<Side>(255), "255");
    expectText(static_cast<Shift>(-32768), "-32768");
    EXPECT_EQ(typeError<Side>("256"), OutOfRange);
    EXPECT_EQ(typeError<Side>("-1"), "data_.f.flags & kUintFlag");
    EXPECT_EQ(typeError<Shift>("32768"), OutOfRange);
    EXPECT_EQ(typeError<Shift>("-32769"), OutOfRange);
    EXPECT_EQ(typeError<Shift>("\"Up\""), "data_.f.flags & kIntFlag");
}

TEST(PersistTest, WholeFloatsHaveAPoint)
{
    expectText(36.0F, "36.0");
    expectText(-1.0, "-1.0");
    expectText(0.0, "0.0");
    expectText(0.5, "0.5");
}

TEST(PersistTest, FloatIsWidenedToADouble)
{
    // The double nearest to the float nearest to 0.1.
    expectText(0.1F, "0.10000000149011612");
    expectText(0.1, "0.1");
    EXPECT_EQ(fromText<float>("0.1"), 0.1F);
}

TEST(PersistTest, DoublesComeBackExactly)
{
    using Limits = std::numeric_limits<double>;
    for (const double value :
         {Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(), Limits::epsilon(), 1.0 / 3,
          1e21, 1e22, 123456789012345680.0, 1e-7, 5e-324, 9007199254740993.0, 0.1 + 0.2}) {
        const std::string text = toText(value);
        EXPECT_EQ(fromText<double>(text), value) << text;
        EXPECT_EQ(fromText<double>(toText(-value)), -value) << text;
    }
    for (const float value :
         {std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min(), 1.0F / 3}) {
        EXPECT_EQ(fromText<float>(toText(value)), value);
    }
    EXPECT_EQ(toText(-0.0), "-0.0");
    EXPECT_TRUE(std::signbit(fromText<double>("-0.0")));
}

TEST(PersistTest, FloatingPointNumberReadsAnyNumber)
{
    EXPECT_EQ(fromText<double>("36"), 36.0);
    EXPECT_EQ(fromText<double>("-7"), -7.0);
    EXPECT_EQ(fromText<double>("18446744073709551615"), 18446744073709551616.0);
    EXPECT_EQ(fromText<double>("1.5e3"), 1500.0);
    for (const char* text : {"true", "\"1\"", "null", "[]", "{}"}) {
        EXPECT_EQ(typeError<double>(text), "IsNumber()") << text;
        EXPECT_EQ(typeError<float>(text), "IsNumber()") << text;
    }
}

TEST(PersistTest, NumbersThatAreNotFiniteAreUnquotedTokens)
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(toText(std::nan("")), "NaN");
    EXPECT_EQ(toText(-std::nan("")), "NaN");
    EXPECT_TRUE(std::isnan(fromText<double>("NaN")));
    EXPECT_EQ(toText(std::nanf("")), "NaN");
    EXPECT_TRUE(std::isnan(fromText<float>("NaN")));
    expectText(Infinity, "Infinity");
    expectText(-Infinity, "-Infinity");
    expectText(std::numeric_limits<float>::infinity(), "Infinity");
    expectText(-std::numeric_limits<float>::infinity(), "-Infinity");
}

TEST(PersistTest, NumberBeyondTheRangeOfAFloatReadsAsAnInfinity)
{
    EXPECT_EQ(fromText<float>("1e39"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(fromText<float>("-1e39"), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(fromText<float>("1e-60"), 0.0F);
}

TEST(PersistTest, ClassIsAnObjectOfItsKeysInTheOrderOfItsMembers)
{
    expectText(Sized(), R"({"_size":4})");
    expectText(Plain{3, true}, R"({"x":3,"isSet":true})");
    expectText(Empty(), "{}");
}

TEST(PersistTest, BasesComeFirstUnderGeneratedNamesAndEmptyOnesAreEmptyObjects)
{
    Label label;
    label._size = 9;
    expectText(label, R"({"value0":{},"value1":{"_size":9},"_text":"t","_frame":{"_size":4}})");
}

TEST(PersistTest, MemberThatIsNotListedIsNeitherWrittenNorChanged)
{
    Label label;
    label.cache = 5;
    loadText(toText(Label()), label);
    EXPECT_EQ(label.cache, 5);
}

TEST(PersistTest, ClassIsReadFromAnObjectOnly)
{
    for (const char* text : {"[]", "[4]", "4", "\"x\"", "null", "true"}) {
        EXPECT_EQ(typeError<Sized>(text), "IsObject()") << text;
        EXPECT_EQ(typeError<Plain>(text), "IsObject()") << text;
        EXPECT_EQ(typeError<Empty>(text), "IsObject()") << text;
    }
    EXPECT_EQ(typeError<Label>(R"({"value0":[],"value1":{"_size":9},"_text":"t","_frame":{"_size":4}})"),
              "IsObject()");
}

TEST(PersistTest, FailedLoadLeavesWhatWasReadUntilThen)
{
    Label label;
    EXPECT_THROW(loadText(R"({"value0":{},"value1":{"_size":9},"_text":"new","_frame":{}})", label),
                 cereal::Exception);
    EXPECT_EQ(label._size, 9);
    EXPECT_EQ(label._text, "new");
    EXPECT_EQ(label._frame._size, 4);
}

} // namespace

} // namespace QN::PersistTest
