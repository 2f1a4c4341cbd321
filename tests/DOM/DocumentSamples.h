#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_ColorMap.h"
#include "DOM/DOM_Comment.h"
#include "DOM/DOM_Document.h"
#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/DOM_Theme.h"
#include "DOM/FormulaSyntaxTree/DOM_Number.h"
#include "DOM/TextSamples.h"

/// Documents for the tests of the root of the model.

namespace QN::Test {

template <class T>
DOM::UUIDContainer<T> makeUUIDContainer(char digit)
{
    DOM::UUIDContainer<T> container;
    container.insert(T(makeUUID(digit)));
    return container;
}

inline void setDefinedName(DOM::Document& document, const std::string& name, double value)
{
    document.getDefinedNames()[name] = std::make_unique<DOM::FormulaSyntaxTree::Number>(value);
}

/// One change of each member that takes part in equality, in the order of the keys.
inline const std::vector<std::function<void(DOM::Document&)>>& getDocumentChanges()
{
    static const std::vector<std::function<void(DOM::Document&)>> Changes{
        [](DOM::Document& document) { document.getProps().setTitle(std::string("title")); },
        [](DOM::Document& document) { document.getBlocks().push_back(makeParagraph({"text"})); },
        [](DOM::Document& document) {
            document.getTextWithTombstones().getTombstones().replaceWithTombstone(
                CollaborationUtils::IndexIncludingTombstones(5));
        },
        [](DOM::Document& document) { document.getScripts().insertScript("name", "text"); },
        [](DOM::Document& document) { document.getStyles().setDefaultParagraphStyleUUID(makeUUID('1')); },
        [](DOM::Document& document) { document.getNumLists().emplace_back(makeUUID('2')); },
        [](DOM::Document& document) { document.setTabStopDistance(12.5F); },
        [](DOM::Document& document) {
            document.getHeadersFooters() = makeUUIDContainer<DOM::HeaderFooterPair>('3');
        },
        [](DOM::Document& document) { document.getComments() = makeUUIDContainer<DOM::Comment>('4'); },
        [](DOM::Document& document) { document.getNotes() = makeUUIDContainer<DOM::Note>('5'); },
        [](DOM::Document& document) { document.setTheme(std::make_unique<DOM::Theme>()); },
        [](DOM::Document& document) { document.setColorMap(std::make_unique<DOM::ColorMap>()); },
        [](DOM::Document& document) { document.getDefaultSectionProps().setGutter(1.5F); },
        [](DOM::Document& document) { setDefinedName(document, "name", 1.5); },
        [](DOM::Document& document) { document.setChangesTrackingEnabled(true); },
        [](DOM::Document& document) { document.setTimeZone(DOM::TimeZone(90)); },
    };
    return Changes;
}

/// Everything set, a null block included.
inline DOM::Document makeFullDocument()
{
    DOM::Document document;
    for (const auto& change : getDocumentChanges()) {
        change(document);
    }
    auto& blocks = document.getBlocks();
    auto paragraph = makeParagraph({"styled"});
    DOM::RunStyle style;
    style.setParentUUID(makeUUID('6'));
    paragraph->getRuns()[0]->getSharedStyle() = document.getSharedObjectFactory().create(style);
    paragraph->getSharedParaMarkStyle() = document.getSharedObjectFactory().create(style);
    blocks.push_back(std::move(paragraph));
    blocks.push_back(std::make_unique<DOM::SectionTag>());
    blocks.push_back(std::make_unique<DOM::FieldBlock>());
    blocks.push_back(nullptr);
    return document;
}

} // namespace QN::Test
