#pragma once

#include <boost/variant/variant.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/DOM_TableOfContentsInfo.h"
#include "DOM/Properties/DOM_Hyperlink.h"
#include "DOM/Tables/DOM_ArrayFormulaShift.h"
#include "DOM/Tables/DOM_BlockValue.h"
#include "DOM/Tables/DOM_Formula.h"
#include "DOM/Tables/DOM_RareValue.h"

namespace QN::DOM {

/// A computed or typed value in the place of text: what a cell of a sheet holds, or a table of contents. A cell with a
/// value has exactly one. A sheet has a million of them: what a plain number does not need stands apart.
class DOM_API FieldBlock final : public Reflectable<Block> {
public:
    using FieldInfo = boost::variant<Formula, ArrayFormulaShift, BlockValue<FloatNumber>,
                                     BlockValue<FormulaErrorType>, BlockValue<bool>, TableOfContentsInfo>;

    /// An empty formula.
    FieldBlock() = default;
    explicit FieldBlock(FieldInfo info) : _fieldInfo(std::move(info)) {}
    /// Formulas are copied with their trees, the hyperlink is shared. See `FormulaSyntaxTree::BaseCompoundExpr` for trees
    /// that cannot be copied.
    QN_DEEP_COPY(FieldBlock)
    ~FieldBlock() override = default;

    const FieldInfo& getFieldInfo() const { return _fieldInfo; }
    FieldInfo& getFieldInfo() { return _fieldInfo; }

    /// The link on the whole block; null for none.
    const std::shared_ptr<const Hyperlink>& getHyperlink() const { return _hyperlink; }
    void setHyperlink(std::shared_ptr<const Hyperlink> hyperlink) { _hyperlink = std::move(hyperlink); }

    /// What the const form gives is valid until the next change of the list, by whichever way. The non-const form makes
    /// the list's storage even if it stays empty.
    const std::vector<UUID>& getCommentUUIDs() const { return _commentUUIDs.get(); }
    std::vector<UUID>& getCommentUUIDs() { return _commentUUIDs.edit(); }

    /// The hyperlinks compare by value.
    QN_VALUE(FieldBlock)
    QN_CONCRETE(Block)

private:
    FieldInfo _fieldInfo;
    std::shared_ptr<const Hyperlink> _hyperlink;
    RareValue<std::vector<UUID>> _commentUUIDs;

    BOOST_DESCRIBE_CLASS(FieldBlock, (Block), (), (), (_fieldInfo, _hyperlink, _commentUUIDs))
};

} // namespace QN::DOM
