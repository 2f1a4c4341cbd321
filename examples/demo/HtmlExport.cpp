#include "HtmlExport.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

namespace Demo {

namespace {

using namespace QN::DOM;

/// Text between tags and in attributes. Control characters that HTML does not allow are left out.
std::string escape(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            if (static_cast<unsigned char>(c) >= 0x20 || c == '\t') {
                escaped += c;
            }
        }
    }
    return escaped;
}

std::string toCss(const Color& color)
{
    std::ostringstream css;
    if (const auto* const literal = boost::get<cinder::ColorAT<unsigned char>>(&color.getValue())) {
        css << "rgba(" << +literal->r << ',' << +literal->g << ',' << +literal->b << ','
            << +literal->a / 255.0 << ')';
    } else {
        css << "inherit";
    }
    return css.str();
}

std::string toCss(const FontProps& font)
{
    std::ostringstream css;
    if (const auto* const family = boost::get<std::string>(&font.getFont())) {
        css << "font-family:'" << *family << "',Georgia,serif;";
    }
    if (font.getSize()) {
        css << "font-size:" << *font.getSize() << "pt;";
    }
    if (font.getBold()) {
        css << "font-weight:" << (*font.getBold() ? "bold;" : "normal;");
    }
    if (font.getItalic()) {
        css << "font-style:" << (*font.getItalic() ? "italic;" : "normal;");
    }
    return css.str();
}

std::string toCss(const RunProps* props)
{
    std::string css;
    if (props != nullptr) {
        if (props->getFontProps()) {
            css += toCss(*props->getFontProps());
        }
        if (props->getColor()) {
            css += "color:" + toCss(*props->getColor()) + ';';
        }
        if (props->getUnderline()) {
            css += "text-decoration:underline;";
        }
    }
    return css;
}

std::string toCss(const ParaProps* props)
{
    std::ostringstream css;
    if (props != nullptr) {
        if (props->getBeforeSpacing() && !props->getBeforeSpacing()->isAuto()) {
            css << "margin-top:" << props->getBeforeSpacing()->getValue() << "pt;";
        }
        if (props->getAfterSpacing() && !props->getAfterSpacing()->isAuto()) {
            css << "margin-bottom:" << props->getAfterSpacing()->getValue() << "pt;";
        }
        if (props->getLeftIndent()) {
            css << "margin-left:" << *props->getLeftIndent() << "pt;";
        }
        if (props->getFirstLineIndent()) {
            css << "text-indent:" << *props->getFirstLineIndent() << "pt;";
        }
        if (props->getLineSpacing()) {
            css << "line-height:" << props->getLineSpacing()->getValue() * 1.2F << ';';
        }
    }
    return css.str();
}

class Exporter {
public:
    Exporter(const Document& document, std::ostream& out) : _document(document), _out(out) {}

    void write()
    {
        const std::string title = _document.getProps().getTitle().value_or("A document");
        _out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>"
             << escape(title) << "</title>\n<style>\n"
             << "body{max-width:42em;margin:2em auto;padding:0 1em;background:#fdfdfb}\n"
             << "p,h1,h2,h3,h4,h5{margin:0 0 .6em 0;line-height:1.4;font-weight:inherit;tab-size:8;"
             << "white-space:pre-wrap}\n";
        for (const NamedTextStyle& style : _document.getStyles().getTextStyles()) {
            _out << '.' << getClass(style.getUUID()) << '{' << toCss(style.getParaProps().get())
                 << toCss(style.getRunProps().get()) << "}\n";
        }
        _out << "</style>\n</head>\n<body>\n";
        for (const Block& block : _document.getBlocks()) {
            if (const auto* const paragraph = dynamic_cast<const Paragraph*>(&block)) {
                write(*paragraph);
            }
        }
        _out << "</body>\n</html>\n";
    }

private:
    static std::string getClass(const QN::UUID& style) { return "s" + style.toString(); }

    /// The style that a paragraph refers to, or else the default one of the document.
    const NamedTextStyle* findStyle(const Paragraph& paragraph) const
    {
        const QN::UUID& parent = paragraph.getStyle().getParentUUID();
        const Styles& styles = _document.getStyles();
        return styles.getTextStyles().find(parent ? parent : styles.getDefaultParagraphStyleUUID());
    }

    void write(const Paragraph& paragraph)
    {
        const NamedTextStyle* const style = findStyle(paragraph);
        const std::string tag = getTag(style);
        _out << '<' << tag;
        if (style != nullptr) {
            _out << " class=\"" << getClass(style->getUUID()) << '"';
        }
        const std::string direct = toCss(paragraph.getStyle().getParaProps().get()) +
                                   toCss(paragraph.getStyle().getRunProps().get());
        if (!direct.empty()) {
            _out << " style=\"" << escape(direct) << '"';
        }
        _out << '>';
        for (const Run& run : paragraph.getRuns()) {
            write(run);
        }
        _out << "</" << tag << ">\n";
    }

    void write(const Run& run)
    {
        const std::string direct = toCss(run.getStyle().getRunProps().get());
        if (direct.empty()) {
            _out << escape(run.getText());
        } else {
            _out << "<span style=\"" << escape(direct) << "\">" << escape(run.getText()) << "</span>";
        }
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
};

} // namespace

void exportHtml(const Document& document, std::ostream& out)
{
    Exporter(document, out).write();
}

} // namespace Demo
