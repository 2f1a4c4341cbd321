#include "Utils/Public/SeededHash.h"

#include <boost/unordered/unordered_map.hpp>
#include <boost/unordered/unordered_set.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::SeededHashTest {
namespace {

constexpr std::uint64_t Keys = 20000;

/// The most elements that fall together.
template <class Container>
std::size_t getLargestBucket(const Container& container)
{
    std::size_t largest = 0;
    for (std::size_t bucket = 0; bucket < container.bucket_count(); ++bucket) {
        largest = std::max(largest, container.bucket_size(bucket));
    }
    return largest;
}

UUID makeUUID(std::uint64_t number)
{
    constexpr const char* Digits = "0123456789abcdef";
    std::string text = "00000000-0000-0000-0000-000000000000";
    for (std::size_t position = text.size(); number != 0; number >>= 4U) {
        --position;
        text[position] = Digits[number & 0xFU];
    }
    return UUID(text);
}

TEST(SeededHashTest, IsTheSameForTheWholeProcess)
{
    EXPECT_EQ(getHashSeed(), getHashSeed());
    EXPECT_EQ(SeededHash().seed, getHashSeed());
    EXPECT_EQ(SeededHash()(std::uint64_t{7}), SeededHash()(std::uint64_t{7}));
    EXPECT_EQ(SeededHash()(std::string("seven")), SeededHash()(std::string("seven")));
    EXPECT_EQ(SeededHash()(makeUUID(7)), SeededHash()(makeUUID(7)));
}

TEST(SeededHashTest, FollowsTheSeed)
{
    SeededHash first;
    SeededHash second;
    first.seed = 1;
    second.seed = 2;
    EXPECT_NE(first(std::uint64_t{7}), second(std::uint64_t{7}));
    EXPECT_NE(first(std::string("seven")), second(std::string("seven")));
    EXPECT_NE(first(makeUUID(7)), second(makeUUID(7)));
}

TEST(SeededHashTest, OfATaggedNumberIsThatOfTheNumber)
{
    EXPECT_EQ(SeededHash()(RowIndex(7)), SeededHash()(std::uint64_t{7}));
}

TEST(SeededHashTest, LooksAtAllOfAString)
{
    SeededHash hash;
    hash.seed = 1;
    std::set<std::size_t> hashes;
    std::string text;
    for (int length = 0; length < 20; ++length) {
        hashes.insert(hash(text));
        text.push_back('\0');
    }
    EXPECT_EQ(hashes.size(), 20U);
    text.assign(20, 'a');
    for (char& letter : text) {
        letter = 'b';
        hashes.insert(hash(text));
        letter = 'a';
    }
    EXPECT_EQ(hashes.size(), 40U);
}

/// Multiples of the number of buckets fall together where the hash of a number is the number.
TEST(SeededHashTest, SpreadsNumbersThatWereMadeToFallTogether)
{
    boost::unordered_map<std::uint64_t, int, SeededHash> map;
    map.reserve(Keys);
    const std::uint64_t buckets = map.bucket_count();
    for (std::uint64_t key = 0; key < Keys; ++key) {
        map.emplace(key * buckets, 0);
    }
    ASSERT_EQ(map.bucket_count(), buckets);
    EXPECT_LT(getLargestBucket(map), 30U);
}

/// Both halves of these cancel each other where they are added.
TEST(SeededHashTest, SpreadsNumbersWhoseHalvesCancel)
{
    boost::unordered_map<std::uint64_t, int, SeededHash> map;
    for (std::uint64_t key = 1; key <= Keys; ++key) {
        map.emplace((key << 32U) | ((std::uint64_t{1} << 32U) - key), 0);
    }
    ASSERT_EQ(map.size(), Keys);
    EXPECT_LT(getLargestBucket(map), 30U);
}

TEST(SeededHashTest, SpreadsTheUUIDsOfAFile)
{
    boost::unordered_set<UUID, SeededHash> set;
    for (std::uint64_t key = 0; key < Keys; ++key) {
        set.insert(makeUUID(key));
    }
    EXPECT_EQ(set.size(), Keys);
    EXPECT_LT(getLargestBucket(set), 30U);
}

} // namespace
} // namespace QN::SeededHashTest
