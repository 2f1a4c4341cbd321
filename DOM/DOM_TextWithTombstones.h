#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "CollaborationUtils/Public/CU_TombstonesStorage.h"
#include "DOM/DOM_Block.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

/// Rich text: blocks and the tombstones among them. It is the body of a document, a cell, a shape, a header or a label.
/// Who adds or removes blocks keeps the tombstones in step, which number places and hold nothing.
///
/// A null block can come from a file. It is copied, compared and saved as it stands; reading it through `getBlocks() const`
/// fails the contract "plainPtr".
class DOM_API TextWithTombstones {
public:
    TextWithTombstones() = default;
    explicit TextWithTombstones(std::vector<std::unique_ptr<Block>> blocks) : _blocks(std::move(blocks)) {}
    QN_DEEP_COPY(TextWithTombstones)
    ~TextWithTombstones() = default;

    ReadonlyPtrVector<Block> getBlocks() const { return _blocks; }
    std::vector<std::unique_ptr<Block>>& getBlocks() { return _blocks; }

    const CollaborationUtils::TombstonesStorage& getTombstones() const { return _tombstones; }
    CollaborationUtils::TombstonesStorage& getTombstones() { return _tombstones; }

    /// Equal blocks with other tombstones are unequal.
    QN_VALUE(TextWithTombstones)

private:
    std::vector<std::unique_ptr<Block>> _blocks;
    CollaborationUtils::TombstonesStorage _tombstones;

    BOOST_DESCRIBE_CLASS(TextWithTombstones, (), (), (), (_blocks, _tombstones))
};

} // namespace QN::DOM
