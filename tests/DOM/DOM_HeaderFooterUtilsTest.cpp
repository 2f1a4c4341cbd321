#include "DOM/DOM_HeaderFooterUtils.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/Properties/DOM_SectionProps.h"

namespace QN::DOM::HeaderFooterUtilsTest {

namespace {

/// A letter's UUID; nil for a blank.
UUID toUUID(char letter)
{
    if (letter == ' ') {
        return {};
    }
    std::string text = "00000000-0000-0000-0000-000000000000";
    text.replace(34, 2, {"0123456789abcdef"[letter / 16], "0123456789abcdef"[letter % 16]});
    return UUID(text);
}

/// Pairs by letter, each with the letter of the next one: "AB" is a pair A that B follows.
UUIDContainer<HeaderFooterPair> makePairs(const std::vector<std::string>& links)
{
    UUIDContainer<HeaderFooterPair> pairs;
    for (const std::string& link : links) {
        HeaderFooterPair pair(toUUID(link[0]));
        pair.setNextHeaderFooterUUID(toUUID(link[1]));
        pairs.insert(std::move(pair));
    }
    return pairs;
}

SectionProps makeSection(char first)
{
    SectionProps section;
    section.setHeaderFooterUUID(toUUID(first));
    return section;
}

char toLetter(const HeaderFooterPair* pair)
{
    if (pair == nullptr) {
        return '-';
    }
    for (int letter = ' ' + 1; letter < 127; ++letter) {
        if (toUUID(static_cast<char>(letter)) == pair->getUUID()) {
            return static_cast<char>(letter);
        }
    }
    return '?';
}

/// The letters of the first pages of a section.
std::string getPages(char first, const std::vector<std::string>& links, unsigned long count)
{
    const auto pairs = makePairs(links);
    std::string pages;
    for (unsigned long page = 0; page < count; ++page) {
        pages += toLetter(getHeaderFooter(makeSection(first), pairs, PageIndex(page)));
    }
    return pages;
}

char getLeading(char first, const std::vector<std::string>& links)
{
    const auto pairs = makePairs(links);
    return toLetter(getLeadingHeaderFooterIfUnique(makeSection(first), pairs));
}

/// The rules as they stand, one page after the other.
const HeaderFooterPair* walk(const SectionProps& section, const UUIDContainer<HeaderFooterPair>& pairs,
                             unsigned long steps)
{
    const HeaderFooterPair* current = pairs.find(section.getHeaderFooterUUID());
    while (current != nullptr && steps > 0) {
        const HeaderFooterPair* const next = pairs.find(current->getNextHeaderFooterUUID());
        if (next == nullptr) {
            return current;
        }
        if (next->getNextHeaderFooterUUID() == current->getUUID()) {
            return steps % 2 == 1 ? next : current;
        }
        current = next;
        --steps;
    }
    return current;
}

} // namespace

TEST(GetHeaderFooterTest, ASectionWithoutAPairHasNoneOnAnyPage)
{
    EXPECT_EQ(getPages(' ', {"AB", "BA"}, 3), "---");
    EXPECT_EQ(getPages('A', {}, 3), "---");
    EXPECT_EQ(getPages('A', {"BC", "C "}, 3), "---");
}

TEST(GetHeaderFooterTest, ALonePairGovernsAllPages)
{
    EXPECT_EQ(getPages('A', {"A "}, 4), "AAAA");
    EXPECT_EQ(getPages('A', {"AX"}, 4), "AAAA");
}

TEST(GetHeaderFooterTest, TheLastPairOfAChainGovernsAllLaterPages)
{
    EXPECT_EQ(getPages('A', {"AB", "B "}, 5), "ABBBB");
    EXPECT_EQ(getPages('A', {"AB", "BC", "CD", "D "}, 6), "ABCDDD");
}

TEST(GetHeaderFooterTest, TwoPairsThatFollowEachOtherAlternate)
{
    EXPECT_EQ(getPages('A', {"AB", "BA"}, 6), "ABABAB");
    EXPECT_EQ(getPages('B', {"AB", "BA"}, 6), "BABABA");
}

TEST(GetHeaderFooterTest, APairOfItsOwnMayComeBeforeThoseThatAlternate)
{
    EXPECT_EQ(getPages('F', {"FA", "AB", "BA"}, 6), "FABABA");
    EXPECT_EQ(getPages('F', {"FG", "GA", "AB", "BA"}, 7), "FGABABA");
}

TEST(GetHeaderFooterTest, APairThatFollowsItselfGovernsAllPages)
{
    EXPECT_EQ(getPages('A', {"AA"}, 4), "AAAA");
    EXPECT_EQ(getPages('F', {"FA", "AA"}, 4), "FAAA");
}

TEST(GetHeaderFooterTest, ALongerCircleIsFollowedRoundAndRound)
{
    EXPECT_EQ(getPages('A', {"AB", "BC", "CA"}, 8), "ABCABCAB");
    EXPECT_EQ(getPages('F', {"FG", "GA", "AB", "BC", "CD", "DA"}, 12), "FGABCDABCDAB");
}

TEST(GetHeaderFooterTest, AVeryHighPageIsAnsweredAtOnce)
{
    const auto pairs = makePairs({"FA", "AB", "BC", "CA"});
    const unsigned long last = std::numeric_limits<unsigned long>::max();
    ASSERT_EQ(last % 3, 0U); // so that page `last` is as many pages behind F as page 3
    EXPECT_EQ(toLetter(getHeaderFooter(makeSection('F'), pairs, PageIndex(last))), 'C');
    EXPECT_EQ(toLetter(getHeaderFooter(makeSection('F'), pairs, PageIndex(last - 1))), 'B');
    EXPECT_EQ(toLetter(getHeaderFooter(makeSection('F'), pairs, PageIndex(last - 2))), 'A');
}

TEST(GetHeaderFooterTest, AnyChainIsWalkedAsByTheRules)
{
    constexpr unsigned Seed = 3701;
    SCOPED_TRACE(Seed);
    std::mt19937 random(Seed);
    for (int round = 0; round < 300; ++round) {
        const unsigned count = 1 + static_cast<unsigned>(random() % 7);
        std::vector<std::string> links;
        for (unsigned index = 0; index < count; ++index) {
            const unsigned next = static_cast<unsigned>(random() % (count + 1));
            links.push_back(
                {static_cast<char>('A' + index), next == count ? ' ' : static_cast<char>('A' + next)});
        }
        const auto pairs = makePairs(links);
        for (unsigned long page = 0; page < 30; ++page) {
            EXPECT_EQ(getHeaderFooter(makeSection('A'), pairs, PageIndex(page)),
                      walk(makeSection('A'), pairs, page))
                << ::testing::PrintToString(links) << page;
        }
    }
}

TEST(GetLeadingHeaderFooterTest, AStoreWithoutThePairHasNone)
{
    EXPECT_EQ(getLeading('A', {}), '-');
    EXPECT_EQ(getLeading('A', {"BC", "C "}), '-');
    EXPECT_EQ(getLeading(' ', {"AB", "B "}), '-');
}

TEST(GetLeadingHeaderFooterTest, ALonePairDoesNotCount)
{
    EXPECT_EQ(getLeading('A', {"A "}), '-');
    EXPECT_EQ(getLeading('A', {"A ", "B "}), '-');
}

TEST(GetLeadingHeaderFooterTest, APairThatAnotherOneNamesAsNextLeadsNothing)
{
    EXPECT_EQ(getLeading('A', {"AB", "BA"}), '-');
    EXPECT_EQ(getLeading('A', {"AB", "B ", "CA"}), '-');
    EXPECT_EQ(getLeading('A', {"AA"}), '-');
}

TEST(GetLeadingHeaderFooterTest, APairThatOthersFollowLeadsThem)
{
    EXPECT_EQ(getLeading('A', {"AB", "B "}), 'A');
    EXPECT_EQ(getLeading('F', {"FA", "AB", "BA"}), 'F');
}

TEST(GetLeadingHeaderFooterTest, TheNextPairNeedNotExist)
{
    EXPECT_EQ(getLeading('A', {"AX"}), 'A');
}

} // namespace QN::DOM::HeaderFooterUtilsTest
