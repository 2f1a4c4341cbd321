#include "HtmlExport.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "Css.h"
#include "Lists.h"
#include "ShapeSvg.h"
#include "SheetHtml.h"
#include "Text.h"

namespace Demo {

namespace {

using namespace QN::DOM;

constexpr const char* PageCss =
    R"(body{margin:0;padding:1.5em 0;background:#e6e6e1;font-family:Charter,Palatino,Georgia,serif}
.page{box-sizing:border-box;max-width:64em;margin:0 auto 1.5em;padding:1.6em 2em 1.2em;background:#fff;box-shadow:0 1px 4px #0003}
.text{max-width:60em;padding-left:7em;padding-right:7em}
header,footer{font-family:'Helvetica Neue',Arial,sans-serif;border-color:#ccc;border-style:solid;border-width:0}
header{border-bottom-width:1px;margin-bottom:2em;padding-bottom:.4em}
footer{border-top-width:1px;margin-top:2em;padding-top:.6em}
p,h1,h2,h3,h4,h5{margin:0 0 .55em 0;line-height:1.45;font-weight:inherit;tab-size:36pt;white-space:pre-wrap}
h1,h2,h3{margin-top:1.1em;margin-bottom:.4em}
header p,footer p{margin:0}
img{display:block;max-width:100%;margin:.8em auto .4em}
.item{position:relative;margin-bottom:.2em}
.item + :not(.item){margin-top:.55em}
.marker{position:absolute;left:-18pt}
.shape{position:relative;width:max-content;margin:1.2em auto 1.8em}
.shape svg{display:block}
.shape div{position:absolute;inset:0;display:flex;flex-direction:column;justify-content:center;text-align:center}
.shape p{margin:0}
)";

class PageWriter {
public:
    PageWriter(const Document& document, std::ostream& out)
        : _document(document), _out(out), _markers(document)
    {
        const auto& blocks = document.getBlocks();
        _pagesCount = 1 + std::count_if(blocks.begin(), blocks.end(), [](const Block& block) {
                          return dynamic_cast<const Table*>(&block) != nullptr;
                      });
    }

    void write()
    {
        _out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>"
             << escapeHtml(getTitle()) << "</title>\n<style>\n"
             << PageCss << SheetCss;
        for (const NamedTextStyle& style : _document.getStyles().getTextStyles()) {
            _out << '.' << getClass(style.getUUID()) << '{' << toCss(style.getParaProps().get())
                 << toCss(style.getRunProps().get(), _document) << "}\n";
        }
        _out << "</style>\n</head>\n<body>\n";
        beginPage("page text");
        for (const Block& block : _document.getBlocks()) {
            QN::visit<void>(block, *this);
        }
        endPage();
        _out << "</body>\n</html>\n";
    }

    // The blocks; visited by class.

    void operator()(const Table& table)
    {
        endPage();
        beginPage("page");
        exportSheet(table, _document, _out);
    }

    void operator()(const Shape& shape)
    {
        _out << "<div class=\"shape\">" << drawShape(shape, _document) << "<div>";
        for (const Block& block : shape.getBlocks()) {
            QN::visit<void>(block, *this);
        }
        _out << "</div></div>\n";
    }

    void operator()(const Paragraph& paragraph)
    {
        const NamedTextStyle* const style = findStyle(paragraph);
        const std::string tag = getTag(style);
        const NumberingLevel* const level = _markers.findLevel(paragraph);
        const std::string marker = _markers.getNext(paragraph);
        const bool isBullet = level != nullptr && tag == "p";

        _out << '<' << tag << " class=\"" << (isBullet ? "item" : "");
        if (style != nullptr) {
            _out << ' ' << getClass(style->getUUID());
        }
        _out << "\" style=\"";
        if (isBullet && level->getStyle().getParaProps()) {
            // The marker hangs in front of the text, which is indented as the level says.
            _out << "margin-left:"
                 << toFixed(level->getStyle().getParaProps()->getLeftIndent().value_or(0.0F), 1) << "pt;";
        }
        _out << escapeHtml(toCss(paragraph.getStyle().getParaProps().get()) +
                           toCss(paragraph.getStyle().getRunProps().get(), _document))
             << "\">";
        if (!marker.empty()) {
            _out << (isBullet ? "<span class=\"marker\">" : "<span>") << escapeHtml(marker)
                 << (isBullet ? "</span>" : "&ensp;</span>");
        }
        for (const Run& run : paragraph.getRuns()) {
            const std::string direct = toCss(run.getStyle().getRunProps().get(), _document);
            _out << (direct.empty() ? "" : "<span style=\"" + escapeHtml(direct) + "\">");
            QN::visit<void>(run, *this);
            _out << (direct.empty() ? "" : "</span>");
        }
        _out << "</" << tag << ">\n";
    }

    void operator()(const Block&) {}

    // The runs.

    void operator()(const DrawingRun& run)
    {
        const auto* const picture = dynamic_cast<const Picture*>(run.getFrame().getGraphicalObject());
        if (picture != nullptr && picture->getPictureData()) {
            _out << "<img alt=\"\" src=\"data:;base64," << toBase64(*picture->getPictureData()) << "\">";
        }
    }

    void operator()(const FieldRun& run)
    {
        _out << escapeHtml(boost::apply_visitor(FieldText{*this}, run.getFieldInfo()));
    }

    void operator()(const Run& run) { _out << escapeHtml(run.getText()); }

private:
    /// What a field shows at the place that is being written.
    struct FieldText : boost::static_visitor<std::string> {
        explicit FieldText(const PageWriter& pageWriter) : writer(pageWriter) {}

        std::string operator()(const FieldRun::TitleInfo&) const { return writer.getTitle(); }
        std::string operator()(const FieldRun::PageNumberInfo&) const { return std::to_string(writer._page); }
        std::string operator()(const PagesCountInfo&) const { return std::to_string(writer._pagesCount); }
        template <class Info>
        std::string operator()(const Info&) const
        {
            return "?";
        }

        const PageWriter& writer;
    };

    std::string getTitle() const { return _document.getProps().getTitle().value_or("A document"); }

    void beginPage(const char* style)
    {
        ++_page;
        _out << "<section class=\"" << style << "\">\n";
        writeHeaderOrFooter("header", HeaderFooterType::Header);
    }

    void endPage()
    {
        writeHeaderOrFooter("footer", HeaderFooterType::Footer);
        _out << "</section>\n";
    }

    void writeHeaderOrFooter(const char* tag, HeaderFooterType type)
    {
        const HeaderFooterPair* const pair =
            getHeaderFooter(_document.getDefaultSectionProps(), _document.getHeadersFooters(),
                            PageIndex(static_cast<unsigned long>(_page - 1)));
        if (pair != nullptr && !pair->isEmpty(type)) {
            _out << '<' << tag << ">\n";
            for (const Block& block : pair->getHeaderOrFooter(type).getBlocks()) {
                QN::visit<void>(block, *this);
            }
            _out << "</" << tag << ">\n";
        }
    }

    static std::string getClass(const QN::UUID& style) { return "s" + style.toString(); }

    /// The style that a paragraph refers to, or else the default one of the document.
    const NamedTextStyle* findStyle(const Paragraph& paragraph) const
    {
        const QN::UUID& parent = paragraph.getStyle().getParentUUID();
        const Styles& styles = _document.getStyles();
        return styles.getTextStyles().find(parent ? parent : styles.getDefaultParagraphStyleUUID());
    }

    /// A heading for a style with an outline level.
    static std::string getTag(const NamedTextStyle* style)
    {
        constexpr unsigned long LastHeading = 5;
        if (style != nullptr && style->getParaProps() && style->getParaProps()->getOutlineLevel()) {
            return "h" + std::to_string(std::min(*style->getParaProps()->getOutlineLevel() + 1, LastHeading));
        }
        return "p";
    }

    const Document& _document;
    std::ostream& _out;
    ListMarkers _markers;
    std::ptrdiff_t _page = 0;
    std::ptrdiff_t _pagesCount = 1;
};

} // namespace

void exportHtml(const Document& document, std::ostream& out)
{
    PageWriter(document, out).write();
}

} // namespace Demo
