#include "Utils/Public/Archive/PersistPointers.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Support/ValueText.h"
#include "Utils/Public/Archive/JSONArchives.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::PersistPointersTest {

namespace {

using namespace QN::Test;

struct Size {
    int _size = 0;
    friend bool operator==(const Size&, const Size&) = default;
};
BOOST_DESCRIBE_STRUCT(Size, (), (_size))

struct Name {
    std::string _name;
};
BOOST_DESCRIBE_STRUCT(Name, (), (_name))

/// An object that counts its own handles, as shared styles do.
struct Style : boost::intrusive_ref_counter<Style> {
    static inline int objects = 0;

    Style() { ++objects; }
    explicit Style(std::string name) : _name(std::move(name)) { ++objects; }
    Style(const Style&) = delete;
    Style& operator=(const Style&) = delete;
    ~Style() { --objects; }

    friend bool operator==(const Style& left, const Style& right) { return left._name == right._name; }

    std::string _name;

    BOOST_DESCRIBE_CLASS(Style, (), (_name), (), ())
};
using Handle = boost::intrusive_ptr<const Style>;

struct OtherStyle : boost::intrusive_ref_counter<OtherStyle> {
    int _number = 0;
    BOOST_DESCRIBE_CLASS(OtherStyle, (), (_number), (), ())
};
using OtherHandle = boost::intrusive_ptr<const OtherStyle>;

struct Link {
    std::shared_ptr<Link> _next;
};
BOOST_DESCRIBE_STRUCT(Link, (), (_next))

/// Pointers of several kinds in one file.
struct Mixed {
    std::shared_ptr<const Size> size;
    std::shared_ptr<Name> name;
    Handle style;
    OtherHandle other;
    std::shared_ptr<const Size> sameSize;
    Handle sameStyle;
};
BOOST_DESCRIBE_STRUCT(Mixed, (), (size, name, style, other, sameSize, sameStyle))

/// What a later mention of an id that was not defined ends with.
std::string unknownId(int id)
{
    return "Error while trying to deserialize a smart pointer. Could not find id " + std::to_string(id);
}

TEST(PersistPointersTest, NullUniquePointerIsNotValidAndHasNoData)
{
    expectText(std::unique_ptr<Size>(), R"({"ptr_wrapper":{"valid":0}})");
}

TEST(PersistPointersTest, UniquePointerIsValidAndHasData)
{
    expectText(std::make_unique<Size>(Size{3}), R"({"ptr_wrapper":{"valid":1,"data":{"_size":3}}})");
    expectText(std::make_unique<int>(3), R"({"ptr_wrapper":{"valid":1,"data":3}})");
}

TEST(PersistPointersTest, UniquePointerIsReplacedByWhatIsLoaded)
{
    auto pointer = std::make_unique<Size>(Size{3});
    loadText(R"({"ptr_wrapper":{"valid":0,"data":{"_size":4}}})", pointer);
    EXPECT_EQ(pointer, nullptr);
    loadText(R"({"ptr_wrapper":{"valid":1,"data":{"_size":4}}})", pointer);
    EXPECT_EQ(pointer->_size, 4);
}

TEST(PersistPointersTest, UniquePointerOfTheWrongFormRaises)
{
    using Pointer = std::unique_ptr<Size>;
    EXPECT_EQ(typeError<Pointer>("null"), "IsObject()");
    EXPECT_EQ(typeError<Pointer>(R"({"ptr_wrapper":[]})"), "IsObject()");
    EXPECT_EQ(typeError<Pointer>(R"({"ptr_wrapper":{"valid":true}})"), "data_.f.flags & kUintFlag");
    EXPECT_EQ(typeError<Pointer>(R"({"ptr_wrapper":{"valid":1,"data":[]}})"), "IsObject()");
}

TEST(PersistPointersTest, NullSharedPointerHasTheIdZero)
{
    expectText(std::shared_ptr<Size>(), R"({"ptr_wrapper":{"id":0}})");
}

TEST(PersistPointersTest, SharedPointerHasTheTopBitAndDataAtItsFirstOccurrence)
{
    expectText(std::make_shared<Size>(Size{3}), R"({"ptr_wrapper":{"id":2147483649,"data":{"_size":3}}})");
    expectText(std::shared_ptr<const Size>(std::make_shared<Size>(Size{3})),
               R"({"ptr_wrapper":{"id":2147483649,"data":{"_size":3}}})");
}

TEST(PersistPointersTest, LaterOccurrencesOfASharedObjectHaveItsNumberAlone)
{
    const auto first = std::make_shared<Size>(Size{3});
    const auto second = std::make_shared<Size>(Size{3});
    expectText(std::vector<std::shared_ptr<Size>>{first, second, first, nullptr, second},
               R"([{"ptr_wrapper":{"id":2147483649,"data":{"_size":3}}},)"
               R"({"ptr_wrapper":{"id":2147483650,"data":{"_size":3}}},)"
               R"({"ptr_wrapper":{"id":1}},{"ptr_wrapper":{"id":0}},{"ptr_wrapper":{"id":2}}])");
}

TEST(PersistPointersTest, TwoPointersToOneObjectStayOneObject)
{
    const auto shared = std::make_shared<Size>(Size{3});
    using Pointers = std::vector<std::shared_ptr<Size>>;
    const auto loaded = fromText<Pointers>(toText(Pointers{shared, std::make_shared<Size>(Size{3}), shared}));
    EXPECT_EQ(loaded[0], loaded[2]);
    EXPECT_NE(loaded[0], loaded[1]);
    EXPECT_EQ(loaded[0].use_count(), 2);
}

TEST(PersistPointersTest, NumbersAreThoseOfOneArchive)
{
    const auto shared = std::make_shared<Size>();
    EXPECT_EQ(toText(shared), toText(shared));
}

TEST(PersistPointersTest, PointersOfAllTypesShareOneCounter)
{
    Mixed mixed;
    mixed.size = mixed.sameSize = std::make_shared<Size>(Size{3});
    mixed.name = std::make_shared<Name>(Name{"n"});
    mixed.style = mixed.sameStyle = new Style("s");
    mixed.other = new OtherStyle;
    const std::string text =
        R"({"size":{"ptr_wrapper":{"id":2147483649,"data":{"_size":3}}},)"
        R"("name":{"ptr_wrapper":{"id":2147483650,"data":{"_name":"n"}}},)"
        R"("style":{"id":2147483651,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":"s"}}}},)"
        R"("other":{"id":2147483652,"value0":{"ptr_wrapper":{"valid":1,"data":{"_number":0}}}},)"
        R"("sameSize":{"ptr_wrapper":{"id":1}},"sameStyle":{"id":3}})";
    EXPECT_EQ(toText(mixed), text);
    const auto loaded = fromText<Mixed>(text);
    EXPECT_EQ(loaded.size, loaded.sameSize);
    EXPECT_EQ(loaded.style, loaded.sameStyle);
    EXPECT_EQ(loaded.style->_name, "s");
    EXPECT_EQ(toText(loaded), text);
}

