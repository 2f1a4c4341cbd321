#include "TextImport.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "Lists.h"

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
    Importer(Document& document, std::filesystem::path folder)
        : _document(document), _folder(std::move(folder))
    {
    }

    void appendLine(std::string_view line)
    {
        std::size_t level = 0;
        auto paragraph = std::make_unique<Paragraph>();
        if (appendPicture(line)) {
            return;
        }
        if (takeHeadingMark(line, level)) {
            if (level == 1 && _document.getBlocks().empty()) {
                makeTitle(*paragraph, line);
            } else {
                makeHeading(*paragraph, level);
            }
        } else if (takeItemMark(line, level)) {
            paragraph->getNumRef() =
                makeNumberingRef(_document, NumberedListName::FilledCircleBullets, _bulletsTag, level);
        } else if (line.find('\t', 1) != line.npos) {
            setTabStops(*paragraph);
        }
        // Items without another line between them are one list.
        if (!paragraph->getNumRef()) {
            _bulletsTag = QN::UUID::generate();
        }
        appendRuns(line, *paragraph);
        _document.getBlocks().push_back(std::move(paragraph));
    }

private:
    /// Takes `#` and a blank off the text of a heading. The level is the number of `#`.
    static bool takeHeadingMark(std::string_view& line, std::size_t& level)
    {
        constexpr std::size_t LastLevel = 5;
        level = std::min(line.find_first_not_of('#'), line.size());
        if (level == 0 || level > LastLevel || level == line.size() || line[level] != ' ') {
            return false;
        }
        line.remove_prefix(level + 1);
        return true;
    }

    /// Takes `-` and a blank off the text of an item. The level is 0 for an item that is not indented.
    static bool takeItemMark(std::string_view& line, std::size_t& level)
    {
        constexpr std::size_t LastLevel = 8;
        const std::size_t indent = line.find_first_not_of(' ');
        if (!line.substr(indent).starts_with("- ")) {
            return false;
        }
        level = std::min(indent / 2, LastLevel);
        line.remove_prefix(indent + 2);
        return true;
    }

    void makeTitle(Paragraph& paragraph, std::string_view line)
    {
        _hasTitle = true;
        _document.getProps().setTitle(std::string(line));
        setParent(paragraph, PredefinedStyleName::Title);
    }

    void makeHeading(Paragraph& paragraph, std::size_t level)
    {
        level -= _hasTitle && level > 1 ? 1 : 0;
        setParent(paragraph, static_cast<PredefinedStyleName>(level));
        paragraph.getNumRef() =
            makeNumberingRef(_document, NumberedListName::Outline, _headingsTag, level - 1);
    }

    void setParent(Paragraph& paragraph, PredefinedStyleName name)
    {
        ParagraphStyle style;
        style.setParentUUID(getPredefinedTextStyleUUID(_document.getStyles(), name));
        paragraph.getSharedStyle() = _document.getSharedObjectFactory().create(std::move(style));
    }

    /// Columns for lines that have tabs between their words, close to each other.
    void setTabStops(Paragraph& paragraph)
    {
        constexpr float Distance = 108.0F;
        TabStopProps stop;
        stop.setType(TabStopType::Left);
        TabStops stops;
        for (const float position : {Distance, 2 * Distance, 3 * Distance}) {
            stops.emplace(position, stop);
        }
        ParaProps props;
        props.setTabStops(std::move(stops));
        props.setAfterSpacing(SpacingValue(1.0F));
        ParagraphStyle style;
        style.setParaProps(std::make_shared<const ParaProps>(std::move(props)));
        paragraph.getSharedStyle() = _document.getSharedObjectFactory().create(std::move(style));
    }

    /// Appends a picture with its caption, if that is what the line says.
    bool appendPicture(std::string_view line)
    {
        const std::size_t captionEnd = line.find("](");
        if (!line.starts_with("![") || captionEnd == line.npos || !line.ends_with(')')) {
            return false;
        }
        const std::string_view caption = line.substr(2, captionEnd - 2);
        const std::string_view name = line.substr(captionEnd + 2, line.size() - captionEnd - 3);
        std::ifstream file(_folder / name, std::ios::binary);
        std::string bytes{std::istreambuf_iterator<char>(file), {}};
        if (bytes.empty()) {
            return false;
        }
        Frame frame;
        frame.setAnchor(TextAnchor(AnchorWrapType::Inline));
        frame.setGraphicalObject(
            std::make_unique<Picture>(std::make_shared<const std::string>(std::move(bytes))));
        auto picture = std::make_unique<Paragraph>();
        picture->getRuns().push_back(std::make_unique<DrawingRun>(std::move(frame)));
        auto text = std::make_unique<Paragraph>();
        setParent(*text, PredefinedStyleName::Subtitle);
        appendRuns(caption, *text);
        _document.getBlocks().push_back(std::move(picture));
        _document.getBlocks().push_back(std::move(text));
        return true;
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
    std::filesystem::path _folder;
    bool _hasTitle = false;
    QN::UUID _headingsTag = QN::UUID::generate();
    QN::UUID _bulletsTag = QN::UUID::generate();
};

} // namespace

void importText(std::string_view text, const std::filesystem::path& folder, Document& document)
{
    Importer importer(document, folder);
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
