#include <set>
#include <type_traits>

#include "DOM/DOM_Comment.h"
#include "DOM/DOM_Document.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/PredefinedStyles/DOM_PredefinedStylesUtils.h"
#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"
#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Validator/DOM_ValidatorWalk.h"

/// The rules of a document as a whole, of its side content and of its named styles.

namespace QN::DOM {

using NodeAddressing::AddressInList;
using NodeAddressing::AddressInMap;

void ValidatorWalk::validate(const Document& document)
{
    {
        const Steps steps(_address, NativeDOMNodeType::Blocks);
        validateRootBlocks(document.getBlocks());
    }
    validate(document.getHeadersFooters());
    validate(document.getNotes());
    validate(document.getComments());
    const Styles& styles = document.getStyles();
    validateStyles(styles.getTextStyles(), NativeDOMNodeType::TextStyles);
    validateStyles(styles.getTableStyles(), NativeDOMNodeType::TableStyles);
    validateStyles(styles.getShapeStyles(), NativeDOMNodeType::ShapeStyles);
}

void ValidatorWalk::validateRootBlocks(const Blocks& blocks)
{
    _listTags.clear();
    _listTagUses.clear();
    validate(blocks);
    for (const auto& [tag, addressNumber] : _listTagUses) {
        if (!_tmpListTags.insert(tag).second) {
            report(ValidatorRules::ListTagInOneScope, ValidatorRules::ListTagInOneScope.message,
                   addressNumber);
        }
    }
    _listTags.clear();
    _listTagUses.clear();
}

void ValidatorWalk::validate(const UUIDContainer<HeaderFooterPair>& headersFooters)
{
    const Steps collectionSteps(_address, NativeDOMNodeType::HeadersFooters);
    for (auto pair = headersFooters.begin(); pair != headersFooters.end(); ++pair) {
        const Steps pairSteps(_address, AddressInMap(pair.getKey()));
        for (const auto& [type, step] : {std::pair(HeaderFooterType::Header, NativeDOMNodeType::Header),
                                         std::pair(HeaderFooterType::Footer, NativeDOMNodeType::Footer)}) {
            const Steps sideSteps(_address, step);
            const TextWithTombstones* const text = pair->findHeaderOrFooter(type);
            if (check(text != nullptr, ValidatorRules::NoNullPointer)) {
                const Steps blocksSteps(_address, NativeDOMNodeType::Blocks);
                validateRootBlocks(text->getBlocks());
            }
        }
    }
}

void ValidatorWalk::validate(const UUIDContainer<Note>& notes)
{
    const Steps collectionSteps(_address, NativeDOMNodeType::Notes);
    for (auto note = notes.begin(); note != notes.end(); ++note) {
        const Steps steps(_address, AddressInMap(note.getKey()), NativeDOMNodeType::Blocks);
        checkParagraphs(note->getBlocks(), ValidatorRules::ParagraphsInNote);
    }
}

void ValidatorWalk::validate(const UUIDContainer<Comment>& comments)
{
    const Steps collectionSteps(_address, NativeDOMNodeType::Comments);
    for (auto comment = comments.begin(); comment != comments.end(); ++comment) {
        const Steps steps(_address, AddressInMap(comment.getKey()), NativeDOMNodeType::Blocks);
        checkParagraphs(comment->getBlocks(), ValidatorRules::ParagraphsInComment);
    }
}

/// A block of another kind is not looked into.
void ValidatorWalk::checkParagraphs(const Blocks& blocks, const Rule& rule)
{
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        const Steps steps(_address, AddressInList(index));
        const Block* const block = blocks.getPointer(index);
        if (!check(block != nullptr, ValidatorRules::NoNullPointer)) {
            continue;
        }
        // The compiler asks for null once more.
        const auto* const paragraph = dynamic_cast<const Paragraph*>(block); // GCOVR_EXCL_LINE
        if (check(paragraph != nullptr, rule)) {
            validate(*paragraph);
        }
    }
}

template <class NamedStyle>
void ValidatorWalk::validateStyles(const UUIDContainer<NamedStyle>& namedStyles, NativeDOMNodeType step)
{
    const Steps collectionSteps(_address, step);
    std::set<PredefinedStyleName> stylesTypes;
    for (auto style = namedStyles.begin(); style != namedStyles.end(); ++style) {
        const Steps styleSteps(_address, AddressInMap(style.getKey()));
        const NamedStyle& namedStyle = *style;
        if (const auto type = resolveNamedStyleType(namedStyle)) {
            check(stylesTypes.insert(*type).second, ValidatorRules::UniqueStyleType);
        }
        check(namedStyles.find(namedStyle.getUUID()) != nullptr, ValidatorRules::KnownStyleUUID);
        if constexpr (std::is_same_v<NamedStyle, NamedTextStyle>) {
            if (const auto& numberingRef = namedStyle.getNumRef()) {
                validate(*numberingRef);
            }
        }
    }
}

// Hazards

void ValidatorWalk::collectHazards(const Document& document)
{
    const Styles& styles = document.getStyles();
    collectStyleHazards(styles.getTextStyles(), NativeDOMNodeType::TextStyles);
    collectStyleHazards(styles.getTableStyles(), NativeDOMNodeType::TableStyles);
    collectStyleHazards(styles.getShapeStyles(), NativeDOMNodeType::ShapeStyles);
    collectTakenKeys(styles.getTextStyles());
}

/// The address is that of the container.
void ValidatorWalk::reportHazard(const UUID& styleKey, const Rule& rule)
{
    const Steps steps(_address, AddressInMap(styleKey));
    report(rule, rule.message);
    _findings->back().kind = FindingKind::Hazard;
}

/// The name of a style of an unknown type cannot be resolved, and finding a text style by its type looks at the first one
/// in the container.
template <class NamedStyle>
void ValidatorWalk::collectStyleHazards(const UUIDContainer<NamedStyle>& namedStyles, NativeDOMNodeType step)
{
    const Steps collectionSteps(_address, step);
    std::set<PredefinedStyleName> stylesTypes;
    for (auto style = namedStyles.begin(); style != namedStyles.end(); ++style) {
        const auto type = resolveNamedStyleType(*style);
        if (!type) {
            continue;
        }
        if (*type > PredefinedStyleName::Hyperlink) {
            reportHazard(style.getKey(), ValidatorRules::KnownStyleType);
        } else if (std::is_same_v<NamedStyle, NamedTextStyle> && stylesTypes.insert(*type).second &&
                   style->getUUID() != makePredefinedTextStyleUUID(*type)) {
            reportHazard(style.getKey(), ValidatorRules::FixedStyleUUID);
        }
    }
}

/// A predefined style that is missing cannot be added where another style has its key.
void ValidatorWalk::collectTakenKeys(const UUIDContainer<NamedTextStyle>& textStyles)
{
    const Steps collectionSteps(_address, NativeDOMNodeType::TextStyles);
    std::set<PredefinedStyleName> stylesTypes;
    for (const NamedTextStyle& style : textStyles) {
        if (const auto type = resolveNamedStyleType(style)) {
            stylesTypes.insert(*type);
        }
    }
    for (unsigned number = 0; number <= static_cast<unsigned>(PredefinedStyleName::Hyperlink); ++number) {
        const auto type = static_cast<PredefinedStyleName>(number);
        const UUID key = makePredefinedTextStyleUUID(type);
        if (!stylesTypes.contains(type) && textStyles.find(key) != nullptr) {
            reportHazard(key, ValidatorRules::FreeStyleKey);
        }
    }
}

} // namespace QN::DOM
