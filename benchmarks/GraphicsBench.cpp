#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <utility>

#include "DOM/DOM.h"
#include "DocumentText.h"
#include "Timing.h"

/// Documents full of pictures, charts and shapes, at two sizes: "growth" is the time of the double size over that of the
/// single one.

namespace {

using namespace QN::DOM;

/// Even the single text, of 90 MB, is larger than the processor's cache and than what the allocator keeps for reuse: a growth
/// across one of these bounds would tell of them.
constexpr int Objects = 6000;

std::unique_ptr<DrawingFormulas::Expression> makeOperand(int number)
{
    return std::make_unique<DrawingFormulas::BinaryFunction>(
        DrawingFormulas::BinaryFunctionType::Plus, std::make_unique<DrawingFormulas::AdjustValueReference>(0),
        std::make_unique<DrawingFormulas::Value>(number));
}

std::unique_ptr<Shape> makeShape(int number)
{
    constexpr int Corners = 12;
    auto geometry = std::make_unique<CustomGeometry>();
    geometry->getAdjustValues().add("adj", number);
    geometry->getFormulasMap().add("f", makeOperand(number));
    DrawingCommands::Path& path = geometry->getPaths().emplace_back();
    path.getCommands().push_back(
        std::make_unique<DrawingCommands::MoveTo>(makeOperand(0), makeOperand(number)));
    for (int corner = 0; corner < Corners; ++corner) {
        path.getCommands().push_back(
            std::make_unique<DrawingCommands::LineTo>(makeOperand(corner), makeOperand(number)));
    }
    path.setClosed(true);

    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns().push_back(std::make_unique<TextRun>("Inside shape " + std::to_string(number)));
    auto shape = std::make_unique<Shape>();
    shape->setGeometry(std::move(geometry));
    shape->getBlocks().push_back(std::move(paragraph));
    return shape;
}

std::unique_ptr<ChartSpace> makeChart(int number)
{
    constexpr int SeriesInChart = 3;
    auto chart = std::make_unique<BarChart>();
    for (int index = 0; index < SeriesInChart; ++index) {
        auto fill = std::make_unique<SolidFill>();
        fill->setColor(DefaultAccent1Color);
        ChartGraphicProps paint;
        paint.setFill(std::move(fill));
        auto series = std::make_unique<BarSeries>();
        series->setIdx(static_cast<unsigned long>(index));
        series->setGraphicProps(paint);
        series->getValues().push_back(
            Formula(std::make_unique<FormulaSyntaxTree::Number>(number + index), false));
        chart->getLiveSeries().push_back(std::move(series));
    }
    chart->getAxisIndexes() = {0, 1};
    auto space = std::make_unique<ChartSpace>();
    space->setTitle(std::make_unique<ChartTitle>());
    space->setLegend(std::make_unique<ChartLegend>());
    space->getPlotArea().getCharts().push_back(std::move(chart));
    space->getPlotArea().getAxes().push_back(std::make_unique<CategoryAxis>());
    space->getPlotArea().getAxes().push_back(std::make_unique<ValueAxis>());
    return space;
}

std::unique_ptr<Paragraph> showInline(std::unique_ptr<GraphicalObject> object)
{
    auto run = std::make_unique<DrawingRun>();
    run->getFrame().setGraphicalObject(std::move(object));
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns().push_back(std::move(run));
    return paragraph;
}

/// A shape, a chart and a picture for each of `objects`; eight pictures share the bytes of one image.
std::unique_ptr<Document> makeDocument(int objects)
{
    constexpr int PicturesOfOneImage = 8;
    constexpr std::size_t ImageBytes = 500;
    auto document = std::make_unique<Document>();
    setDefaultThemeIfNeeded(*document);
    std::shared_ptr<const std::string> image;
    for (int number = 0; number < objects; ++number) {
        if (number % PicturesOfOneImage == 0) {
            image = std::make_shared<const std::string>(ImageBytes, static_cast<char>('A' + number % 26));
        }
        document->getBlocks().push_back(makeShape(number));
        document->getBlocks().push_back(showInline(makeChart(number)));
        document->getBlocks().push_back(showInline(std::make_unique<Picture>(image)));
    }
    return document;
}

/// Both sizes in turns, with the speed of the double one, whose text has `bytes`.
template <class Single, class Twice>
void compareSizes(benchmark::State& state, std::size_t bytes, Single&& single, Twice&& twice)
{
    const double seconds = Timing::compareSizes(state, single, twice);
    state.counters["MB_per_s"] =
        static_cast<double>(bytes) / 1e6 * static_cast<double>(state.iterations()) / seconds;
}

void saveGraphics(benchmark::State& state)
{
    const auto single = makeDocument(Objects);
    const auto twice = makeDocument(2 * Objects);
    compareSizes(
        state, save(*twice).size(), [&] { benchmark::DoNotOptimize(save(*single)); },
        [&] { benchmark::DoNotOptimize(save(*twice)); });
}

/// Letting go of what was loaded is part of it.
void loadGraphics(benchmark::State& state)
{
    const std::string single = save(*makeDocument(Objects));
    const std::string twice = save(*makeDocument(2 * Objects));
    compareSizes(
        state, twice.size(), [&] { benchmark::DoNotOptimize(load(single)); },
        [&] { benchmark::DoNotOptimize(load(twice)); });
}

void copyGraphics(benchmark::State& state)
{
    const auto single = makeDocument(Objects);
    const auto twice = makeDocument(2 * Objects);
    compareSizes(
        state, save(*twice).size(), [&] { benchmark::DoNotOptimize(Document(*single)); },
        [&] { benchmark::DoNotOptimize(Document(*twice)); });
}

} // namespace

BENCHMARK(saveGraphics)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadGraphics)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(copyGraphics)->UseManualTime()->Unit(benchmark::kMillisecond);
