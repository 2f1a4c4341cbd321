#pragma once

#include "CollaborationUtils/Public/CU_Indices.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Export.h"

namespace QN::CollaborationUtils {

/// A half-open range of positions. It is never empty: the contract "_begin < _end" holds from construction on, and a
/// file that breaks it stops the process, unlike any other bad file.
template <class Index>
class IndexRange {
public:
    /// The first position alone.
    IndexRange() : _end(1) {}

    IndexRange(Index begin, Index end) : _begin(begin), _end(end) { checkInvariant(); }

    Index getBegin() const { return _begin; }
    Index getEnd() const { return _end; }

    friend bool operator==(const IndexRange&, const IndexRange&) = default;
    QN_SERIALIZE(IndexRange)

private:
    void checkInvariant() const
    {
        QN_CONTRACT(_begin < _end, "CollaborationUtils/Public/CU_IndexRange", 77, "_begin < _end");
    }

    Index _begin{};
    Index _end{};

    BOOST_DESCRIBE_CLASS(IndexRange, (), (), (), (_begin, _end))
};

extern template class DOM_API IndexRange<IndexIncludingTombstones>;

} // namespace QN::CollaborationUtils
