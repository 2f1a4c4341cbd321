#pragma once

#include <utility>

#include "CollaborationUtils/Public/CU_TombstonesStorage.h"
#include "Utils/Public/ClassScheme/Copy.h"
#include "Utils/Public/ClassScheme/Equality.h"

namespace QN::CollaborationUtils {

/// Live elements and the tombstones among them. Copies are deep; elements compare by value and then the tombstones do, so
/// that equal elements with other tombstones are unequal. Who changes the elements keeps the tombstones in step.
template <class Vector>
class CollectionWithTombstones {
public:
    CollectionWithTombstones() = default;
    explicit CollectionWithTombstones(Vector elements) : _elements(std::move(elements)) {}

    CollectionWithTombstones(const CollectionWithTombstones& other)
        : _elements(deepCopy(other._elements)), _tombstones(other._tombstones)
    {
    }
    CollectionWithTombstones(CollectionWithTombstones&&) noexcept = default;
    CollectionWithTombstones& operator=(const CollectionWithTombstones& other)
    {
        if (this != &other) {
            CollectionWithTombstones copy(other);
            *this = std::move(copy);
        }
        return *this;
    }
    CollectionWithTombstones& operator=(CollectionWithTombstones&&) noexcept = default;
    ~CollectionWithTombstones() = default;

    const Vector& getElements() const { return _elements; }
    Vector& getElements() { return _elements; }

    const TombstonesStorage& getTombstones() const { return _tombstones; }
    TombstonesStorage& getTombstones() { return _tombstones; }

    bool operator==(const CollectionWithTombstones& other) const { return areAllMembersEqual(*this, other); }

private:
    Vector _elements;
    TombstonesStorage _tombstones;

    BOOST_DESCRIBE_CLASS(CollectionWithTombstones, (), (), (), (_elements, _tombstones))
};

} // namespace QN::CollaborationUtils
