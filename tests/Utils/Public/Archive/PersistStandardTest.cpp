#include "Utils/Public/Archive/PersistStandard.h"

#include <boost/container/map.hpp>
#include <boost/container/set.hpp>
#include <boost/container/vector.hpp>
#include <boost/describe/class.hpp>
#include <boost/unordered/unordered_flat_map.hpp>
#include <boost/unordered_map.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Support/ValueText.h"

namespace QN::PersistStandardTest {

namespace {

using namespace QN::Test;

using Variant = boost::variant<int, std::string, std::vector<int>>;

struct Descending {
    bool operator()(int left, int right) const { return left > right; }
};

/// Takes a kilobyte, of which a malformed text states two bytes.
struct Bulky {
    std::array<char, 1024> bytes{};
    int _number = 0;
    BOOST_DESCRIBE_CLASS(Bulky, (), (_number), (), ())
};

/// Knows the most elements that were asked for at once.
template <class T>
struct WatchfulAllocator {
    using value_type = T;
    static inline std::size_t most = 0;

    WatchfulAllocator() = default;
    template <class Other>
    WatchfulAllocator(const WatchfulAllocator<Other>&)
    {
    }
    T* allocate(std::size_t count)
    {
        most = std::max(most, count);
        return std::allocator<T>().allocate(count);
    }
    void deallocate(T* elements, std::size_t count) { std::allocator<T>().deallocate(elements, count); }
    friend bool operator==(const WatchfulAllocator&, const WatchfulAllocator&) { return true; }
};

const std::string NegativeSelector = "Error traversing variant during load";
const std::string SelectorTooLarge = "Invalid 'which' selector when deserializing boost::variant";

TEST(PersistStandardTest, PairIsAnObjectOfFirstAndSecond)
{
    expectText(std::pair<int, std::string>(1, "a"), R"({"first":1,"second":"a"})");
}

TEST(PersistStandardTest, EmptyOptionalIsHasValueAlone)
{
    expectText(boost::optional<int>(), R"({"hasValue":false})");
}

TEST(PersistStandardTest, SetOptionalIsHasValueAndValue)
{
    expectText(boost::optional<int>(36), R"({"hasValue":true,"value":36})");
    expectText(boost::optional<boost::optional<bool>>(boost::optional<bool>()),
               R"({"hasValue":true,"value":{"hasValue":false}})");
}

TEST(PersistStandardTest, LoadingAnEmptyOptionalDropsTheFormerValue)
{
    boost::optional<int> value = 5;
    loadText(R"({"hasValue":false,"value":7})", value);
    EXPECT_FALSE(value);
}

TEST(PersistStandardTest, LoadingASetOptionalDropsTheFormerValue)
{
    boost::optional<std::vector<int>> value = std::vector<int>{1, 2, 3};
    loadText(R"({"hasValue":true,"value":[4]})", value);
    EXPECT_EQ(*value, std::vector<int>{4});
}

TEST(PersistStandardTest, OptionalOfTheWrongFormRaises)
{
    EXPECT_EQ(textError<boost::optional<int>>(R"({"hasValue":true,"_value":1})"),
              "JSON Parsing failed - provided NVP (value) not found");
    EXPECT_EQ(typeError<boost::optional<int>>(R"({"hasValue":1,"value":1})"), "IsBool()");
    EXPECT_EQ(typeError<boost::optional<int>>("1"), "IsObject()");
    EXPECT_EQ(typeError<boost::optional<int>>("null"), "IsObject()");
}

TEST(PersistStandardTest, VariantIsTheIndexAndTheValueOfItsAlternative)
{
    expectText(Variant(5), R"({"which":0,"data":5})");
    expectText(Variant("five"), R"({"which":1,"data":"five"})");
    expectText(Variant(std::vector<int>{5}), R"({"which":2,"data":[5]})");
}

TEST(PersistStandardTest, BlankAlternativeHasAnEmptyObject)
{
    using WithBlank = boost::variant<boost::blank, int>;
    EXPECT_EQ(toText(WithBlank()), R"({"which":0,"data":{}})");
    WithBlank value = 5;
    loadText(R"({"which":0,"data":{}})", value);
    EXPECT_EQ(value.which(), 0);
    EXPECT_EQ(typeError<WithBlank>(R"({"which":0,"data":[]})"), "IsObject()");
    EXPECT_EQ(textError<WithBlank>(R"({"which":0})"), "JSON Parsing failed - provided NVP (data) not found");
}

TEST(PersistStandardTest, AlternativeIsToldByItsNumberAndNotByItsValue)
{
    using Twins = boost::variant<long, int>;
    EXPECT_EQ(fromText<Twins>(R"({"which":1,"data":5})").which(), 1);
    EXPECT_EQ(fromText<Twins>(R"({"which":0,"data":5})").which(), 0);
}

TEST(PersistStandardTest, VariantLoadsOverAnotherAlternative)
{
    Variant value = std::string("old");
    loadText(R"({"which":2,"data":[1,2]})", value);
    EXPECT_EQ(boost::get<std::vector<int>>(value), (std::vector<int>{1, 2}));
    loadText(R"({"which":2,"data":[3]})", value);
    EXPECT_EQ(boost::get<std::vector<int>>(value), std::vector<int>{3});
}

TEST(PersistStandardTest, SelectorAtOrPastTheNumberOfAlternativesRaises)
{
    for (const char* which : {"3", "4", "100", "2147483647"}) {
        EXPECT_EQ(textError<Variant>(R"({"which":)" + std::string(which) + R"(,"data":1})"), SelectorTooLarge)
            << which;
    }
    EXPECT_EQ((textError<boost::variant<int>>(R"({"which":1,"data":1})")), SelectorTooLarge);
}

TEST(PersistStandardTest, NegativeSelectorRaises)
{
    for (const char* which : {"-1", "-2", "-2147483648"}) {
        EXPECT_EQ(textError<Variant>(R"({"which":)" + std::string(which) + R"(,"data":1})"), NegativeSelector)
            << which;
    }
}

TEST(PersistStandardTest, SelectorOfTheWrongTypeRaises)
{
    for (const char* which : {"\"0\"", "0.0", "true", "2147483648"}) {
        EXPECT_EQ(typeError<Variant>(R"({"which":)" + std::string(which) + R"(,"data":1})"),
                  "data_.f.flags & kIntFlag")
            << which;
    }
    EXPECT_EQ(typeError<Variant>(R"({"which":1,"data":1})"), "IsString()");
}

TEST(PersistStandardTest, SequenceIsAnArray)
{
    expectText(std::vector<int>{}, "[]");
    expectText(std::vector<int>{3, 1, 2}, "[3,1,2]");
    expectText(std::vector<std::vector<std::string>>{{"a"}, {}, {"b", "c"}}, R"([["a"],[],["b","c"]])");
    expectText(boost::container::vector<int>{3, 1}, "[3,1]");
}

TEST(PersistStandardTest, MemoryForASequenceIsNotClaimedBeforeItsElementsAreRead)
{
    constexpr std::size_t Count = 200000;
    std::string zeros = "[0";
    std::string objects = R"([{"_number":0})";
    for (std::size_t element = 1; element < Count; ++element) {
        zeros += ",0";
        objects += R"(,{"_number":)" + std::to_string(element) + "}";
    }
    using Bulkies = std::vector<Bulky, WatchfulAllocator<Bulky>>;
    EXPECT_EQ(typeError<Bulkies>(zeros + "]"), "IsObject()");
    EXPECT_LE(WatchfulAllocator<Bulky>::most * sizeof(Bulky), 2U << 20U);
    EXPECT_EQ((typeError<boost::unordered_map<int, Bulky>>(zeros + "]")), "IsObject()");

    const auto loaded = fromText<std::vector<Bulky>>(objects + "]");
    ASSERT_EQ(loaded.size(), Count);
    EXPECT_EQ(loaded.back()._number, static_cast<int>(Count) - 1);
}

TEST(PersistStandardTest, ArrayOfFixedSizeIsAnArrayOfThatSize)
{
    expectText(std::array<int, 3>{3, 1, 2}, "[3,1,2]");
    expectText(std::array<int, 0>{}, "[]");
    EXPECT_EQ((textError<std::array<int, 3>>("[3,1]")), "An array of 3 elements has another size");
    EXPECT_EQ((textError<std::array<int, 3>>("[3,1,2,4]")), "An array of 3 elements has another size");
    EXPECT_EQ((typeError<std::array<int, 3>>("{}")), "IsArray()");
}

TEST(PersistStandardTest, MapIsAnArrayOfKeysAndValues)
{
    expectText(std::map<int, std::string>{}, "[]");
    expectText(std::map<int, std::string>{{2, "b"}, {1, "a"}},
               R"([{"key":1,"value":"a"},{"key":2,"value":"b"}])");
    expectText(boost::container::map<std::string, int>{{"x", 1}}, R"([{"key":"x","value":1}])");
}

TEST(PersistStandardTest, MapWithAnOrderOfItsOwnKeepsIt)
{
    expectText(std::map<int, int, Descending>{{1, 10}, {2, 20}},
               R"([{"key":2,"value":20},{"key":1,"value":10}])");
    const auto loaded =
        fromText<std::map<int, int, Descending>>(R"([{"key":1,"value":10},{"key":2,"value":20}])");
    EXPECT_EQ(loaded.begin()->first, 2);
}

TEST(PersistStandardTest, UnorderedMapIsAnArrayOfKeysAndValues)
{
    expectText(boost::unordered_map<int, std::string>{{1, "a"}}, R"([{"key":1,"value":"a"}])");
    expectText(std::unordered_map<int, std::string>{{1, "a"}}, R"([{"key":1,"value":"a"}])");
    boost::unordered_map<int, int> many;
    for (int key = 0; key < 100; ++key) {
        many[key] = key * key;
    }
    EXPECT_EQ((fromText<boost::unordered_map<int, int>>(toText(many))), many);
}

template <class Map>
class PersistHashMapTest : public testing::Test {
};

using HashMaps = testing::Types<boost::unordered_map<int, int>, boost::unordered_flat_map<int, int>,
                                std::unordered_map<int, int>>;
TYPED_TEST_SUITE(PersistHashMapTest, HashMaps);

TYPED_TEST(PersistHashMapTest, IsWrittenInTheOrderOfItsKeysHoweverItWasMade)
{
    std::string text = "[";
    TypeParam ascending;
    TypeParam descending;
    descending.reserve(5000);
    for (int key = -50; key < 50; ++key) {
        text += (key == -50 ? "" : ",") + (R"({"key":)" + std::to_string(key)) + R"(,"value":)" +
                std::to_string(key * key) + "}";
        ascending.emplace(key, key * key);
        descending.emplace(-1 - key, (-1 - key) * (-1 - key));
    }
    expectText(ascending, text + "]");
    expectText(descending, text + "]");
}

TEST(PersistStandardTest, FirstOfTwoEntriesWithOneKeyStays)
{
    const char* const text =
        R"([{"key":1,"value":"a"},{"key":2,"value":"b"},{"key":1,"value":"c"},{"key":2,"value":"d"}])";
    const std::map<int, std::string> expected{{1, "a"}, {2, "b"}};
    EXPECT_EQ((fromText<std::map<int, std::string>>(text)), expected);
    EXPECT_EQ((fromText<boost::container::map<int, std::string>>(text)).at(1), "a");
    const auto unordered = fromText<boost::unordered_map<int, std::string>>(text);
    EXPECT_EQ(unordered.size(), 2U);
    EXPECT_EQ(unordered.at(1), "a");
    EXPECT_EQ(unordered.at(2), "b");
}

TEST(PersistStandardTest, MapOfOwningPointersLoads)
{
    const auto loaded = fromText<std::map<int, std::unique_ptr<int>>>(
        R"([{"key":1,"value":{"ptr_wrapper":{"valid":1,"data":5}}},{"key":2,"value":{"ptr_wrapper":{"valid":0}}}])");
    EXPECT_EQ(*loaded.at(1), 5);
    EXPECT_EQ(loaded.at(2), nullptr);
}

TEST(PersistStandardTest, MapOfTheWrongFormRaises)
{
    EXPECT_EQ((textError<std::map<int, int>>(R"([{"key":1}])")),
              "JSON Parsing failed - provided NVP (value) not found");
    EXPECT_EQ((textError<std::map<int, int>>(R"([{"value":1}])")),
              "JSON Parsing failed - provided NVP (key) not found");
    EXPECT_EQ((typeError<std::map<int, int>>(R"([[1,2]])")), "IsObject()");
    EXPECT_EQ((typeError<std::map<int, int>>("{}")), "IsArray()");
}

TEST(PersistStandardTest, SetIsAnArrayInItsOrder)
{
    expectText(std::set<std::string>{"b", "a"}, R"(["a","b"])");
    expectText(std::set<int, Descending>{1, 2, 3}, "[3,2,1]");
    expectText(boost::container::set<int>{2, 1}, "[1,2]");
    EXPECT_EQ(fromText<std::set<int>>("[3,1,3,2,1]"), (std::set<int>{1, 2, 3}));
}

TEST(PersistStandardTest, LoadedContainerHoldsNothingOfTheFormerOne)
{
    std::map<int, int> map{{7, 7}};
    loadText(R"([{"key":1,"value":2}])", map);
    EXPECT_EQ(map, (std::map<int, int>{{1, 2}}));
    std::set<int> set{7};
    loadText("[1]", set);
    EXPECT_EQ(set, std::set<int>{1});
}

} // namespace

} // namespace QN::PersistStandardTest
