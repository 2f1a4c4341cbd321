#include "PageSetup.h"

#include <memory>
#include <utility>

namespace Demo {

namespace {

using namespace QN::DOM;

/// A paragraph that its runs are appended to, in the predefined style of headers and footers.
std::unique_ptr<Paragraph> makeParagraph(const Document& document, Alignment alignment)
{
    ParaProps props;
    props.setAlignment(alignment);
    ParagraphStyle style;
    style.setParaProps(std::make_shared<const ParaProps>(std::move(props)));
    style.setParentUUID(
        getPredefinedTextStyleUUID(document.getStyles(), PredefinedStyleName::HeaderAndFooter));
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getSharedStyle() = document.getSharedObjectFactory().create(std::move(style));
    return paragraph;
}

std::shared_ptr<const Insets> makeMargins(float margin)
{
    Insets insets;
    insets.setLeft(margin);
    insets.setRight(margin);
    insets.setTop(margin);
    insets.setBottom(margin);
    return std::make_shared<const Insets>(insets);
}

} // namespace

void setUpPages(Document& document)
{
    auto header = makeParagraph(document, Alignment::Left);
    header->getRuns().push_back(std::make_unique<FieldRun>(FieldRun::TitleInfo()));

    auto footer = makeParagraph(document, Alignment::Center);
    auto& runs = footer->getRuns();
    runs.push_back(std::make_unique<TextRun>("Page "));
    runs.push_back(std::make_unique<FieldRun>(FieldRun::PageNumberInfo(NumberFormatType::Decimal)));
    runs.push_back(std::make_unique<TextRun>(" of "));
    runs.push_back(std::make_unique<FieldRun>(PagesCountInfo(NumberFormatType::Decimal)));

    HeaderFooterPair pair(QN::UUID::generate());
    pair.getHeader().getBlocks().push_back(std::move(header));
    pair.getFooter().getBlocks().push_back(std::move(footer));
    // A4 and an inch, in points.
    pair.getPageProps().setWidth(595.3F);
    pair.getPageProps().setHeight(841.9F);
    pair.getPageProps().setMargins(makeMargins(72.0F));

    document.getDefaultSectionProps().setHeaderFooterUUID(pair.getUUID());
    document.getHeadersFooters().insert(std::move(pair));
}

} // namespace Demo
