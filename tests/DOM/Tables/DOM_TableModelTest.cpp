#include <gtest/gtest.h>

#include <boost/optional/optional.hpp>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "DOM/Tables/TableComparison.h"
#include "Support/RoundTrip.h"

/// Random sequences of operations on a table and on its model, which must look alike after each: a million in all. The
/// environment variable DOM_TABLE_OPERATIONS states another number for each test. `setCell` at an occupied place has fixed
/// effects of its own, which are tested with the storage, and stays out.

namespace QN::DOM::TableModelTest {
namespace {

using namespace QN::Test;

struct Sequence {
    Number maxChunkSize = 0;
    Pair limits;
    std::vector<Number> seeds; ///< of one operation each
};

/// Copies and what was saved and loaded again must look like the model, too.
void compareCopies(const TablePlayer& player, Numbers& numbers)
{
    const Table copy(player.table);
    expectSame(copy == player.table, "equality of a copy");
    TableComparison(copy, player.model).compare(numbers, CompareBy::Content);
    if (!numbers.isOneIn(100)) {
        return;
    }
    const auto loaded = fromJson<Table>(toJson(player.table));
    expectSame(loaded == player.table, "equality of what was loaded");
    TableComparison(loaded, player.model).compare(numbers, CompareBy::Content);
}

/// Plays a sequence; answers what differs.
boost::optional<std::string> play(const Sequence& sequence, std::ostream* log)
{
    TablePlayer player(sequence.maxChunkSize, sequence.limits, log);
    try {
        Numbers numbers(sequence.maxChunkSize);
        const TableComparison comparison(player.table, player.model);
        for (const Number seed : sequence.seeds) {
            player.play(seed);
            comparison.compare(numbers, CompareBy::Address);
        }
        compareCopies(player, numbers);
    } catch (const Difference& difference) {
        return difference.text;
    }
    return boost::none;
}

/// Leaves out operations as long as there still is a difference.
Sequence shrink(Sequence sequence)
{
    for (std::size_t left = 0; left < sequence.seeds.size();) {
        Sequence shorter = sequence;
        shorter.seeds.erase(shorter.seeds.begin() + static_cast<std::ptrdiff_t>(left));
        if (play(shorter, nullptr)) {
            sequence = shorter;
            left = 0;
        } else {
            ++left;
        }
    }
    return sequence;
}

std::string describe(const Sequence& sequence)
{
    std::ostringstream text;
    text << "with at most " << sequence.maxChunkSize << " cells in a chunk:\n";
    const auto difference = play(sequence, &text);
    text << "=> " << difference.value_or("no difference");
    return text.str();
}

/// What is played, for a sequence that ends the process.
const Sequence* current = nullptr;

extern "C" void tellCurrent(int /*signal*/)
{
    std::signal(SIGABRT, SIG_DFL);
    if (current != nullptr) {
        play(*current, &std::cerr);
    }
}

#ifdef __has_feature
constexpr Number Operations =
    __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) ? 50'000 : 250'000;
#else
constexpr Number Operations = 250'000;
#endif

Number getOperationsCount()
{
    const char* const text = std::getenv("DOM_TABLE_OPERATIONS");
    return text != nullptr ? std::strtoull(text, nullptr, 10) : Operations;
}

/// Plays sequences of operations within `limits` until there have been enough.
void expectLikeModel(Number firstSeed, Pair limits, Number length, Number maxChunkSizes)
{
    const auto previous = std::signal(SIGABRT, tellCurrent);
    Numbers numbers(firstSeed);
    for (Number played = 0; played < getOperationsCount(); played += length) {
        Sequence sequence;
        sequence.maxChunkSize = numbers.below(maxChunkSizes);
        sequence.limits = {1 + numbers.below(limits.first), 1 + numbers.below(limits.second)};
        for (Number left = length; left != 0; --left) {
            sequence.seeds.push_back(numbers.next());
        }
        current = &sequence;
        if (play(sequence, nullptr)) {
            ADD_FAILURE() << describe(shrink(sequence));
            break;
        }
    }
    current = nullptr;
    std::signal(SIGABRT, previous);
}

TEST(DOM_TableModel, IsThatOfTinyTablesWithTinyChunks)
{
    expectLikeModel(1, {4, 3}, 30, 4);
}

TEST(DOM_TableModel, IsThatOfNarrowTablesWithManyChunks)
{
    expectLikeModel(2, {12, 2}, 40, 6);
}

TEST(DOM_TableModel, IsThatOfWideTablesWithManyChunks)
{
    expectLikeModel(3, {3, 10}, 40, 10);
}

TEST(DOM_TableModel, IsThatOfLongSequences)
{
    expectLikeModel(4, {6, 4}, 100, 20);
}

} // namespace
} // namespace QN::DOM::TableModelTest
