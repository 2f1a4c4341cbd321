#include "Utils/Public/Archive/PersistUtils.h"

#include <boost/variant/variant.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "Support/ValueText.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/TableIndices/TableRange.h"
#include "Utils/Public/UUIDable.h"

namespace QN::PersistUtilsTest {

namespace {

using namespace QN::Test;

struct HourTag;
struct TitleTag;
struct NameTag;

const std::string UuidText = "219be34f-66e7-4590-8db5-375443207e49";

TEST(PersistUtilsTest, UUIDIsItsTextUnderId)
{
    expectText(UUID(UuidText), R"({"_id":"219be34f-66e7-4590-8db5-375443207e49"})");
    expectText(UUID(), R"({"_id":"00000000-0000-0000-0000-000000000000"})");
}

TEST(PersistUtilsTest, UUIDInUpperCaseIsReadAndWrittenInLowerCase)
{
    const auto uuid = fromText<UUID>(R"({"_id":"219BE34F-66E7-4590-8DB5-375443207E49"})");
    EXPECT_EQ(uuid, UUID(UuidText));
    EXPECT_EQ(toText(uuid), R"({"_id":"219be34f-66e7-4590-8db5-375443207e49"})");
}

TEST(PersistUtilsTest, MalformedUUIDRaisesAndLeavesTheTarget)
{
    for (const char* id :
         {"", "219be34f", "219be34f-66e7-4590-8db5-375443207e4", "219be34f-66e7-4590-8db5-375443207e490",
          "219be34f-66e7-4590-8db5-375443207e4g", "{219be34f-66e7-4590-8db5-375443207e49}",
          "219be34f66e745908db5375443207e49", "219be34f-66e7-4590-8db5-375443207e4\xFF"}) {
        const std::string text = R"({"_id":")" + std::string(id) + R"("})";
        EXPECT_EQ(textError<UUID>(text), "Malformed UUID: \"" + std::string(id) + "\"");
        UUID uuid(UuidText);
        EXPECT_THROW(loadText(text, uuid), cereal::Exception) << id;
        EXPECT_EQ(uuid, UUID(UuidText));
    }
    EXPECT_THROW(fromText<UUID>(R"({"_id":"219be34f-66e7-4590-8db5-375443207e4\u0000"})"), cereal::Exception);
    EXPECT_EQ(typeError<UUID>(R"({"_id":1})"), "IsString()");
    EXPECT_EQ(typeError<UUID>("\"" + UuidText + "\""), "IsObject()");
}

TEST(PersistUtilsTest, UUIDableIsItsUUID)
{
    expectText(UUIDable(UUID(UuidText)), R"({"_uuid":{"_id":"219be34f-66e7-4590-8db5-375443207e49"}})");
}

TEST(PersistUtilsTest, UUIDableMayBeNilInAFile)
{
    EXPECT_FALSE(fromText<UUIDable>(R"({"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}})").getUUID());
}

TEST(PersistUtilsTest, TaggedValueIsItsValueAlone)
{
    expectText(RowIndex(18446744073709551615U), R"({"_value":18446744073709551615})");
    expectText(TaggedValue<unsigned char, HourTag>(23), R"({"_value":23})");
    expectText(TaggedValue<double, HourTag>(36), R"({"_value":36.0})");
    expectText(TaggedValue<UUID, HourTag>(UUID(UuidText)),
               R"({"_value":{"_id":"219be34f-66e7-4590-8db5-375443207e49"}})");
    using OptionalName = TaggedValue<boost::optional<std::string>, HourTag>;
    expectText(OptionalName(std::string("a")), R"({"_value":{"hasValue":true,"value":"a"}})");
}

TEST(PersistUtilsTest, TaggedValueOutOfTheRangeOfItsTypeRaises)
{
    using Hour = TaggedValue<unsigned char, HourTag>;
    EXPECT_EQ(fromText<Hour>(R"({"_value":255})"), Hour(255));
    EXPECT_EQ(typeError<Hour>(R"({"_value":256})"), "value is within the range of its type");
    EXPECT_EQ(typeError<Hour>(R"({"_value":300})"), "value is within the range of its type");
    EXPECT_EQ(typeError<Hour>(R"({"_value":-1})"), "data_.f.flags & kUintFlag");
    EXPECT_EQ(typeError<RowIndex>(R"({"_value":-1})"), "data_.f.flags & kUint64Flag");
    EXPECT_EQ(typeError<RowIndex>("1"), "IsObject()");
}

TEST(PersistUtilsTest, TaggedEmptyIsAnEmptyObject)
{
    expectText(TaggedEmpty<TitleTag>(), "{}");
    EXPECT_EQ(typeError<TaggedEmpty<TitleTag>>("[]"), "IsObject()");
    expectText(boost::variant<TaggedEmpty<TitleTag>, TaggedEmpty<NameTag>>(TaggedEmpty<NameTag>()),
               R"({"which":1,"data":{}})");
}

TEST(PersistUtilsTest, BoolOptIsMinusOneZeroOrOne)
{
    expectText(BoolOpt(), R"({"value":-1})");
    expectText(BoolOpt(false), R"({"value":0})");
    expectText(BoolOpt(true), R"({"value":1})");
}

TEST(PersistUtilsTest, BoolOptReadFromAnyOtherIntegerIsUnset)
{
    for (const char* number : {"7", "-1", "-7", "2", "2147483647", "2147483648", "-2147483648", "-2147483649",
                               "4294967297", "-9223372036854775808", "18446744073709551615"}) {
        BoolOpt value = true;
        loadText(R"({"value":)" + std::string(number) + "}", value);
        EXPECT_FALSE(value) << number;
    }
}

TEST(PersistUtilsTest, BoolOptReadFromAnIntegerBeyond64BitsRaisesAndIsUnset)
{
    for (const char* number : {"18446744073709551616", "-9223372036854775809", "100000000000000000000"}) {
        BoolOpt value = true;
        const std::string object = R"({"value":)" + std::string(number) + "}";
        EXPECT_THROW(loadText(object, value), cereal::RapidJSONException) << number;
        EXPECT_FALSE(value) << number;
        EXPECT_EQ(typeError<BoolOpt>(object), "data_.f.flags & kIntFlag") << number;
    }
}

TEST(PersistUtilsTest, BoolOptOfTheWrongTypeRaisesAndIsUnset)
{
    for (const char* text : {"true", "1.0", "\"1\"", "null", "[]", "{}"}) {
        BoolOpt value = true;
        const std::string object = R"({"value":)" + std::string(text) + "}";
        EXPECT_THROW(loadText(object, value), cereal::RapidJSONException) << text;
        EXPECT_FALSE(value) << text;
        EXPECT_EQ(typeError<BoolOpt>(object), "data_.f.flags & kIntFlag") << text;
    }
    EXPECT_EQ(textError<BoolOpt>(R"({"_value":1})"), "JSON Parsing failed - provided NVP (value) not found");
    EXPECT_EQ(typeError<BoolOpt>("1"), "IsObject()");
}

TEST(PersistUtilsTest, FloatNumberIsAPlainNumber)
{
    expectText(FloatNumber(36), "36.0");
    EXPECT_EQ(fromText<FloatNumber>("36"), FloatNumber(36));
    EXPECT_EQ(typeError<FloatNumber>("\"1\""), "IsNumber()");
}

TEST(PersistUtilsTest, FloatNumberTakesValuesThatAreNotFinite)
{
    expectText(FloatNumber(-std::numeric_limits<double>::infinity()), "-Infinity");
    EXPECT_TRUE(std::isnan(fromText<FloatNumber>("NaN").get()));
}

TEST(PersistUtilsTest, SizeIsWidthAndHeight)
{
    expectText(Size2D<float>(36, 0.5F), R"({"_width":36.0,"_height":0.5})");
    expectText(Size2D<unsigned>(1, 4294967295), R"({"_width":1,"_height":4294967295})");
    expectText(Size2D<unsigned long>(1, 18446744073709551615U),
               R"({"_width":1,"_height":18446744073709551615})");
}

TEST(PersistUtilsTest, TableRangeIsItsFourBounds)
{
    expectText(TableRange(RowIndex(1), RowIndex(2), ColumnIndex(3), ColumnIndex(5)),
               R"({"_beginRow":{"_value":1},"_endRow":{"_value":2},)"
               R"("_beginColumn":{"_value":3},"_endColumn":{"_value":5}})");
}

TEST(PersistUtilsTest, EmptyOrReversedTableRangeInAFileRaises)
{
    const auto error = [](int beginRow, int endRow, int beginColumn, int endColumn) {
        return textError<TableRange>(R"({"_beginRow":{"_value":)" + std::to_string(beginRow) +
                                     R"(},"_endRow":{"_value":)" + std::to_string(endRow) +
                                     R"(},"_beginColumn":{"_value":)" + std::to_string(beginColumn) +
                                     R"(},"_endColumn":{"_value":)" + std::to_string(endColumn) + "}}");
    };
    const std::string message = "A range of cells is empty or reversed";
    EXPECT_EQ(error(1, 2, 3, 4), "<loaded>");
    EXPECT_EQ(error(1, 1, 3, 4), message);
    EXPECT_EQ(error(2, 1, 3, 4), message);
    EXPECT_EQ(error(1, 2, 3, 3), message);
    EXPECT_EQ(error(1, 2, 4, 3), message);
    EXPECT_EQ(error(0, 0, 0, 0), message);
}

TEST(PersistUtilsTest, ColorIsItsChannelsWithoutNames)
{
    expectText(cinder::ColorT<unsigned char>(1, 2, 255), R"({"value0":1,"value1":2,"value2":255})");
    expectText(cinder::ColorAT<unsigned char>(1, 2, 3, 255),
               R"({"value0":1,"value1":2,"value2":3,"value3":255})");
    EXPECT_EQ(typeError<cinder::ColorAT<unsigned char>>(R"({"value0":1,"value1":2,"value2":3,"value3":256})"),
              "value is within the range of its type");
}

TEST(PersistUtilsTest, VectorIsItsCoordinates)
{
    expectText(cinder::Vec2<float>(0.5F, -36), R"({"x":0.5,"y":-36.0})");
    expectText(cinder::Vec3<float>(0.5F, -36, 1e30F), R"({"x":0.5,"y":-36.0,"z":1.0000000150474662e30})");
}

TEST(PersistUtilsTest, PolygonIsItsPointsAndWhetherItIsClosed)
{
    using Polygon = cinder::PolyLine<cinder::Vec2<float>>;
    expectText(Polygon(), R"({"_points":[],"_closed":false})");
    expectText(Polygon({{1, 2}, {3, 4}}, true),
               R"({"_points":[{"x":1.0,"y":2.0},{"x":3.0,"y":4.0}],"_closed":true})");
    Polygon polygon({{1, 2}}, true);
    loadText(R"({"_points":[],"_closed":false})", polygon);
    EXPECT_EQ(polygon, Polygon());
}

} // namespace

} // namespace QN::PersistUtilsTest
