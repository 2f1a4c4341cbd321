#include "TextImport.h"

#include <memory>
#include <string>
#include <utility>

namespace Demo {

namespace {

using namespace QN::DOM;

/// Which marks are open at a place of a line.
struct Emphasis {
    bool isBold = false;
    bool isItalic = false;
};

class Importer {
public:
    explicit Importer(Document& document) : _document(document) {}

    void appendLine(std::string_view line)
    {
        auto paragraph = std::make_unique<Paragraph>();
        const std::size_t level = takeHeadingMark(line);
        if (level != 0) {
            const bool isTitle = level == 1 && _document.getBlocks().empty();
            setParent(*paragraph,
                      isTitle ? PredefinedStyleName::Title : static_cast<PredefinedStyleName>(level));
        }
        appendRuns(line, *paragraph);
        _document.getBlocks().push_back(std::move(paragraph));
    }

private:
    /// The number of `#` before the text of a heading, which is taken off; 0 for any other line.
    static std::size_t takeHeadingMark(std::string_view& line)
    {
        constexpr std::size_t LastLevel = 5;
        const std::size_t level = std::min(line.find_first_not_of('#'), line.size());
        if (level == 0 || level > LastLevel || level == line.size() || line[level] != ' ') {
            return 0;
        }
        line.remove_prefix(level + 1);
        return level;
    }

    void setParent(Paragraph& paragraph, PredefinedStyleName name)
    {
        ParagraphStyle style;
        style.setParentUUID(getPredefinedTextStyleUUID(_document.getStyles(), name));
        paragraph.getSharedStyle() = _document.getSharedObjectFactory().create(std::move(style));
    }

    void appendRuns(std::string_view line, Paragraph& paragraph)
    {
        Emphasis emphasis;
        std::string text;
        const auto flush = [&] {
            if (!text.empty()) {
                append(std::make_unique<TextRun>(std::move(text)), emphasis, paragraph);
                text.clear();
            }
        };
        while (!line.empty()) {
            const std::string_view mark = line.substr(0, line.starts_with("**") ? 2 : 1);
            bool& isOpen = mark.size() == 2 ? emphasis.isBold : emphasis.isItalic;
            if (line.front() == '\t') {
                flush();
                append(std::make_unique<TabRun>(), emphasis, paragraph);
            } else if (line.front() == '*' && (isOpen || line.find(mark, mark.size()) != line.npos)) {
                flush();
                isOpen = !isOpen;
            } else {
                text += mark;
            }
            line.remove_prefix(mark.size());
        }
        flush();
    }

    void append(std::unique_ptr<Run> run, const Emphasis& emphasis, Paragraph& paragraph)
    {
        if (emphasis.isBold || emphasis.isItalic) {
            FontProps font;
            if (emphasis.isBold) {
                font.setBold(true);
            }
            if (emphasis.isItalic) {
                font.setItalic(true);
            }
            RunProps props;
            props.setFontProps(std::make_shared<const FontProps>(std::move(font)));
            RunStyle style;
            style.setRunProps(std::make_shared<const RunProps>(std::move(props)));
            run->getSharedStyle() = _document.getSharedObjectFactory().create(std::move(style));
        }
        paragraph.getRuns().push_back(std::move(run));
    }

    Document& _document;
};

} // namespace

void importText(std::string_view text, Document& document)
{
    Importer importer(document);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (line.find_first_not_of(" \t") != line.npos) {
            importer.appendLine(line);
        }
    }
}

} // namespace Demo
