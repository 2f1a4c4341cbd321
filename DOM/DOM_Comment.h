#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/DOM_TrackChangesInfo.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

class Document;

/// A remark on a part of the text, which refers to it by `UUID`. A thread is a chain of comments. A well-formed one
/// holds paragraphs only.
class DOM_API Comment : public Reflectable<UUIDable> {
public:
    Comment() = default;
    explicit Comment(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}
    /// A copy has the identity of its source and shares no block with it.
    QN_DEEP_COPY(Comment)
    ~Comment() override = default;

    const TrackChangesInfo& getInfo() const { return _info; }
    void setInfo(TrackChangesInfo info) { _info = std::move(info); }

    ReadonlyPtrVector<Block> getBlocks() const { return _blocks; }
    std::vector<std::unique_ptr<Block>>& getBlocks() { return _blocks; }

    /// The next comment of the thread, nil at its end. Nothing keeps a chain from running in a circle.
    const UUID& getNextCommentUUID() const { return _nextCommentUUID; }
    void setNextCommentUUID(const UUID& uuid) { _nextCommentUUID = uuid; }

    bool isResolved() const { return _isResolved; }
    void setResolved(bool isResolved) { _isResolved = isResolved; }

    QN_VALUE(Comment)

private:
    TrackChangesInfo _info;
    std::vector<std::unique_ptr<Block>> _blocks;
    UUID _nextCommentUUID;
    bool _isResolved = false;

    BOOST_DESCRIBE_CLASS(Comment, (UUIDable), (), (), (_info, _blocks, _nextCommentUUID, _isResolved))
};

/// The comment of a document with that `UUID`; null when there is none.
DOM_API const Comment* getComment(const Document& document, const UUID& uuid);

} // namespace QN::DOM
