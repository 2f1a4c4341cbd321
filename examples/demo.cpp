#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "DOM/DOM.h"
#include "demo/Banner.h"
#include "demo/CsvImport.h"
#include "demo/HtmlExport.h"
#include "demo/PageSetup.h"
#include "demo/SheetChart.h"
#include "demo/SheetEdits.h"
#include "demo/SheetLayout.h"
#include "demo/TextImport.h"
#include "demo/Validation.h"

/// What users of the library do: import a text and a sheet into one document, validate it, save it as JSON, load it back,
/// compare, edit it, and write a page that shows it. Usage: demo TEXT_FILE CSV_FILE [OUTPUT_FOLDER]

namespace {

using namespace QN::DOM;
using std::filesystem::path;

std::string readFile(const path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::is_directory(file)) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::ofstream openForWriting(const path& file)
{
    std::ofstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot write " + file.string());
    }
    return stream;
}

void save(const Document& document, const path& file)
{
    std::ofstream stream = openForWriting(file);
    cereal::JSONOutputArchive archive(stream);
    document.serialize(archive);
}

Document load(const path& file)
{
    std::ifstream stream(file, std::ios::binary);
    cereal::JSONInputArchive archive(stream);
    Document document;
    document.serialize(archive);
    return document;
}

/// Makes a document of a text and a sheet, with a page set-up, a banner, a theme and a chart.
Document import(const path& text, const path& csv)
{
    Document document;
    appendPredefinedEntities(document);
    setDefaultThemeIfNeeded(document);
    document.getProps().setTitle(text.stem().string());
    Demo::setUpPages(document);

    Demo::importText(readFile(text), text.parent_path(), document);
    const std::size_t paragraphsCount = document.getBlocks().size();
    std::cout << "imported " << text.filename().string() << ": " << paragraphsCount << " paragraphs\n";

    Table& sheet = Demo::importCsv(readFile(csv), csv.stem().string(), document);
    Demo::addChart(sheet);
    std::cout << "imported " << csv.filename().string() << ": " << sheet.getLiveRowsCount().get()
              << " rows of " << sheet.getLiveColsCount().get() << " columns\n";

    const std::string summary = std::to_string(paragraphsCount) + " paragraphs and " +
                                std::to_string(sheet.getLiveRowsCount().get()) + " rows";
    Demo::insertBanner(document, std::min<std::size_t>(paragraphsCount, 2), summary);
    return document;
}

/// Saves a document, loads it back, and tells whether the two are equal, also in the bytes that they are saved to.
bool isEqualAfterRoundTrip(const Document& document, const path& file, Document& loaded)
{
    save(document, file);
    loaded = load(file);
    path again = file;
    again.replace_extension(".again.json");
    save(loaded, again);
    const bool isEqual = loaded == document && readFile(file) == readFile(again);
    std::cout << "saved    " << file.string() << ": " << std::filesystem::file_size(file)
              << " bytes; loaded back " << (isEqual ? "equal" : "DIFFERENT") << '\n';
    return isEqual;
}

/// Removes a paragraph as a collaborator would, so that its place stays known, and writes one behind the others.
void editText(Document& document)
{
    using QN::CollaborationUtils::IndexExcludingTombstones;
    auto& blocks = document.getBlocks();
    auto& tombstones = document.getTextWithTombstones().getTombstones();
    std::vector<std::size_t> plain;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const auto* const paragraph = dynamic_cast<const Paragraph*>(blocks[i].get());
        if (paragraph != nullptr && !paragraph->getSharedStyle()) {
            plain.push_back(i);
        }
    }
    auto added = std::make_unique<Paragraph>();
    added->getRuns().push_back(std::make_unique<TextRun>("This was written into the loaded document."));
    const std::size_t place = plain.empty() ? 0 : plain.back() + 1;
    tombstones.insertElement(tombstones.convertIndex(IndexExcludingTombstones(place)));
    blocks.insert(blocks.begin() + static_cast<std::ptrdiff_t>(place), std::move(added));
    if (plain.empty()) {
        return;
    }

    const std::size_t removed = plain[plain.size() / 2];
    tombstones.replaceWithTombstone(tombstones.convertIndex(IndexExcludingTombstones(removed)));
    blocks.erase(blocks.begin() + static_cast<std::ptrdiff_t>(removed));
}

bool run(const path& text, const path& csv, const path& folder)
{
    std::filesystem::create_directories(folder);
    const Document document = import(text, csv);
    bool isGood = Demo::validate(document, std::cout);

    Document loaded;
    isGood = isEqualAfterRoundTrip(document, folder / "document.json", loaded) && isGood;
    isGood = Demo::validate(loaded, std::cout) && isGood;
    Demo::validateBroken(loaded, std::cout);

    editText(loaded);
    std::cout << "edited   the text: a paragraph removed, one added\n"
              << "edited   the sheet: a formula and the sum of all of them\n";
    Demo::editSheet(*Demo::findSheet(loaded), std::cout);
    isGood = !(loaded == document) && Demo::validate(loaded, std::cout) && isGood;
    Document edited;
    isGood = isEqualAfterRoundTrip(loaded, folder / "edited.json", edited) && isGood;
    Demo::clean(edited, std::cout);

    const path page = folder / "document.html";
    std::ofstream stream = openForWriting(page);
    Demo::exportHtml(edited, stream);
    std::cout << "wrote    " << page.string() << "\nround trip: " << (isGood ? "equal" : "NOT EQUAL")
              << std::endl;
    return isGood;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount < 3 || argumentCount > 4) {
        std::cerr << "usage: demo TEXT_FILE CSV_FILE [OUTPUT_FOLDER]\n";
        return EXIT_FAILURE;
    }
    try {
        const char* const folder = argumentCount == 4 ? arguments[3] : "demo-output";
        return run(arguments[1], arguments[2], folder) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& error) {
        std::cerr << "demo: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
