#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM.h"
#include "HeapCount.h"
#include "TablePeers.h"
#include "TableSheets.h"
#include "Timing.h"
#include "Utils/Public/Archive/JSONArchives.h"

/// Sheets of numbers, each figure beside peers in the same run. The argument is the number of cells: of a dense block of
/// ten columns, or spread at random over 1,048,576 rows and 256 columns. "ns" is the time of ours for one cell or one
/// operation, "map", "flat" and "mdds" how many times the time of a peer it is.

namespace {

using namespace QN;
using namespace QN::DOM;
using TableSheets::Ours;
using TableSheets::Place;
using TableSheets::Shape;
using TableSheets::Sheets;
using Timing::Stopwatch;

/// Those of the last shape that was asked for.
Sheets& getSheets(const Shape& shape)
{
    static std::unique_ptr<Sheets> sheets;
    if (!sheets || !(sheets->shape == shape)) {
        sheets.reset();
        sheets = std::make_unique<Sheets>(shape);
    }
    return *sheets;
}

/// A competitor of ours and the name of its ratio.
template <class Function>
struct Peer {
    const char* name;
    Function run;
    Stopwatch watch{};
};

template <class Function>
Peer(const char*, Function) -> Peer<Function>;

/// Runs ours and the peers in turns. `count` is how many cells or operations a run is about.
template <class Function, class... Functions>
void compare(benchmark::State& state, std::size_t count, Function&& ours, Peer<Functions>... peers)
{
    Stopwatch watch;
    for (auto _ : state) {
        (peers.watch.measure(peers.run), ...);
        state.SetIterationTime(watch.measure(ours));
    }
    ((state.counters[peers.name] = watch.getTotal() / peers.watch.getTotal()), ...);
    state.counters["ns"] =
        watch.getTotal() * 1e9 / static_cast<double>(count) / static_cast<double>(state.iterations());
}

template <class Sheet>
auto makeGetter(const Sheet& sheet, const std::vector<Place>& places)
{
    return [&sheet, &places] {
        double sum = 0;
        for (const Place& place : places) {
            sum += sheet.get(place);
        }
        benchmark::DoNotOptimize(sum);
    };
}

void get(benchmark::State& state, const Sheets& sheets, const std::vector<Place>& places)
{
    compare(
        state, places.size(),
        [&] {
            std::size_t count = 0;
            for (const Place& place : places) {
                count += sheets.ours.has(place) ? 1 : 0;
            }
            benchmark::DoNotOptimize(count);
        },
        Peer{"map", makeGetter(sheets.map, places)}, Peer{"flat", makeGetter(sheets.flat, places)}
#ifdef DOM_BENCH_MDDS
        ,
        // Its columns end with the block.
        Peer{"mdds", makeGetter(sheets.mdds,
                                places.front().column < sheets.shape.getColumns() ? places : sheets.hits)}
#endif
    );
}

template <bool IsDense>
void getHit(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    get(state, sheets, sheets.hits);
}

template <bool IsDense>
void getMiss(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    get(state, sheets, sheets.misses);
}

template <class Sheet>
auto makeWalk(const Sheet& sheet)
{
    return [&sheet] { benchmark::DoNotOptimize(sheet.walk()); };
}

/// Of the peers each walks in the order that it has: the hash map in none, mdds by rows where it is dense, else by columns.
template <bool IsDense, class Function>
void walkBesidePeers(benchmark::State& state, const Sheets& sheets, Function&& ours)
{
    compare(
        state, sheets.places.size(), ours, Peer{"map", makeWalk(sheets.map)},
        Peer{"flat", makeWalk(sheets.flat)}
#ifdef DOM_BENCH_MDDS
        ,
        Peer{"mdds",
             [&] { benchmark::DoNotOptimize(IsDense ? sheets.mdds.walkRows() : sheets.mdds.walkColumns()); }}
#endif
    );
}

template <bool IsDense>
void walk(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    walkBesidePeers<IsDense>(state, sheets, [&] { benchmark::DoNotOptimize(sheets.ours.walk()); });
}

template <bool IsDense>
void walkNumbers(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    walkBesidePeers<IsDense>(state, sheets, [&] { benchmark::DoNotOptimize(sheets.ours.walkNumbers()); });
}

template <bool IsDense>
void fill(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    const auto fillNew = [&](auto& sheet) {
        sheet.emplace(sheets.shape.getRows(), sheets.shape.getColumns());
        sheets.fill(*sheet);
    };
    std::optional<Ours> ours;
    std::optional<Peers::Map> map;
    std::optional<Peers::HashMap> flat;
#ifdef DOM_BENCH_MDDS
    std::optional<Peers::Columns> mdds;
#endif
    Stopwatch watch;
    Stopwatch mapWatch;
    Stopwatch flatWatch;
    Stopwatch mddsWatch;
    for (auto _ : state) {
        mapWatch.measure([&] { fillNew(map); });
        map.reset();
        flatWatch.measure([&] { fillNew(flat); });
        flat.reset();
#ifdef DOM_BENCH_MDDS
        mddsWatch.measure([&] { fillNew(mdds); });
        mdds.reset();
#endif
        state.SetIterationTime(watch.measure([&] { fillNew(ours); }));
        ours.reset();
    }
    state.counters["map"] = watch.getTotal() / mapWatch.getTotal();
    state.counters["flat"] = watch.getTotal() / flatWatch.getTotal();
    if (mddsWatch.getTotal() != 0) {
        state.counters["mdds"] = watch.getTotal() / mddsWatch.getTotal();
    }
    state.counters["ns"] = watch.getTotal() * 1e9 / static_cast<double>(sheets.places.size()) /
                           static_cast<double>(state.iterations());
}

template <bool IsDense>
void deepCopy(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    std::optional<Ours> ours;
    std::optional<Peers::Map> map;
    Stopwatch watch;
    Stopwatch mapWatch;
    for (auto _ : state) {
        mapWatch.measure([&] { map.emplace(sheets.map); });
        map.reset();
        state.SetIterationTime(watch.measure([&] { ours.emplace(sheets.ours); }));
        ours.reset();
    }
    state.counters["map"] = watch.getTotal() / mapWatch.getTotal();
    state.counters["ns"] = watch.getTotal() * 1e9 / static_cast<double>(sheets.places.size()) /
                           static_cast<double>(state.iterations());
}

template <bool IsDense>
void equality(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    const Ours copy(sheets.ours);
    const Peers::Map mapCopy(sheets.map);
    const Peers::HashMap flatCopy(sheets.flat);
    compare(
        state, sheets.places.size(), [&] { benchmark::DoNotOptimize(sheets.ours == copy); },
        Peer{"map", [&] { benchmark::DoNotOptimize(sheets.map == mapCopy); }},
        Peer{"flat", [&] { benchmark::DoNotOptimize(sheets.flat == flatCopy); }});
}

// Structure: one insertion and one removal in the middle, after which the sheet is as before.

RowData makeRow()
{
    RowData row;
    row.id = RowID(5'000'000'000);
    return row;
}

ColumnData makeColumn()
{
    ColumnData column;
    column.id = ColumnID(5'000'000'000);
    return column;
}

template <bool IsDense>
void insertAndRemoveRow(benchmark::State& state)
{
    Sheets& sheets = getSheets({IsDense, state.range(0)});
    const std::uint32_t middle = sheets.shape.getRows() / 2;
    compare(
        state, 2,
        [&] {
            sheets.ours.table.insertRow(makeRow(), RowIndex(middle));
            benchmark::DoNotOptimize(sheets.ours.table.removeRow(RowIndex(middle)));
        }
#ifdef DOM_BENCH_MDDS
        ,
        Peer{"mdds",
             [&] {
                 sheets.mdds.insertRow(middle);
                 sheets.mdds.removeRow(middle);
             }}
#endif
    );
}

template <bool IsDense>
void insertColumn(benchmark::State& state)
{
    Sheets& sheets = getSheets({IsDense, state.range(0)});
    Table& table = sheets.ours.table;
    const std::uint32_t middle = sheets.shape.getColumns() / 2;
    Stopwatch watch;
    for (auto _ : state) {
        state.SetIterationTime(watch.measure([&] { table.insertColumn(makeColumn(), ColumnIndex(middle)); }));
        table.removeColumn(ColumnIndex(middle));
    }
    state.counters["ns"] = watch.getTotal() * 1e9 / static_cast<double>(state.iterations());
}

template <bool IsDense>
void removeColumn(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    const std::uint32_t middle = sheets.shape.getColumns() / 2;
    Ours copy(sheets.ours);
    Stopwatch watch;
    for (auto _ : state) {
        ColumnData removed;
        state.SetIterationTime(
            watch.measure([&] { removed = copy.table.removeColumn(ColumnIndex(middle)); }));
        copy.table.insertColumn(std::move(removed), ColumnIndex(middle));
    }
    state.counters["ns"] = watch.getTotal() * 1e9 / static_cast<double>(sheets.shape.getRows()) /
                           static_cast<double>(state.iterations());
}

// Files

std::string save(const Table& table)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        table.serialize(archive);
    }
    return std::move(stream).str();
}

template <bool IsDense>
void saveTable(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    std::size_t size = 0;
    compare(state, sheets.places.size(), [&] { size = save(sheets.ours.table).size(); });
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
    state.counters["bytes_per_cell"] = static_cast<double>(size) / static_cast<double>(sheets.places.size());
}

template <bool IsDense>
void loadTable(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    const std::string text = save(sheets.ours.table);
    Stopwatch watch;
    for (auto _ : state) {
        Table table;
        state.SetIterationTime(watch.measure([&] {
            std::istringstream stream(text);
            cereal::JSONInputArchive archive(stream);
            table.serialize(archive);
        }));
    }
    state.counters["ns"] = watch.getTotal() * 1e9 / static_cast<double>(sheets.places.size()) /
                           static_cast<double>(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

// Memory

template <class Sheet>
double countBytes(const Sheets& sheets)
{
    const std::size_t before = HeapCount::get().liveBytes;
    Sheet sheet(sheets.shape.getRows(), sheets.shape.getColumns());
    sheets.fill(sheet);
    return static_cast<double>(HeapCount::get().liveBytes - before) /
           static_cast<double>(sheets.places.size());
}

template <bool IsDense>
void heapOfCell(benchmark::State& state)
{
    const Sheets& sheets = getSheets({IsDense, state.range(0)});
    for (auto _ : state) {
        const std::size_t before = HeapCount::get().allocations;
        state.counters["bytes"] = countBytes<Ours>(sheets);
        state.counters["allocations"] = static_cast<double>(HeapCount::get().allocations - before) /
                                        static_cast<double>(sheets.places.size());
        state.counters["map_bytes"] = countBytes<Peers::Map>(sheets);
        state.counters["flat_bytes"] = countBytes<Peers::HashMap>(sheets);
#ifdef DOM_BENCH_MDDS
        state.counters["mdds_bytes"] = countBytes<Peers::Columns>(sheets);
#endif
    }
}

template <bool IsDense>
void registerAll(const std::string& shape, std::int64_t cells)
{
    using Function = void (*)(benchmark::State&);
    const auto add = [&](const char* name, Function function) {
        return benchmark::RegisterBenchmark((shape + "/" + name).c_str(), function)
            ->Arg(cells)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    };
    add("getHit", &getHit<IsDense>);
    add("getMiss", &getMiss<IsDense>);
    add("walk", &walk<IsDense>);
    add("walkNumbers", &walkNumbers<IsDense>);
    add("fill", &fill<IsDense>);
    add("deepCopy", &deepCopy<IsDense>);
    add("equality", &equality<IsDense>);
    add("insertAndRemoveRow", &insertAndRemoveRow<IsDense>);
    // Each removal takes far longer than what is measured.
    add("insertColumn", &insertColumn<IsDense>)->Iterations(30);
    add("removeColumn", &removeColumn<IsDense>)->Iterations(5);
    add("save", &saveTable<IsDense>);
    add("load", &loadTable<IsDense>);
    add("heapOfCell", &heapOfCell<IsDense>)->Iterations(1);
}

const bool isRegistered = [] {
    for (const std::int64_t cells : {10'000, 100'000, 1'000'000}) {
        registerAll<true>("tableDense", cells);
    }
    for (const std::int64_t cells : {2'000, 20'000, 200'000}) {
        registerAll<false>("tableSparse", cells);
    }
    return true;
}();

} // namespace
