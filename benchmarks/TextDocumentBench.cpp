#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "DOM/DOM.h"
#include "DocumentText.h"
#include "HeapCount.h"
#include "Timing.h"
#include "Utils/Public/Archive/RapidJSON.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

/// A text document of 100,000 paragraphs of three runs, each figure beside its floor in the same run. "ratio" is the time
/// of ours over the time of the floor, taken in turns.

namespace {

using namespace QN::DOM;

constexpr int Paragraphs = 100000;
constexpr int RunsInParagraph = 3;

std::unique_ptr<Document> makeDocument()
{
    auto document = std::make_unique<Document>();
    appendPredefinedTextStyles(document->getStyles());
    std::mt19937 random(1);
    auto& blocks = document->getBlocks();
    blocks.reserve(Paragraphs);
    for (int index = 0; index < Paragraphs; ++index) {
        auto paragraph = std::make_unique<Paragraph>();
        ParagraphStyle paragraphStyle;
        paragraphStyle.setParentUUID(
            makePredefinedTextStyleUUID(static_cast<PredefinedStyleName>(random() % 6)));
        paragraph->getSharedStyle() = document->getSharedObjectFactory().create(paragraphStyle);
        for (int run = 0; run < RunsInParagraph; ++run) {
            auto text =
                std::make_unique<TextRun>("The quick brown fox " + std::to_string(random()) + " jumps. ");
            if (run == 1) {
                FontProps font;
                font.setBold(true);
                font.setSize(static_cast<float>(8 + random() % 16));
                RunProps props;
                props.setFontProps(std::make_shared<const FontProps>(font));
                RunStyle style;
                style.setRunProps(std::make_shared<const RunProps>(props));
                text->getSharedStyle() = document->getSharedObjectFactory().create(style);
            }
            paragraph->getRuns().push_back(std::move(text));
        }
        blocks.push_back(std::move(paragraph));
    }
    return document;
}

const Document& getDocument()
{
    static const std::unique_ptr<Document> document = makeDocument();
    return *document;
}

const std::string& getText()
{
    static const std::string text = save(getDocument());
    return text;
}

/// Runs ours and the floor in turns and reports ours, with the ratio beside it. `cleanUp` follows each pair, unmeasured.
template <class Ours, class Floor, class CleanUp>
void compare(benchmark::State& state, Ours&& ours, Floor&& floor, CleanUp&& cleanUp)
{
    Timing::Stopwatch oursWatch;
    Timing::Stopwatch floorWatch;
    for (auto _ : state) {
        floorWatch.measure(floor);
        state.SetIterationTime(oursWatch.measure(ours));
        cleanUp();
    }
    state.counters["ratio"] = oursWatch.getTotal() / floorWatch.getTotal();
    state.counters["floor_ms"] = floorWatch.getTotal() * 1000 / static_cast<double>(state.iterations());
    state.counters["MB_per_s"] = static_cast<double>(getText().size()) / 1e6 *
                                 static_cast<double>(state.iterations()) / oursWatch.getTotal();
}

void saveBesideWriter(benchmark::State& state)
{
    rapidjson::Document tree;
    tree.Parse(getText().data(), getText().size());
    compare(
        state, [] { benchmark::DoNotOptimize(save(getDocument())); },
        [&] {
            rapidjson::StringBuffer buffer;
            rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
            tree.Accept(writer);
            benchmark::DoNotOptimize(buffer.GetString());
        },
        [] {});
}

void loadBesideParse(benchmark::State& state)
{
    std::unique_ptr<Document> document;
    std::unique_ptr<rapidjson::Document> tree;
    compare(
        state,
        [&] {
            document = std::make_unique<Document>();
            std::istringstream stream(getText());
            cereal::JSONInputArchive archive(stream);
            document->serialize(archive);
        },
        [&] {
            tree = std::make_unique<rapidjson::Document>();
            tree->Parse(getText().data(), getText().size());
        },
        [&] {
            document.reset();
            tree.reset();
        });
}

/// The floor is to copy the same text by one allocation for each run.
void deepCopy(benchmark::State& state)
{
    std::unique_ptr<Document> copy;
    std::vector<std::unique_ptr<std::string>> runs;
    compare(
        state, [&] { copy = std::make_unique<Document>(getDocument()); },
        [&] {
            runs.reserve(Paragraphs * RunsInParagraph);
            for (const Block& block : getDocument().getBlocks()) {
                for (const Run& run : static_cast<const Paragraph&>(block).getRuns()) {
                    runs.push_back(std::make_unique<std::string>(run.getText()));
                }
            }
            benchmark::DoNotOptimize(runs.data());
        },
        [&] {
            copy.reset();
            runs.clear();
        });
}

/// The floor is to compare the texts of the runs alone.
void equality(benchmark::State& state)
{
    static const Document copy(getDocument());
    compare(
        state, [] { benchmark::DoNotOptimize(getDocument() == copy); },
        [] {
            bool equal = true;
            const auto left = getDocument().getBlocks();
            const auto right = copy.getBlocks();
            for (std::size_t index = 0; index < left.size(); ++index) {
                const auto leftRuns = static_cast<const Paragraph&>(left[index]).getRuns();
                const auto rightRuns = static_cast<const Paragraph&>(right[index]).getRuns();
                for (std::size_t run = 0; run < leftRuns.size(); ++run) {
                    equal = equal && leftRuns[run].getText() == rightRuns[run].getText();
                }
            }
            benchmark::DoNotOptimize(equal);
        },
        [] {});
}

RunStyle makeStyle(int number)
{
    FontProps font;
    font.setFont(std::string("Family ") + std::to_string(number % 10));
    font.setSize(static_cast<float>(number));
    font.setBold(number % 2 == 0);
    RunProps props;
    props.setFontProps(std::make_shared<const FontProps>(font));
    RunStyle style;
    style.setRunProps(std::make_shared<const RunProps>(props));
    return style;
}

void createKnownStyle(benchmark::State& state)
{
    constexpr int Styles = 1000;
    const SharedObjectFactory factory;
    for (int number = 0; number < Styles; ++number) {
        factory.create(makeStyle(number));
    }
    const RunStyle known = makeStyle(637);
    for (auto _ : state) {
        benchmark::DoNotOptimize(factory.create(known));
    }
}

void heapOfParagraph(benchmark::State& state)
{
    for (auto _ : state) {
        const auto before = HeapCount::get();
        HeapCount::resetPeak();
        Document document;
        {
            std::istringstream stream(getText());
            cereal::JSONInputArchive archive(stream);
            document.serialize(archive);
        }
        const auto after = HeapCount::get();
        state.counters["live_B_per_paragraph"] =
            static_cast<double>(after.liveBytes - before.liveBytes) / Paragraphs;
        state.counters["peak_B_per_paragraph"] =
            static_cast<double>(after.peakBytes - before.liveBytes) / Paragraphs;
        state.counters["text_B_per_paragraph"] = static_cast<double>(getText().size()) / Paragraphs;
        state.counters["allocations_per_paragraph"] =
            static_cast<double>(after.allocations - before.allocations) / Paragraphs;
    }
}

} // namespace

BENCHMARK(saveBesideWriter)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadBesideParse)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(deepCopy)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(equality)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(createKnownStyle);
BENCHMARK(heapOfParagraph)->Iterations(1)->Unit(benchmark::kMillisecond);
