#pragma once

#include <boost/container/map.hpp>

#include <cstddef>
#include <iterator>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class HeaderFooterPair;
class Comment;
class Note;
class NamedTextStyle;
class NamedTableStyle;
class NamedShapeStyle;

/// Values with an identity, held under it and in its order. Walking gives the elements, and an iterator also their key.
///
/// The key is the `UUID` that an element had when it was inserted: it stays when the element's own is changed, and a file
/// may state another one for it. Elements stay where they are until they are removed. Look-up is logarithmic.
template <class T>
class DOM_API UUIDContainer {
    using Collection = boost::container::map<UUID, T>;

    template <class Element, class Base>
    class Iterator;

public:
    using value_type = T;
    using iterator = Iterator<T, typename Collection::iterator>;
    using const_iterator = Iterator<const T, typename Collection::const_iterator>;

    // Out of line, as all that works on whole containers: who holds one need not know the elements.

    UUIDContainer();
    UUIDContainer(const UUIDContainer& other);
    UUIDContainer(UUIDContainer&& other) noexcept;
    UUIDContainer& operator=(const UUIDContainer& other);
    UUIDContainer& operator=(UUIDContainer&& other) noexcept;
    ~UUIDContainer();

    bool empty() const { return _collection.empty(); }
    std::size_t size() const { return _collection.size(); }

    iterator begin() { return iterator(_collection.begin()); }
    iterator end() { return iterator(_collection.end()); }
    const_iterator begin() const { return const_iterator(_collection.begin()); }
    const_iterator end() const { return const_iterator(_collection.end()); }

    /// The element under a key; null when there is none.
    T* find(const UUID& uuid);
    const T* find(const UUID& uuid) const;

    /// Adds an element under its `UUID`. One that is there already fails the contract
    /// "_collection.find(uuid) == _collection.end()".
    T& insert(T element);
    /// Removes the element under a key.
    /// @return whether there was one.
    bool erase(const UUID& uuid);
    void clear();

    /// Compares the keys and the elements.
    QN_EQUALITY(UUIDContainer)
    /// A file with one key twice raises `cereal::Exception`.
    QN_SERIALIZE(UUIDContainer)

private:
    Collection _collection;

    BOOST_DESCRIBE_CLASS(UUIDContainer, (), (), (), (_collection))
};

template <class T>
template <class Element, class Base>
class UUIDContainer<T>::Iterator {
public:
    using iterator_category = std::bidirectional_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = Element*;
    using reference = Element&;

    Iterator() = default;
    explicit Iterator(Base base) : _base(base) {}

    const UUID& getKey() const { return _base->first; }

    reference operator*() const { return _base->second; }
    pointer operator->() const { return &_base->second; }

    Iterator& operator++()
    {
        ++_base;
        return *this;
    }
    Iterator& operator--()
    {
        --_base;
        return *this;
    }
    Iterator operator++(int) { return Iterator(_base++); }
    Iterator operator--(int) { return Iterator(_base--); }

    friend bool operator==(const Iterator& left, const Iterator& right) { return left._base == right._base; }

private:
    Base _base;
};

extern template class DOM_API UUIDContainer<HeaderFooterPair>;
extern template class DOM_API UUIDContainer<Comment>;
extern template class DOM_API UUIDContainer<Note>;
extern template class DOM_API UUIDContainer<NamedTextStyle>;
extern template class DOM_API UUIDContainer<NamedTableStyle>;
extern template class DOM_API UUIDContainer<NamedShapeStyle>;

} // namespace QN::DOM
