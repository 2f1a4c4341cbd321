#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "DOM/DOM.h"
#include "Utils/Public/Archive/JSONArchives.h"
#include "demo/HtmlExport.h"
#include "demo/TextImport.h"

/// What users of the library do: import a text, save the document as JSON, load it back, compare, edit it, and write a page
/// that shows it. Usage: demo TEXT_FILE [OUTPUT_FOLDER]

namespace {

using namespace QN::DOM;

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path)) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::ofstream openForWriting(const std::filesystem::path& path)
{
    std::ofstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
    return file;
}

void save(const Document& document, const std::filesystem::path& path)
{
    std::ofstream file = openForWriting(path);
    cereal::JSONOutputArchive archive(file);
    document.serialize(archive);
}

Document load(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    cereal::JSONInputArchive archive(file);
    Document document;
    document.serialize(archive);
    return document;
}

struct Counts {
    std::size_t paragraphs = 0;
    std::size_t runs = 0;
    std::size_t styledRuns = 0;
    std::size_t headings = 0;
};

Counts count(const Document& document)
{
    Counts counts;
    for (const Block& block : document.getBlocks()) {
        const auto& paragraph = dynamic_cast<const Paragraph&>(block);
        ++counts.paragraphs;
        counts.headings += paragraph.getSharedStyle() ? 1U : 0U;
        for (const Run& run : paragraph.getRuns()) {
            ++counts.runs;
            counts.styledRuns += run.getSharedStyle() ? 1U : 0U;
        }
    }
    return counts;
}

/// Deletes the second paragraph as a collaborator would, so that its place stays known, and adds one at the end.
void edit(Document& document)
{
    using QN::CollaborationUtils::IndexIncludingTombstones;
    TextWithTombstones& text = document.getTextWithTombstones();
    if (text.getBlocks().size() > 1) {
        const auto place = text.getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
        text.getBlocks().erase(text.getBlocks().begin() + static_cast<std::ptrdiff_t>(place.get()));
    }
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns().push_back(
        std::make_unique<TextRun>("This paragraph was added to the loaded document."));
    text.getBlocks().push_back(std::move(paragraph));
}

int run(const std::filesystem::path& input, const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);

    Document document;
    appendPredefinedEntities(document);
    document.getProps().setTitle(input.filename().string());
    Demo::importText(readFile(input), document);
    const Counts counts = count(document);
    std::cout << "imported " << input.filename().string() << ": " << counts.paragraphs << " paragraphs, "
              << counts.headings << " of them headings, " << counts.runs << " runs, " << counts.styledRuns
              << " of them bold or italic\n";

    const auto json = folder / "document.json";
    save(document, json);
    std::cout << "saved    " << json.string() << ": " << std::filesystem::file_size(json) << " bytes\n";

    Document loaded = load(json);
    const bool isEqual = loaded == document;
    const auto again = folder / "document-again.json";
    save(loaded, again);
    const bool areSameBytes = readFile(json) == readFile(again);
    std::cout << "loaded   and saved again to " << (areSameBytes ? "the same bytes\n" : "OTHER BYTES\n");

    const auto page = folder / "document.html";
    {
        std::ofstream file = openForWriting(page);
        Demo::exportHtml(loaded, file);
    }
    std::cout << "wrote    " << page.string() << '\n';

    edit(loaded);
    std::cout << "edited   the loaded document: " << loaded.getBlocks().size() << " paragraphs, "
              << loaded.getTextWithTombstones().getTombstones().getTombstonesCount() << " tombstone, "
              << (loaded == document ? "STILL EQUAL" : "no longer equal") << '\n';

    std::cout << "round trip: " << (isEqual && areSameBytes ? "equal" : "NOT EQUAL") << std::endl;
    return isEqual && areSameBytes && !(loaded == document) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount < 2 || argumentCount > 3) {
        std::cerr << "usage: demo TEXT_FILE [OUTPUT_FOLDER]\n";
        return EXIT_FAILURE;
    }
    try {
        return run(arguments[1], argumentCount == 3 ? arguments[2] : "demo-output");
    } catch (const std::exception& error) {
        std::cerr << "demo: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
