#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "DOM/Validator/DOM_Validator.h"
#include "DOM/Validator/ValidatorSamples.h"
#include "Support/AllocationCount.h"
#include "Support/RandomDocument.h"
#include "Support/Randomize.h"
#include "Support/RoundTrip.h"
#include "Support/SmallStack.h"
#include "Support/StatedStops.h"

/// Findings are collected from any document without a stop, however it came about and however deep it is.

namespace QN::DOM::ValidatorRobustnessTest {
namespace {

using namespace Test;

TEST(ValidatorRobustnessTest, FindingsAreCollectedFromGeneratedDocuments)
{
    std::size_t valid = 0;
    std::size_t findings = 0;
    for (std::uint64_t seed = 1; seed <= 2000; ++seed) {
        const Document document = makeRandomDocument(seed, seed % 100 == 0 ? 4 : seed % 10 == 0 ? 3 : 2);
        const auto collected = Validator::collectFindings(document);
        findings += collected.size();
        valid += collected.empty() ? 1 : 0;
        for (const Finding& finding : collected) {
            ASSERT_FALSE(finding.toString().empty());
        }
        ASSERT_EQ(Validator::collectFindings(document), collected) << "seed " << seed;
    }
    EXPECT_GT(valid, 0U);
    EXPECT_GT(findings, 1000U);
}

TEST(ValidatorRobustnessTest, BothWaysAgreeOnGeneratedDocuments)
{
    for (std::uint64_t seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectBothWaysAgree(makeRandomDocument(seed, 3));
    }
}

/// A document with some of everything that the walk passes through.
std::string makeText()
{
    Document document = makeDocument({"first"});
    for (const auto type : {PredefinedStyleName::Normal, PredefinedStyleName::Hyperlink}) {
        document.getStyles().getTextStyles().insert(makePredefinedTextStyle(type));
    }
    for (const Place& place : AllPlaces) {
        if (place.name != "body") {
            place.put(document, makeListParagraph('1'));
        }
    }
    auto sheet = makeSheet("Sheet");
    sheet->setMergeProps(RowIndex(3), ColumnIndex(0), 1, 1);
    sheet->setPivotTable(RowIndex(0), ColumnIndex(1), makePivotTable(2, 2));
    sheet->setFilterInfo(TableFilterInfo(makeRange(0, 3, 0, 3)));
    RowData row;
    row.id = RowID(2000000);
    sheet->insertRow(std::move(row), RowIndex(1));
    document.getBlocks().push_back(std::move(sheet));
    return toJson(document);
}

/// Whether the text loads; then its findings are collected.
bool collectFromText(const std::string& text)
{
    if (holdsReversedIndexRange(text)) {
        return false;
    }
    Document document;
    try {
        loadJson(text, document);
    } catch (const cereal::Exception&) {
        return false;
    }
    static_cast<void>(getTexts(Validator::collectFindings(document)));
    return true;
}

TEST(ValidatorRobustnessTest, FindingsAreCollectedFromTextsWithNumbersChanged)
{
    const std::string text = makeText();
    ASSERT_TRUE(collectFromText(text));
    Random random(3);
    std::size_t loaded = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool isNumber = text[place] >= '0' && text[place] <= '9';
        const bool beginsNumber = isNumber && (text[place - 1] == ':' || text[place - 1] == '[');
        if (!beginsNumber) {
            continue;
        }
        const std::size_t end = text.find_first_not_of("0123456789", place);
        for (const char* const number : {"0", "1", "2", "5", "16384", "18446744073709551615"}) {
            if (random.oneIn(2)) {
                loaded += collectFromText(text.substr(0, place) + number + text.substr(end)) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(loaded, 300U);
}

TEST(ValidatorRobustnessTest, FindingsAreCollectedFromTextsWithBytesChanged)
{
    const std::string text = makeText();
    const std::string replacements = "0123456789{}[]\",:\\-.etn_ ";
    Random random(7);
    std::size_t loaded = 0;
    for (int round = 0; round < 2000; ++round) {
        std::string changed = text;
        for (std::size_t count = 1 + random.below(3); count > 0; --count) {
            changed[random.below(changed.size())] = replacements[random.below(replacements.size())];
        }
        loaded += collectFromText(changed) ? 1 : 0;
    }
    EXPECT_GT(loaded, 20U);
}

// Depth

/// Shapes and cells in turn, with a block at the bottom.
std::unique_ptr<Block> nest(std::size_t levels, std::unique_ptr<Block> block = makeParagraph({""}))
{
    for (std::size_t level = 0; level < levels; ++level) {
        if (level % 2 == 0) {
            auto shape = std::make_unique<Shape>();
            shape->getBlocks().push_back(std::move(block));
            block = std::move(shape);
        } else {
            auto table = std::make_unique<Table>(RowIndex(1), ColumnIndex(1));
            table->setName("Level" + std::to_string(level));
            table->getOrCreateCell(RowIndex(0), ColumnIndex(0)).getRawBlocks().push_back(std::move(block));
            block = std::move(table);
        }
    }
    return block;
}

/// Whether the archives take a document of so many levels.
bool canBeSaved(std::size_t levels)
{
    Document document;
    document.getBlocks().push_back(nest(levels));
    try {
        toJson(document);
    } catch (const cereal::Exception&) {
        return false;
    }
    return true;
}

TEST(ValidatorRobustnessTest, ValidationTakesASmallStackAtTheNestingLimitOfTheArchives)
{
    std::size_t levels = 1;
    for (std::size_t step = 1024; step > 0; step /= 2) {
        levels += canBeSaved(levels + step) ? step : 0;
    }
    ASSERT_GT(levels, 400U);
    ASSERT_FALSE(canBeSaved(levels + 1));

    Document document;
    document.getBlocks().push_back(nest(levels));
    std::vector<Finding> findings;
    runOnSmallStack([&] { findings = Validator::collectFindings(document); });
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].line, 71);
    // The step and the index of the body, two more of each shape and three of each cell, and those of the run.
    EXPECT_EQ(findings[0].getAddress().size(), 2 + (levels + 1) / 2 * 2 + levels / 2 * 3 + 2);
    expectBothWaysAgree(document);
}

using Blocks = std::vector<std::unique_ptr<Block>>;

/// The blocks stand in a shape, under so many levels.
Document makeDeepDocument(std::size_t levels, Blocks blocks)
{
    auto shape = std::make_unique<Shape>();
    shape->getBlocks() = std::move(blocks);
    Document document;
    document.getBlocks().push_back(nest(levels, std::move(shape)));
    return document;
}

Blocks makeListParagraphs(std::size_t count)
{
    Blocks blocks;
    for (; count > 0; --count) {
        auto paragraph = makeListParagraph('1');
        paragraph->getNumRef()->setListTagUUID(ListTagUUID(UUID::generate()));
        blocks.push_back(std::move(paragraph));
    }
    return blocks;
}

constexpr std::size_t DeepLevels = 1000;
constexpr std::size_t Many = 4096;

/// What the findings of a document take, of which there must be many.
std::size_t measureFindings(const Document& document)
{
    const std::size_t before = getLiveBytes();
    const std::vector<Finding> findings = Validator::collectFindings(document);
    EXPECT_EQ(findings.size(), Many);
    return getLiveBytes() - before;
}

/// The steps of the long address are held twice at most.
void expectNoMoreThanLevels(std::size_t deep, std::size_t flat)
{
    EXPECT_LT(flat, Many * 500);
    EXPECT_LT(deep, flat + DeepLevels * 500);
}

TEST(ValidatorRobustnessTest, WhatFindingsTakeDoesNotGrowWithTheirDepth)
{
    const auto measure = [](std::size_t levels) {
        return measureFindings(makeDeepDocument(levels, Blocks(Many)));
    };
    expectNoMoreThanLevels(measure(DeepLevels), measure(1));
}

TEST(ValidatorRobustnessTest, WhatFindingsOfListsTakeDoesNotGrowWithTheirDepth)
{
    const auto measure = [](std::size_t levels) {
        const Blocks items = makeListParagraphs(Many);
        const auto makeCopies = [&] {
            Blocks copies;
            for (const auto& item : items) {
                copies.push_back(cloneUnique(*item));
            }
            return copies;
        };
        Document document;
        getPair(document, '1').getHeader().getBlocks() = makeCopies();
        auto& footer = getPair(document, '1').getFooter().getBlocks();
        footer = std::move(makeDeepDocument(levels, makeCopies()).getBlocks());
        return measureFindings(document);
    };
    expectNoMoreThanLevels(measure(DeepLevels), measure(1));
}

TEST(ValidatorRobustnessTest, StoppingAllocatesNothingForTheAddressesOfLists)
{
    const auto count = [](std::size_t tags) {
        const Document document = makeDeepDocument(DeepLevels, makeListParagraphs(tags));
        return countAllocations([&] { Validator().validate(document); });
    };
    const std::size_t allocations = count(2 * Many) - count(Many);
    // Two to know the tag again, in its scope and behind it.
    EXPECT_GE(allocations, 2 * Many);
    EXPECT_LT(allocations, 2 * Many + Many / 10);
}

} // namespace
} // namespace QN::DOM::ValidatorRobustnessTest
