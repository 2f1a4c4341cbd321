#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <vector>

#include "DOM/DOM_Block.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

class Document;

/// A note that stands beside a cell in a box of its own. A well-formed one holds paragraphs only.
class DOM_API Note : public Reflectable<UUIDable> {
public:
    Note() = default;
    explicit Note(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}
    /// A copy has the identity of its source and shares no block with it.
    QN_DEEP_COPY(Note)
    ~Note() override = default;

    ReadonlyPtrVector<Block> getBlocks() const { return _blocks; }
    std::vector<std::unique_ptr<Block>>& getBlocks() { return _blocks; }

    /// The size of the box.
    const boost::optional<Size2D<float>>& getExtent() const { return _extent; }
    void setExtent(boost::optional<Size2D<float>> extent) { _extent = extent; }

    bool isAlwaysVisible() const { return _alwaysVisible; }
    void setAlwaysVisible(bool alwaysVisible) { _alwaysVisible = alwaysVisible; }

    QN_VALUE(Note)

private:
    std::vector<std::unique_ptr<Block>> _blocks;
    boost::optional<Size2D<float>> _extent;
    bool _alwaysVisible = false;

    BOOST_DESCRIBE_CLASS(Note, (UUIDable), (), (), (_blocks, _extent, _alwaysVisible))
};

/// The note of a document with that `UUID`; null when there is none.
DOM_API const Note* getNote(const Document& document, const UUID& uuid);

} // namespace QN::DOM