TEST(PersistPointersTest, IdWithoutAnEarlierDefinitionRaises)
{
    EXPECT_EQ(textError<std::shared_ptr<Size>>(R"({"ptr_wrapper":{"id":1}})"), unknownId(1));
    EXPECT_EQ(textError<std::shared_ptr<Size>>(R"({"ptr_wrapper":{"id":2147483647}})"),
              unknownId(2147483647));
    EXPECT_EQ(textError<Handle>(R"({"id":7})"), unknownId(7));
}

TEST(PersistPointersTest, IdOfAnObjectOfAnotherTypeRaises)
{
    using SizeThenName = std::pair<std::shared_ptr<Size>, std::shared_ptr<Name>>;
    EXPECT_EQ(textError<SizeThenName>(R"({"first":{"ptr_wrapper":{"id":2147483649,"data":{"_size":1}}},)"
                                      R"("second":{"ptr_wrapper":{"id":1}}})"),
              unknownId(1));
    using StyleThenOther = std::pair<Handle, OtherHandle>;
    EXPECT_EQ(textError<StyleThenOther>(
                  R"({"first":{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":""}}}},)"
                  R"("second":{"id":1}})"),
              unknownId(1));
    using StyleThenShared = std::pair<Handle, std::shared_ptr<Name>>;
    EXPECT_EQ(textError<StyleThenShared>(
                  R"({"first":{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":""}}}},)"
                  R"("second":{"ptr_wrapper":{"id":1}}})"),
              unknownId(1));
}

TEST(PersistPointersTest, IdIsAnUnsignedNumberOf32Bits)
{
    for (const char* id : {"-1", "4294967296", "1.0", "\"1\"", "null"}) {
        EXPECT_EQ(typeError<std::shared_ptr<Size>>(R"({"ptr_wrapper":{"id":)" + std::string(id) + "}}"),
                  "data_.f.flags & kUintFlag")
            << id;
        EXPECT_EQ(typeError<Handle>(R"({"id":)" + std::string(id) + "}"), "data_.f.flags & kUintFlag") << id;
    }
}

TEST(PersistPointersTest, ReferenceOfAnObjectToItselfRaises)
{
    EXPECT_EQ(textError<std::shared_ptr<Link>>(
                  R"({"ptr_wrapper":{"id":2147483649,"data":{"_next":{"ptr_wrapper":{"id":1}}}}})"),
              unknownId(1));
}

TEST(PersistPointersTest, ObjectsInsideSharedObjectsAreNumberedInTheOrderOfTheText)
{
    auto inner = std::make_shared<Link>();
    auto outer = std::make_shared<Link>(Link{inner});
    EXPECT_EQ(toText(std::vector<std::shared_ptr<Link>>{outer, inner}),
              R"([{"ptr_wrapper":{"id":2147483649,"data":{"_next":)"
              R"({"ptr_wrapper":{"id":2147483650,"data":{"_next":{"ptr_wrapper":{"id":0}}}}}}}},)"
              R"({"ptr_wrapper":{"id":2}}])");
}

