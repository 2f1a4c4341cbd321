#include "Utils/Public/Visitor.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Support/AllocationCount.h"
#include "Support/TestFamily.h"

namespace QN::VisitorTest {

namespace {

using namespace QN::Test;
using QN::TypeList;
using QN::visit;
using QN::visitBoth;

/// Tells classes and constness apart.
struct Naming {
    std::string operator()(const Word&) const { return "const Word"; }
    std::string operator()(Word&) const { return "Word"; }
    std::string operator()(const Group&) const { return "const Group"; }
    std::string operator()(Group&) const { return "Group"; }
    std::string operator()(const Dot&) const { return "const Dot"; }
    std::string operator()(Dot&) const { return "Dot"; }
    std::string operator()(const Ring&) const { return "const Ring"; }
    std::string operator()(Ring&) const { return "Ring"; }
};

/// Takes no class but one.
struct WordsOnly {
    int operator()(const Word& word) const { return static_cast<int>(word._text.size()); }
};

struct Pairing {
    template <class First, class Second>
    std::string operator()(const First& first, const Second& second) const
    {
        return Naming()(first) + ", " + Naming()(second);
    }
};

std::vector<std::unique_ptr<Item>> makeOneOfEach()
{
    std::vector<std::unique_ptr<Item>> items;
    items.push_back(std::make_unique<Word>());
    items.push_back(std::make_unique<Group>());
    items.push_back(std::make_unique<Dot>());
    items.push_back(std::make_unique<Ring>());
    return items;
}

TEST(VisitorTest, HasOneVisitForEachTypeOfItsList)
{
    struct Counter final : QN::Visitor<TypeList<Word, Dot>> {
        void visit(Word&) override { ++words; }
        void visit(Dot&) override { ++dots; }
        int words = 0;
        int dots = 0;
    };
    static_assert(std::is_abstract_v<QN::Visitor<TypeList<Word, Dot>>>);
    static_assert(std::is_base_of_v<QN::Visitor<TypeList<Dot>>, QN::Visitor<TypeList<Word, Dot>>>);
    static_assert(std::has_virtual_destructor_v<QN::Visitor<TypeList<Word, Dot>>>);
    Counter counter;
    QN::Visitor<TypeList<Word, Dot>>& visitor = counter;
    Word word;
    Dot dot;
    visitor.visit(word);
    visitor.visit(dot);
    visitor.visit(dot);
    EXPECT_EQ(counter.words, 1);
    EXPECT_EQ(counter.dots, 2);
}

TEST(VisitorTest, ConstVisitorIsTheSameTemplateOverConstTypes)
{
    static_assert(std::is_same_v<Item::Visitor, QN::Visitor<TypeList<Word, Group, Dot, Ring>>>);
    static_assert(std::is_same_v<Item::ConstVisitor,
                                 QN::Visitor<TypeList<const Word, const Group, const Dot, const Ring>>>);
}

TEST(VisitorTest, VisitCallsTheFunctorWithTheDynamicType)
{
    std::vector<std::string> names;
    for (const auto& item : makeOneOfEach()) {
        names.push_back(visit<std::string>(*item, Naming()));
        names.push_back(visit<std::string>(std::as_const(*item), Naming()));
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Word", "const Word", "Group", "const Group", "Dot",
                                               "const Dot", "Ring", "const Ring"}));
}

TEST(VisitorTest, FunctorGetsTheObjectItself)
{
    Word word("a");
    Item& item = word;
    visit<void>(item, [](auto& visited) {
        if constexpr (std::is_same_v<std::remove_reference_t<decltype(visited)>, Word>) {
            visited._text = "b";
        }
    });
    EXPECT_EQ(word._text, "b");
}

TEST(VisitorTest, FunctorIsReferredToAndNotCopied)
{
    struct Counting {
        Counting() = default;
        Counting(const Counting&) = delete;
        Counting& operator=(const Counting&) = delete;
        void operator()(const Item&) { ++calls; }
        int calls = 0;
    };
    Counting counting;
    const Word word;
    visit<void>(static_cast<const Item&>(word), counting);
    visit<void>(static_cast<const Item&>(word), counting);
    EXPECT_EQ(counting.calls, 2);
}

