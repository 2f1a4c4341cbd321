#pragma once

#include <string>

#include "Utils/Public/Export.h"

namespace QN::DOM {

/// The named steps of an address in a document: what is entered, or for a collection, whose element comes next. Any other
/// number passes through unchanged.
enum class NativeDOMNodeType : unsigned int {
    Document = 0,
    DocumentProperties = 1,
    Scripts = 2,
    DefaultSection = 3,
    Runs = 4,   ///< of a paragraph
    Blocks = 5, ///< of the document, and of a cell, a shape, a header or a footer, a comment or a note
    ParagraphProperties = 6,
    ParagraphMark = 7,
    NumberingReference = 8,
    Rows = 9,
    RowProperties = 10,
    Columns = 11,
    ColumnProperties = 12,
    Frames = 13,
    TableProperties = 14,
    CellProperties = 15,
    TableFilter = 16,
    TextStyles = 17,
    RunProperties = 18,
    TableStyles = 19,
    SectionProperties = 20,
    PageProperties = 21,
    HeadersFooters = 22,
    HeaderFooterPair = 23,
    Header = 24,
    Footer = 25,
    Theme = 26,
    ColorMap = 27,
    Comments = 28,
    Notes = 29,
    Field = 30,
    NumberedLists = 31,
    NumberingLevel = 32,
    ShapeStyles = 33,
    GraphicalObject = 34,
    DefinedNames = 35,
};

/// Whether the step leads to a collection, whose element the next item of the address names. False for an unknown number.
DOM_API bool isCollectionAddressType(NativeDOMNodeType nodeType);

/// Whether the step leads into headers and footers: to a pair, or to a side of one. Not so the collection of the pairs.
DOM_API bool isHeaderFooterAddressType(NativeDOMNodeType nodeType);

/// The enumerator in lower camel case, such as "headersFooters"; "node(36)" for an unknown number.
DOM_API std::string getNodeTypeName(NativeDOMNodeType nodeType);

} // namespace QN::DOM
