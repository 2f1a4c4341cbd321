#pragma once

#include <boost/optional/optional.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "DOM/DOM_NumberedListName.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/UUID.h"

/// Searches in lists of blocks and of numbered lists. Those by identity, `UUID` or name are linear, look at the given list
/// alone and not inside its blocks, and stop at the first find. Those for a hyperlink look at one place only. A null block
/// or run that a search comes to fails the contract "plainPtr".
namespace QN::DOM {

class Block;
class Document;
class Hyperlink;
class NumberedList;
class Paragraph;

/// The place of the very object, not of an equal one. A block that is not there fails the contract
/// "result < blocks.size()".
DOM_API std::size_t getIndexForBlock(const ReadonlyPtrVector<Block>& blocks, const Block& block);

/// The place of the first table with that `UUID`, in a list of tables alone: a block of another kind before the find raises
/// `std::bad_cast`.
DOM_API boost::optional<std::size_t> findTableIndex(const ReadonlyPtrVector<Block>& blocks, const UUID& uuid);

/// Whether a block of the document's text is a table of that name. Case matters; the empty name is that of any unnamed table.
DOM_API bool hasNamedTable(const Document& document, const std::string& name);

/// The hyperlink of the first run, or of the paragraph mark where there are no runs; null for none. Later runs do not
/// count.
DOM_API std::shared_ptr<const Hyperlink> getFirstHyperlinkFromParagraph(const Paragraph& paragraph);

/// The hyperlink of a paragraph, as above, or of a `FieldBlock`. A block of another kind fails the contract "result".
DOM_API std::shared_ptr<const Hyperlink> getFirstHyperlinkFromBlock(const Block& block);

/// The hyperlink of the first block, whatever the others hold. An empty list fails the contract "!blocks.empty()".
DOM_API std::shared_ptr<const Hyperlink> getFirstHyperlinkFromBlocks(const ReadonlyPtrVector<Block>& blocks);

/// The first list of that name; null for none.
DOM_API const NumberedList* getListByName(const std::vector<NumberedList>& lists, NumberedListName name);

} // namespace QN::DOM
