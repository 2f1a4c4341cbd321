#pragma once

#include <memory>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/DOM_UUIDContainer.h"
#include "DOM/Validator/DOM_Finding.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

class Cell;
class Document;
class NumberingRef;
class Run;
class TextRun;
class TextWithTombstones;
class ValidatorWalk;

/// Checks what no single class can check for itself: the invariants of a whole document, at the boundary between who made
/// it and who works on it. It changes nothing in the document.
///
/// The rules stand once and are run in two ways. `validate` stops the process at the first one that is broken, as any
/// contract does, and a document is valid when it returns. `collectFindings` goes on to the end and tells of each; the first
/// broken rule among them is the one that `validate` stops at.
///
/// Neither recurses over the depth of a document, and both take time and memory in proportion to its size, but for a
/// logarithm in the merged ranges and pivot tables of a table.
///
/// A validator serves one walk: it remembers the names of the tables and the tags of the lists that it has seen. One that was
/// moved from can only be assigned to and destroyed.
class DOM_API Validator {
public:
    using Blocks = ReadonlyPtrVector<Block>;

    Validator();
    Validator(Validator&&) noexcept;
    Validator& operator=(Validator&&) noexcept;
    ~Validator();

    /// All broken rules in the order of the walk, and behind them the hazards: named styles that are valid and yet stop a
    /// later operation, by a predefined type that does not exist, by one under another `UUID` than its own, or by the `UUID`
    /// of one that no style has. The broken rules of the identifiers of one table's inserted rows and columns have no order
    /// among themselves: in an equal document another of them can be the first.
    ///
    /// Never stops the process, whatever a file made of the document: null blocks, runs and cells, unknown identifiers,
    /// caches that do not fit. A cell that the rows of a damaged table share is looked at in the first of them alone, also
    /// for what depends on its place: merged ranges and pivot tables.
    static std::vector<Finding> collectFindings(const Document& document);

    void validate(const Document& document);

    // Parts of a document. What is given by itself does not stand among the document's own blocks, so that neither a section
    // tag nor a break run is allowed in it.

    void validate(const TextWithTombstones& text);
    void validate(const Blocks& blocks);
    void validate(const Block& block);
    void validate(const Paragraph& paragraph);
    void validate(const Run& run);
    void validate(const TextRun& run);
    /// Remembers the tag of the list, if there is one, for the scope at hand.
    void validate(const NumberingRef& numberingRef);
    void validate(const Table& table);
    void validate(const Cell& cell);
    void validate(const Shape& shape);
    void validate(const UUIDContainer<Note>& notes);
    void validate(const UUIDContainer<Comment>& comments);
    void validate(const UUIDContainer<HeaderFooterPair>& headersFooters);

    /// A scope of its own, as the body of a document, a header and a footer are: no tag of a list may be used in two.
    void validateRootBlocks(const Blocks& blocks);

private:
    std::unique_ptr<ValidatorWalk> _walk;
};

} // namespace QN::DOM
