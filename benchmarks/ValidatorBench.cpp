#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "DOM/DOM.h"
#include "Timing.h"

/// Validation of documents of a million nodes, with "growth", the time of a document over that of one of half its size,
/// and the time of each node.

namespace {

using namespace QN;
using namespace QN::DOM;

constexpr std::size_t Nodes = 1000000;

std::unique_ptr<Paragraph> makeParagraph(std::size_t runs)
{
    auto paragraph = std::make_unique<Paragraph>();
    for (; runs > 0; --runs) {
        paragraph->getRuns().push_back(std::make_unique<TextRun>("text"));
    }
    return paragraph;
}

/// Paragraphs of three runs.
std::unique_ptr<Document> makeTextDocument(std::size_t nodes)
{
    auto document = std::make_unique<Document>();
    for (std::size_t count = nodes / 4; count > 0; --count) {
        document->getBlocks().push_back(makeParagraph(3));
    }
    return document;
}

/// A sheet of 100 columns, each cell with a paragraph of one run. Every tenth row has a merged range, and every hundredth a
/// pivot table.
std::unique_ptr<Document> makeSheetDocument(std::size_t nodes)
{
    constexpr std::uint64_t Columns = 100;
    auto table = std::make_unique<Table>();
    for (std::uint64_t row = 0; row < nodes / Columns / 3; ++row) {
        for (std::uint64_t column = 0; column < Columns; ++column) {
            Cell& cell = table->getOrCreateCell(RowIndex(row), ColumnIndex(column));
            if (row % 10 != 0 || column != 1) {
                cell.getRawBlocks().push_back(makeParagraph(1));
            }
        }
        if (row % 10 == 0) {
            table->setMergeProps(RowIndex(row), ColumnIndex(0), 0, 1);
        }
        if (row % 100 == 0) {
            auto pivotTable = std::make_unique<PivotTable>();
            pivotTable->setSize({1, 1});
            table->setPivotTable(RowIndex(row), ColumnIndex(50), std::move(pivotTable));
        }
    }
    auto document = std::make_unique<Document>();
    document->getBlocks().push_back(std::move(table));
    return document;
}

/// Notes and comments of one paragraph, and headers, each a scope with a list of its own.
std::unique_ptr<Document> makeSideDocument(std::size_t nodes)
{
    auto document = std::make_unique<Document>();
    for (std::size_t count = nodes / 10; count > 0; --count) {
        Note note;
        note.getBlocks().push_back(makeParagraph(1));
        document->getNotes().insert(std::move(note));
        Comment comment;
        comment.getBlocks().push_back(makeParagraph(1));
        document->getComments().insert(std::move(comment));
        HeaderFooterPair pair;
        auto item = makeParagraph(1);
        item->getNumRef() = std::make_unique<NumberingRef>();
        item->getNumRef()->setListTagUUID(ListTagUUID(UUID::generate()));
        pair.getHeader().getBlocks().push_back(std::move(item));
        document->getHeadersFooters().insert(std::move(pair));
    }
    return document;
}

/// Shapes in shapes, and in the innermost one paragraphs, each with a list of its own and an empty run.
std::unique_ptr<Document> makeDeepFaultyDocument(std::size_t nodes)
{
    constexpr std::size_t Levels = 400;
    auto block = std::make_unique<Shape>();
    for (std::size_t count = nodes / 2; count > 0; --count) {
        auto item = std::make_unique<Paragraph>();
        item->getRuns().push_back(std::make_unique<TextRun>());
        item->getNumRef() = std::make_unique<NumberingRef>();
        item->getNumRef()->setListTagUUID(ListTagUUID(UUID::generate()));
        block->getBlocks().push_back(std::move(item));
    }
    for (std::size_t level = 1; level < Levels; ++level) {
        auto outer = std::make_unique<Shape>();
        outer->getBlocks().push_back(std::move(block));
        block = std::move(outer);
    }
    auto document = std::make_unique<Document>();
    document->getBlocks().push_back(std::move(block));
    return document;
}

template <class Make, class Validate>
void compareSizes(benchmark::State& state, const Make& make, const Validate& validate)
{
    const auto half = make(Nodes / 2);
    const auto whole = make(Nodes);
    const double seconds = Timing::compareSizes(
        state, [&] { validate(*half); }, [&] { validate(*whole); });
    state.counters["ns_per_node"] =
        seconds * 1e9 / static_cast<double>(Nodes) / static_cast<double>(state.iterations());
}

void validate(const Document& document)
{
    Validator().validate(document);
}

void collect(const Document& document)
{
    benchmark::DoNotOptimize(Validator::collectFindings(document));
}

void validateText(benchmark::State& state)
{
    compareSizes(state, makeTextDocument, validate);
}

void validateSheet(benchmark::State& state)
{
    compareSizes(state, makeSheetDocument, validate);
}

void validateSideContent(benchmark::State& state)
{
    compareSizes(state, makeSideDocument, validate);
}

void collectFromSheet(benchmark::State& state)
{
    compareSizes(state, makeSheetDocument, collect);
}

void collectFromDeepFaultyDocument(benchmark::State& state)
{
    compareSizes(state, makeDeepFaultyDocument, collect);
}

} // namespace

BENCHMARK(validateText)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(validateSheet)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(validateSideContent)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(collectFromSheet)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(collectFromDeepFaultyDocument)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
