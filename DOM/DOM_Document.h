#pragma once

#include <boost/unordered/unordered_map.hpp>

#include <memory>
#include <string>
#include <vector>

#include "DOM/DOM_DocumentProperties.h"
#include "DOM/DOM_NumberedList.h"
#include "DOM/DOM_Scripts.h"
#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/DOM_TimeZone.h"
#include "DOM/DOM_UUIDContainer.h"
#include "DOM/Properties/DOM_SectionProps.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Properties/DOM_Styles.h"
#include "Utils/Public/Ptr/PropagateConstPtr.h"

namespace QN::DOM {

class ColorMap;
class Theme;

namespace FormulaSyntaxTree {
class Expr;
}

/// The root of the model: the text of a document, be it a letter or a workbook whose sheets are tables, and everything
/// that the text refers to. It checks no invariants, neither when it is changed nor when it is loaded. One document belongs
/// to one thread at a time.
///
/// A new document has neither theme nor styles: `setDefaultThemeIfNeeded` and `appendPredefinedEntities` give it both.
class DOM_API Document {
public:
    using DefinedNames =
        boost::unordered_map<std::string, PropagateConstPtr<std::unique_ptr<FormulaSyntaxTree::Expr>>>;

    Document();
    /// A deep copy, which has the identities of its source. An expression that cannot be cloned, since a call in it has no
    /// arguments or an operand is null, stops the process: see `FormulaSyntaxTree::BaseCompoundExpr`. Validation does not
    /// look for it.
    Document(const Document& other);
    Document(Document&& other) noexcept;
    /// Leaves the target as it was when copying throws.
    Document& operator=(const Document& other);
    Document& operator=(Document&& other) noexcept;
    ~Document();

    const DocumentProperties& getProps() const { return _documentProperties; }
    DocumentProperties& getProps() { return _documentProperties; }

    const Scripts& getScripts() const { return _scripts; }
    Scripts& getScripts() { return _scripts; }

    // The text.

    ReadonlyPtrVector<Block> getBlocks() const { return _textWithTombstones.getBlocks(); }
    std::vector<std::unique_ptr<Block>>& getBlocks() { return _textWithTombstones.getBlocks(); }

    const TextWithTombstones& getTextWithTombstones() const { return _textWithTombstones; }
    TextWithTombstones& getTextWithTombstones() { return _textWithTombstones; }

    // What the text refers to by `UUID` or by name.

    const UUIDContainer<HeaderFooterPair>& getHeadersFooters() const { return _headersFooters; }
    UUIDContainer<HeaderFooterPair>& getHeadersFooters() { return _headersFooters; }

    const UUIDContainer<Comment>& getComments() const { return _comments; }
    UUIDContainer<Comment>& getComments() { return _comments; }

    const UUIDContainer<Note>& getNotes() const { return _notes; }
    UUIDContainer<Note>& getNotes() { return _notes; }

    const std::vector<NumberedList>& getNumLists() const { return _numLists; }
    std::vector<NumberedList>& getNumLists() { return _numLists; }

    /// By name. The expression of a name may be null.
    const DefinedNames& getDefinedNames() const { return _definedNames; }
    DefinedNames& getDefinedNames() { return _definedNames; }

    // Formatting.

    const Styles& getStyles() const { return _styles; }
    Styles& getStyles() { return _styles; }

    /// The pools of the styles that the text shares. Making a shared style does not count as a change of the document.
    const SharedObjectFactory& getSharedObjectFactory() const { return _sharedObjectFactory; }

    const SectionProps& getDefaultSectionProps() const { return _sectionProps; }
    SectionProps& getDefaultSectionProps() { return _sectionProps; }

    /// In points.
    float getTabStopDistance() const { return _tabStopDistance; }
    void setTabStopDistance(float distance) { _tabStopDistance = distance; }

    /// Null when unset. A setter destroys the former theme or map.
    const Theme* getTheme() const { return _theme.get(); }
    void setTheme(std::unique_ptr<Theme> theme);

    const ColorMap* getColorMap() const { return _colorMap.get(); }
    void setColorMap(std::unique_ptr<ColorMap> colorMap);

    // Collaboration.

    bool isChangesTrackingEnabled() const { return _trackingChanges; }
    void setChangesTrackingEnabled(bool isEnabled) { _trackingChanges = isEnabled; }

    TimeZone getTimeZone() const { return _timeZone; }
    void setTimeZone(TimeZone timeZone) { _timeZone = timeZone; }

    /// Compares everything but the pools of shared styles. A tab stop distance that is not a number makes a document
    /// unequal to any, itself included.
    QN_EQUALITY(Document)

    /// Writes and reads the whole tree. Loading replaces all content; a load that fails leaves the document partly filled.
    QN_SERIALIZE(Document)

private:
    DocumentProperties _documentProperties;
    TextWithTombstones _textWithTombstones;
    Scripts _scripts;
    Styles _styles;
    std::vector<NumberedList> _numLists;
    float _tabStopDistance = 36.0F;
    UUIDContainer<HeaderFooterPair> _headersFooters;
    UUIDContainer<Comment> _comments;
    UUIDContainer<Note> _notes;
    std::unique_ptr<Theme> _theme;
    std::unique_ptr<ColorMap> _colorMap;
    SectionProps _sectionProps;
    SharedObjectFactory _sharedObjectFactory;
    DefinedNames _definedNames;
    bool _trackingChanges = false;
    TimeZone _timeZone;

    BOOST_DESCRIBE_CLASS(Document, (), (), (),
                         (_documentProperties, _textWithTombstones, _scripts, _styles, _numLists,
                          _tabStopDistance, _headersFooters, _comments, _notes, _theme, _colorMap,
                          _sectionProps, _sharedObjectFactory, _definedNames, _trackingChanges, _timeZone))
};

} // namespace QN::DOM
