#include "DOM/Utils/DOM_CleanDOM.h"

#include "DOM/DOM_Document.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/Tables/DOM_StoredCellWalk.h"
#include "DOM/Tables/DOM_Table.h"

namespace QN::DOM {

namespace {

/// Cleans texts at once and puts off their tables, so that nested tables need no deeper stack.
class TreeCleaner {
public:
    explicit TreeCleaner(DOMCleanType type) : _type(type) {}
    TreeCleaner(const TreeCleaner&) = delete;
    TreeCleaner& operator=(const TreeCleaner&) = delete;
    ~TreeCleaner() = default;

    void clean(TextWithTombstones& text)
    {
        text.getTombstones().clear();
        clean(text.getBlocks());
    }

    void clean(std::vector<std::unique_ptr<Block>>& blocks)
    {
        for (const std::unique_ptr<Block>& block : blocks) {
            if (block) {
                clean(*block);
            }
        }
    }

    void clean(Block& block)
    {
        visit<void>(block, [&](Table& table) { _pendingTables.push_back(&table); });
    }

    void cleanPendingTables()
    {
        while (!_pendingTables.empty()) {
            Table& table = *_pendingTables.back();
            _pendingTables.pop_back();
            cleanTable(table);
        }
    }

private:
    bool has(DOMCleanType flag) const { return (_type & flag) != DOMCleanType::None; }

    void cleanTable(Table& table)
    {
        if (has(DOMCleanType::Tombstones)) {
            table.clearRowTombstones();
            table.clearColumnTombstones();
            table.getFrames().getTombstones().clear();
        }
        if (has(DOMCleanType::UUID)) {
            table.setUUID(UUID());
        }
        if (has(DOMCleanType::RowColumnIDs)) {
            table.resetRowColumnIDsToPredefined();
        }
        for (StoredCellWalk<Table> cells(table); !cells.isAtEnd(); ++cells) {
            if (Cell* const cell = *cells) {
                clean(cell->getTextWithTombstones());
            }
        }
    }

    DOMCleanType _type;
    std::vector<Table*> _pendingTables;
};

template <class Node>
void cleanTree(Node& node, DOMCleanType type)
{
    TreeCleaner cleaner(type);
    cleaner.clean(node);
    cleaner.cleanPendingTables();
}

} // namespace

void cleanDOM(Document& document, DOMCleanType type)
{
    cleanDOM(document.getTextWithTombstones(), type);
    for (HeaderFooterPair& pair : document.getHeadersFooters()) {
        cleanDOM(pair, type);
    }
}

void cleanDOM(HeaderFooterPair& pair, DOMCleanType type)
{
    cleanDOM(pair.getHeader(), type);
    cleanDOM(pair.getFooter(), type);
}

void cleanDOM(Table& table, DOMCleanType type)
{
    cleanTree<Block>(table, type);
}

void cleanDOM(Cell& cell, DOMCleanType type)
{
    cleanTree(cell.getTextWithTombstones(), type);
}

void cleanDOM(TextWithTombstones& text, DOMCleanType type)
{
    cleanTree(text, type);
}

void cleanDOM(Block& block, DOMCleanType type)
{
    cleanTree(block, type);
}

void cleanDOM(std::vector<std::unique_ptr<Block>>& blocks, DOMCleanType type)
{
    cleanTree(blocks, type);
}

} // namespace QN::DOM
