#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <vector>

#include "CollaborationUtils/Public/CU_IndexRange.h"
#include "CollaborationUtils/Public/CU_Indices.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Export.h"

namespace QN::CollaborationUtils {

/// The positions of a virtual sequence whose elements were deleted. The live elements stand in a vector elsewhere: this
/// numbers them and never touches them, and the caller keeps both in step. Positions past the last tombstone are live,
/// whether or not an element is there yet.
///
/// Equal sets of tombstones are equal whatever made them: in a file they are the ranges of `getRanges`, and a file may
/// state them in any order, also adjacent or overlapping.
///
/// Queries are logarithmic in the number of ranges, changes linear in it.
class DOM_API TombstonesStorage {
public:
    /// Total, since each live element has a position.
    IndexIncludingTombstones convertIndex(IndexExcludingTombstones index) const;
    /// None at a tombstone.
    boost::optional<IndexExcludingTombstones> convertIndex(IndexIncludingTombstones index) const;
    /// The number of live elements before the position: the place in the vector of an element that is put there.
    IndexExcludingTombstones getIndexToInsertTo(IndexIncludingTombstones index) const;
    std::uint64_t getTombstonesCount() const;
    /// The tombstones in ascending order, in as few ranges as there can be.
    std::vector<IndexRange<IndexIncludingTombstones>> getRanges() const;

    /// Opens a live position; this and later positions move up by one. At a tombstone it opens before it. A tombstone
    /// that would leave the range of 64 bits is forgotten.
    /// @return the place in the vector where the new element belongs.
    IndexExcludingTombstones insertElement(IndexIncludingTombstones index);
    /// Closes a position without leaving a tombstone; later positions move down by one. A tombstone is forgotten then,
    /// and the answer is not the place of an element but that of `getIndexToInsertTo`.
    /// @return the place in the vector of the element to erase.
    IndexExcludingTombstones removeElement(IndexIncludingTombstones index);
    /// Makes a tombstone of a live position. One that is a tombstone already fails the contract "opt"; the very last
    /// position of 64 bits fails one, too.
    /// @return the place in the vector of the element to erase.
    IndexExcludingTombstones replaceWithTombstone(IndexIncludingTombstones index);
    /// Makes a tombstone live again. A position that is live fails a contract.
    /// @return the place in the vector where the element belongs.
    IndexExcludingTombstones restoreElement(IndexIncludingTombstones index);
    /// Forgets all tombstones; the live elements keep their order and close up.
    void clear() { _gaps.clear(); }

    friend bool operator==(const TombstonesStorage&, const TombstonesStorage&) = default;
    QN_SERIALIZE(TombstonesStorage)

private:
    /// An unbroken range of tombstones. It is told by the number of live elements before it and the number of tombstones
    /// up to its end, both strictly ascending from gap to gap: each way of counting is then found by bisection, and
    /// ranges that come to touch have the same `live`.
    struct Gap {
        std::uint64_t live;
        std::uint64_t count;

        std::uint64_t getEnd() const { return live + count; }
        friend bool operator==(const Gap&, const Gap&) = default;
    };
    using Gaps = std::vector<Gap>;

    /// The first gap that ends behind a position: the one that holds it, or else the next.
    template <class AnyGaps>
    static auto findGap(AnyGaps& gaps, std::uint64_t position);
    std::uint64_t getCountBefore(Gaps::const_iterator gap) const;
    bool isInside(Gaps::const_iterator gap, std::uint64_t position) const;
    void makeRoomBehind(std::uint64_t position);

    Gaps _gaps;
};

} // namespace QN::CollaborationUtils
