#include "DOM/DOM_Document.h"

#include "DOM/DOM_ColorMap.h"
#include "DOM/DOM_Comment.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/DOM_Theme.h"
#include "DOM/FormulaSyntaxTree/DOM_Expr.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

Document::Document() = default;

QN_DEFINE_DEEP_COPY(Document)

Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;
Document::~Document() = default;

void Document::setTheme(std::unique_ptr<Theme> theme)
{
    _theme = std::move(theme);
}

void Document::setColorMap(std::unique_ptr<ColorMap> colorMap)
{
    _colorMap = std::move(colorMap);
}

bool Document::operator==(const Document& other) const
{
    const auto areEqual = [&](auto member) { return areMembersDeeplyEqual(this->*member, other.*member); };
    return areEqual(&Document::_documentProperties) && areEqual(&Document::_textWithTombstones) &&
           areEqual(&Document::_styles) && areEqual(&Document::_numLists) &&
           areEqual(&Document::_tabStopDistance) && areEqual(&Document::_headersFooters) &&
           areEqual(&Document::_comments) && areEqual(&Document::_notes) && areEqual(&Document::_theme) &&
           areEqual(&Document::_colorMap) && areEqual(&Document::_sectionProps) &&
           areEqual(&Document::_definedNames) && areEqual(&Document::_trackingChanges) &&
           areEqual(&Document::_scripts) && areEqual(&Document::_timeZone);
}

QN_DEFINE_SERIALIZE(Document)

} // namespace QN::DOM
