#pragma once

#include <boost/optional/optional.hpp>
#include <boost/unordered/unordered_map.hpp>

#include <cstdint>

#include "CollaborationUtils/Public/CU_TombstonesStorage.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/SeededHash.h"

namespace QN::DOM {

/// The tombstones of the rows, or of the columns, of one table, which remember the identifiers of what was removed.
class DOM_API TombstonesWithIDsStorage {
public:
    using IndexIncludingTombstones = CollaborationUtils::IndexIncludingTombstones;
    using IndexExcludingTombstones = CollaborationUtils::IndexExcludingTombstones;

    /// Each change answers the live index as the same call on `TombstonesStorage` does, and keeps its contracts. Linear in
    /// the number of remembered identifiers. An identifier is remembered for one position, the last it was given.
    IndexExcludingTombstones insertElement(IndexIncludingTombstones index);
    IndexExcludingTombstones removeElement(IndexIncludingTombstones index);
    IndexExcludingTombstones replaceWithTombstone(IndexIncludingTombstones index, std::uint64_t id);
    IndexExcludingTombstones restoreElement(IndexIncludingTombstones index);

    /// The live index at which a removed row or column would stand; nothing for an identifier that is not remembered.
    boost::optional<IndexExcludingTombstones> getIndexByID(std::uint64_t id) const;

    /// The identifier that is remembered for a tombstone. Linear.
    boost::optional<std::uint64_t> getIDByIndex(IndexIncludingTombstones index) const;

    std::uint64_t getTombstonesCount() const { return _tombstones.getTombstonesCount(); }
    IndexIncludingTombstones convertIndex(IndexExcludingTombstones index) const
    {
        return _tombstones.convertIndex(index);
    }
    boost::optional<IndexExcludingTombstones> convertIndex(IndexIncludingTombstones index) const
    {
        return _tombstones.convertIndex(index);
    }
    IndexExcludingTombstones getIndexToInsertTo(IndexIncludingTombstones index) const
    {
        return _tombstones.getIndexToInsertTo(index);
    }

    /// Forgets the tombstones and their identifiers.
    void clear();

    QN_VALUE(TombstonesWithIDsStorage)

private:
    CollaborationUtils::TombstonesStorage _tombstones;
    boost::unordered_map<std::uint64_t, IndexIncludingTombstones, SeededHash> _idToIndexMap;

    BOOST_DESCRIBE_CLASS(TombstonesWithIDsStorage, (), (), (), (_tombstones, _idToIndexMap))
};

} // namespace QN::DOM
