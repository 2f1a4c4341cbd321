#pragma once

#include <memory>
#include <vector>

#include "Utils/Public/Export.h"

/// Strips a tree of the state of collaborative editing, for a document that leaves it.
///
/// The tombstones of every text go, whatever the flags; what the flags say is done to every table, also to those in the cells
/// of others. What stands in shapes and in frames, comments and notes is left alone. A walk is linear, whatever a file made of
/// the tables, and does not recurse over nested ones. Null blocks and cells are passed over, while a pair without its header
/// or footer, as a file can leave it, fails the contract "plainPtr" of `getHeader` or `getFooter`: validate first.
namespace QN::DOM {

class Block;
class Cell;
class Document;
class HeaderFooterPair;
class Table;
class TextWithTombstones;

/// What is done to a table: a set of flags.
enum class DOMCleanType : unsigned int {
    None = 0,
    Tombstones = 1,   ///< those of rows, columns and frames go
    UUID = 2,         ///< the identity becomes nil: such a table cannot be referred to
    RowColumnIDs = 4, ///< `Table::resetRowColumnIDsToPredefined`
};

constexpr DOMCleanType operator|(DOMCleanType left, DOMCleanType right)
{
    return static_cast<DOMCleanType>(static_cast<unsigned int>(left) | static_cast<unsigned int>(right));
}

constexpr DOMCleanType operator&(DOMCleanType left, DOMCleanType right)
{
    return static_cast<DOMCleanType>(static_cast<unsigned int>(left) & static_cast<unsigned int>(right));
}

/// The main text and the headers and footers.
DOM_API void cleanDOM(Document& document, DOMCleanType type);
DOM_API void cleanDOM(HeaderFooterPair& pair, DOMCleanType type);
DOM_API void cleanDOM(Table& table, DOMCleanType type);
DOM_API void cleanDOM(Cell& cell, DOMCleanType type);
DOM_API void cleanDOM(TextWithTombstones& text, DOMCleanType type);
/// Only a table is changed.
DOM_API void cleanDOM(Block& block, DOMCleanType type);
DOM_API void cleanDOM(std::vector<std::unique_ptr<Block>>& blocks, DOMCleanType type);

} // namespace QN::DOM
