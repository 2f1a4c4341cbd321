#pragma once

#include <boost/unordered/unordered_flat_map.hpp>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ContractSink.h"
#include "Utils/Public/SeededHash.h"

namespace QN::DOM {

/// The two-way mapping between the indices and the identifiers of the rows, or of the columns, of one table.
///
/// Identifiers 1 to `count` are predefined: each belongs to the row that stood at the position one below it in a fresh
/// table, and costs no storage until the rows around it change. A greater identifier is inserted and stored by itself.
/// The identifier 0 is never valid.
///
/// Invariants: runs of predefined identifiers and inserted items are sorted by index, the runs also by identifier; no
/// position stands in both; each inserted identifier is above `count` and known with its index.
class DOM_API RowColIDContainer {
public:
    /// A run of consecutive predefined identifiers, both ends inclusive, the first of which stands at `index`.
    struct IndexIDRange {
        std::uint64_t index = 0;
        std::uint64_t firstID = 0;
        std::uint64_t lastID = 0;

        friend bool operator==(const IndexIDRange&, const IndexIDRange&) = default;
        void serialize(cereal::JSONOutputArchive& archive) const;
        void serialize(cereal::JSONInputArchive& archive);
    };

    /// An inserted identifier and where it stands.
    struct IndexID {
        std::uint64_t index = 0;
        std::uint64_t id = 0;

        friend bool operator==(const IndexID&, const IndexID&) = default;
        BOOST_DESCRIBE_CLASS(IndexID, (), (index, id), (), ())
    };

    /// Only to be loaded into.
    RowColIDContainer() = default;
    explicit RowColIDContainer(std::uint64_t count);

    /// Forgets all changes: every position has its predefined identifier again.
    void reset();

    /// Logarithmic in the number of runs and inserted items. An index behind the last identifier, also one that removals
    /// have freed at the end of the axis, gives a number that is nobody's identifier and that `getIndex` does not find; one
    /// before the first run, where no inserted item stands, fails the contract "rangeIt != _predefinedIDs.begin()".
    std::uint64_t getID(std::uint64_t index) const;

    /// The index of an identifier, or `getPredefinedIDsCount()` when it is not live. Logarithmic in the number of runs
    /// for a predefined identifier, one hash look-up for an inserted one. Identifiers that insertions moved past the end
    /// of the axis still report where they would stand, and resolve again when the axis grows back.
    std::uint64_t getIndex(std::uint64_t id) const;

    /// False for predefined identifiers, live ones included.
    bool containsInsertedID(std::uint64_t id) const;

    /// Opens the position `index` for `id` and moves all later ones up. Linear in the number of runs and inserted items.
    /// A predefined identifier may only return to where its removal left a gap in the order of the identifiers; anywhere
    /// else it may no longer be found by `getIndex`.
    void insert(std::uint64_t index, std::uint64_t id);

    /// Forgets the identifier at `index` and moves all later ones down. Linear as `insert`. Runs are cut and never joined.
    void remove(std::uint64_t index);

    /// The count given at construction, which is also the "not found" of `getIndex`.
    std::uint64_t getPredefinedIDsCount() const { return _predefinedIDsCount; }

    const std::vector<IndexIDRange>& getPredefinedIDs() const { return _predefinedIDs; }
    const std::vector<IndexID>& getInsertedItems() const { return _insertedItems; }

    /// A broken invariant of the inserted items fails a contract.
    void validate() const;
    /// Reports each broken invariant instead.
    void validate(const ContractSink& sink) const;

    QN_VALUE(RowColIDContainer)

private:
    using Ranges = std::vector<IndexIDRange>;
    using Items = std::vector<IndexID>;

    Ranges::const_iterator findPredefinedIdLowerBound(std::uint64_t index) const;
    std::size_t findCoveringRange(std::uint64_t index) const;
    std::size_t findItemLowerBound(std::uint64_t index) const;

    void splitPredefinedWhenInsert(std::uint64_t index, std::uint64_t id);
    void splitPredefinedWhenRemove(std::uint64_t index);
    void shiftPredefinedIDs(std::size_t firstRange, std::uint64_t delta);
    void shiftItems(std::size_t firstItem, std::uint64_t delta);
    void shiftCachedIds(std::uint64_t index, std::uint64_t delta);

    Ranges _predefinedIDs;
    Items _insertedItems;
    boost::unordered_flat_map<std::uint64_t, std::uint64_t, SeededHash> _idToIndex;
    std::uint64_t _predefinedIDsCount = 0;

    BOOST_DESCRIBE_CLASS(RowColIDContainer, (), (), (),
                         (_predefinedIDs, _insertedItems, _idToIndex, _predefinedIDsCount))
};

} // namespace QN::DOM