TEST(PersistPointersTest, ObjectsOfTwoTypesAtOneAddressAreTwoObjects)
{
    const auto whole = std::make_shared<std::pair<Size, int>>();
    const std::shared_ptr<Size> part(whole, &whole->first);
    ASSERT_EQ(static_cast<void*>(whole.get()), static_cast<void*>(part.get()));
    const std::pair<std::shared_ptr<std::pair<Size, int>>, std::shared_ptr<Size>> both(whole, part);
    EXPECT_EQ(toText(both),
              R"({"first":{"ptr_wrapper":{"id":2147483649,"data":{"first":{"_size":0},"second":0}}},)"
              R"("second":{"ptr_wrapper":{"id":2147483650,"data":{"_size":0}}}})");
}

TEST(PersistPointersTest, AddressThatIsUsedAgainIsNotTakenForAnObjectWrittenBefore)
{
    constexpr int Count = 200;
    std::ostringstream stream;
    std::string expected;
    {
        cereal::JSONOutputArchive archive(stream);
        archive.writeKey("objects");
        archive.startArray();
        for (int number = 0; number < Count; ++number) {
            archive(std::make_shared<Size>(Size{number}));
            archive(Handle(new Style("s")));
            const std::string first = std::to_string(2147483649U + 2U * static_cast<unsigned>(number));
            const std::string second = std::to_string(2147483650U + 2U * static_cast<unsigned>(number));
            expected += (number == 0 ? "" : ",");
            expected +=
                R"({"ptr_wrapper":{"id":)" + first + R"(,"data":{"_size":)" + std::to_string(number) + "}}},";
            expected +=
                R"({"id":)" + second + R"(,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":"s"}}}})";
        }
        archive.endArray();
        EXPECT_EQ(Style::objects, Count);
    }
    EXPECT_EQ(Style::objects, 0);
    EXPECT_EQ(stream.str(), R"({"objects":[)" + expected + "]}");
}

TEST(PersistPointersTest, NullHandleIsItsIdAlone)
{
    expectText(Handle(), R"({"id":0})");
}

TEST(PersistPointersTest, HandleHasAnUnnamedPointerAtItsFirstOccurrence)
{
    const Handle first(new Style("a"));
    const Handle second(new Style("b"));
    expectText(
        std::vector<Handle>{first, first, nullptr, second, first},
        R"([{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":"a"}}}},{"id":1},{"id":0},)"
        R"({"id":2147483650,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":"b"}}}},{"id":1}])");
}

TEST(PersistPointersTest, TwoHandlesOfOneObjectStayHandlesOfOneObject)
{
    {
        const Handle style(new Style("a"));
        const auto loaded = fromText<std::vector<Handle>>(toText(std::vector<Handle>{style, style}));
        EXPECT_EQ(loaded[0], loaded[1]);
        EXPECT_EQ(loaded[0]->use_count(), 2U);
    }
    EXPECT_EQ(Style::objects, 0);
}

TEST(PersistPointersTest, HandleWhosePointerIsNotValidLoadsAsNull)
{
    const auto loaded =
        fromText<std::vector<Handle>>(R"([{"id":2147483649,"value0":{"ptr_wrapper":{"valid":0}}},{"id":1}])");
    EXPECT_EQ(loaded[0], nullptr);
    EXPECT_EQ(loaded[1], nullptr);
}

TEST(PersistPointersTest, FailedLoadOfAHandleLeaksNothing)
{
    EXPECT_EQ(textError<std::vector<Handle>>(
                  R"([{"id":2147483649,"value0":{"ptr_wrapper":{"valid":1,"data":{"_name":"a"}}}},)"
                  R"({"id":2147483650,"value0":{"ptr_wrapper":{"valid":1,"data":{}}}}])"),
              "JSON Parsing failed - provided NVP (_name) not found");
    EXPECT_EQ(Style::objects, 0);
}

TEST(PersistPointersTest, ConstPropagatingPointerIsNamedAfterItsExpression)
{
    using Pointer = QN::PropagateConstPtr<std::unique_ptr<Size>>;
    expectText(Pointer(), R"_({"this->getPtr()":{"ptr_wrapper":{"valid":0}}})_");
    expectText(Pointer(std::make_unique<Size>(Size{3})),
               R"_({"this->getPtr()":{"ptr_wrapper":{"valid":1,"data":{"_size":3}}}})_");
}

TEST(PersistPointersTest, SharedConstPointerIsASharedPointerUnderValue)
{
    using Pointer = QN::SharedConstPtr<Size>;
    const Pointer pointer(std::make_shared<Size>(Size{3}));
    expectText(Pointer(), R"({"_value":{"ptr_wrapper":{"id":0}}})");
    expectText(std::pair<Pointer, Pointer>(pointer, pointer),
               R"({"first":{"_value":{"ptr_wrapper":{"id":2147483649,"data":{"_size":3}}}},)"
               R"("second":{"_value":{"ptr_wrapper":{"id":1}}}})");
    const auto loaded =
        fromText<std::pair<Pointer, Pointer>>(toText(std::pair<Pointer, Pointer>(pointer, pointer)));
    EXPECT_EQ(loaded.first.get(), loaded.second.get());
}

} // namespace

} // namespace QN::PersistPointersTest