TEST(VisitorTest, ResultMayBeOwned)
{
    const Word word("text");
    const auto result =
        visit<std::unique_ptr<std::string>>(static_cast<const Item&>(word), [](const auto& visited) {
            if constexpr (std::is_same_v<decltype(visited), const Word&>) {
                return std::make_unique<std::string>(visited._text);
            } else {
                return std::unique_ptr<std::string>();
            }
        });
    EXPECT_EQ(*result, "text");
}

TEST(VisitorTest, ExceptionOfTheFunctorPassesThrough)
{
    const Word word;
    EXPECT_THROW(visit<int>(static_cast<const Item&>(word),
                            [](const auto&) -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

TEST(VisitorTest, VisitWithoutAResultPassesOverTypesThatTheFunctorDoesNotTake)
{
    int lengths = 0;
    for (const auto& item : makeOneOfEach()) {
        visit<void>(std::as_const(*item), [&](const Word&) { ++lengths; });
    }
    EXPECT_EQ(lengths, 1);
}

TEST(VisitorTest, VisitingAllocatesNothing)
{
    const auto items = makeOneOfEach();
    EXPECT_EQ(countAllocations([&] {
                  for (const auto& item : items) {
                      EXPECT_EQ(visit<int>(std::as_const(*item), [](const auto&) { return 1; }), 1);
                      EXPECT_EQ(visitBoth<int>(*item, *items[0], [](const auto&, const auto&) { return 2; }),
                                2);
                  }
              }),
              0U);
}

TEST(VisitorTest, VisitBothGivesTheDynamicTypesOfBothInTheirOrder)
{
    const std::vector<std::string> names{"const Word", "const Group", "const Dot", "const Ring"};
    const auto items = makeOneOfEach();
    for (std::size_t first = 0; first < items.size(); ++first) {
        for (std::size_t second = 0; second < items.size(); ++second) {
            EXPECT_EQ(visitBoth<std::string>(*items[first], *items[second], Pairing()),
                      names[first] + ", " + names[second]);
        }
    }
}

TEST(VisitorTest, VisitBothGivesTheObjectsThemselves)
{
    const Word first("first");
    const Word second("second");
    visitBoth<int>(static_cast<const Item&>(first), static_cast<const Item&>(second),
                   [&](const auto& left, const auto& right) {
                       EXPECT_EQ(static_cast<const Item*>(&left), &first);
                       EXPECT_EQ(static_cast<const Item*>(&right), &second);
                       return 0;
                   });
}

TEST(VisitorDeathTest, HelperWithoutAFunctorBreaksTheContract)
{
    const Word word;
    QN::VisitDetails::Helper<const Item, const WordsOnly, int> helper(nullptr);
    EXPECT_DEATH(word.accept(helper), "Utils/Public/Visitor:188: this->staticVisitor\n");
}

TEST(VisitorDeathTest, HelperOfNoResultWithoutAFunctorBreaksTheContract)
{
    const Word word;
    QN::VisitDetails::Helper<const Item, const WordsOnly, void> helper(nullptr);
    EXPECT_DEATH(word.accept(helper), "Utils/Public/Visitor:219: this->staticVisitor\n");
}

TEST(VisitorDeathTest, HelperWithoutAFunctorBreaksTheContractForAnyType)
{
    const Ring ring;
    QN::VisitDetails::Helper<const Item, const WordsOnly, int> helper(nullptr);
    EXPECT_DEATH(ring.accept(helper), "Utils/Public/Visitor:188: this->staticVisitor\n");
}

TEST(VisitorDeathTest, TakingAResultThatNoVisitStoredBreaksTheContract)
{
    WordsOnly functor;
    QN::VisitDetails::Helper<const Item, WordsOnly, int> helper(&functor);
    EXPECT_DEATH(helper.takeResult(), "Utils/Public/Visitor:194: result\n");
    const Ring ring;
    EXPECT_DEATH(visit<int>(static_cast<const Item&>(ring), functor), "Utils/Public/Visitor:194: result\n");
    EXPECT_EQ(visit<int>(static_cast<const Item&>(Word("four")), functor), 4);
}

TEST(VisitorDeathTest, VisitorOfSeveralFunctorsWithoutAnyBreaksTheContract)
{
    const Word word;
    const Item& item = word;
    const QN::MultiVisitDetails::HeadVisitor<Pairing, Item, std::string> head{nullptr, item};
    EXPECT_DEATH(visit<std::string>(item, head), "Utils/Public/Visitor:404: this->functors\n");
}

} // namespace

} // namespace QN::VisitorTest
