#include "DOM/Utils/DOM_BlockUtils.h"

#include <algorithm>

#include "DOM/DOM_Document.h"
#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/Assert.h"

namespace QN::DOM {

namespace {

struct FirstHyperlinkVisitor {
    std::shared_ptr<const Hyperlink> operator()(const Paragraph& paragraph) const
    {
        return getFirstHyperlinkFromParagraph(paragraph);
    }
    std::shared_ptr<const Hyperlink> operator()(const FieldBlock& block) const
    {
        return block.getHyperlink();
    }
};

} // namespace

std::size_t getIndexForBlock(const ReadonlyPtrVector<Block>& blocks, const Block& block)
{
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [&](const Block& candidate) { return &candidate == &block; });
    const auto result = static_cast<std::size_t>(found - blocks.begin());
    QN_CONTRACT(result < blocks.size(), "DOM/DOM_Utils", 860, "result < blocks.size()");
    return result;
}

boost::optional<std::size_t> findTableIndex(const ReadonlyPtrVector<Block>& blocks, const UUID& uuid)
{
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        if (dynamic_cast<const Table&>(blocks[index]).getUUID() == uuid) {
            return index;
        }
    }
    return boost::none;
}

bool hasNamedTable(const Document& document, const std::string& name)
{
    const auto blocks = document.getBlocks();
    return std::any_of(blocks.begin(), blocks.end(), [&](const Block& block) {
        const auto* const table = dynamic_cast<const Table*>(&block);
        return table != nullptr && table->getName() == name;
    });
}

std::shared_ptr<const Hyperlink> getFirstHyperlinkFromParagraph(const Paragraph& paragraph)
{
    const auto runs = paragraph.getRuns();
    return (runs.empty() ? paragraph.getParaMarkStyle() : runs.front().getStyle()).getHyperlink();
}

std::shared_ptr<const Hyperlink> getFirstHyperlinkFromBlock(const Block& block)
{
    return visit<std::shared_ptr<const Hyperlink>>(block, FirstHyperlinkVisitor());
}

std::shared_ptr<const Hyperlink> getFirstHyperlinkFromBlocks(const ReadonlyPtrVector<Block>& blocks)
{
    QN_CONTRACT(!blocks.empty(), "DOM/DOM_Utils", 896, "!blocks.empty()");
    return getFirstHyperlinkFromBlock(blocks.front());
}

const NumberedList* getListByName(const std::vector<NumberedList>& lists, NumberedListName name)
{
    const auto found = std::find_if(lists.begin(), lists.end(),
                                    [&](const NumberedList& list) { return list.getName() == name; });
    return found != lists.end() ? &*found : nullptr;
}

} // namespace QN::DOM
