#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <type_traits>
#include <vector>

#include "Utils/Public/Assert.h"
#include "Utils/Public/Ptr/PtrUtils.h"

namespace QN {

namespace ReadonlyFixedVectorDetails {

/// Turns an owning pointer into a const reference to what it owns. A null element fails the contract "plainPtr".
struct DerefAndMakeConstFunctor {
    template <class Ptr>
    const typename Ptr::element_type& operator()(const Ptr& ptr) const
    {
        const typename Ptr::element_type* const pointee = ptr.get();
        return derefRequired(pointee);
    }
};

} // namespace ReadonlyFixedVectorDetails

/// A read-only view of a vector through a functor on its elements. It owns nothing, and a change of the vector's
/// size invalidates it.
template <class Vector, class Functor>
class ReadonlyVector {
    using Items = typename Vector::const_iterator;

public:
    class Iterator;
    using const_iterator = Iterator;
    using iterator = Iterator;
    using reference = std::invoke_result_t<const Functor&, typename Vector::const_reference>;
    using value_type = std::remove_cvref_t<reference>;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;

    ReadonlyVector(const Vector& items) : _items(items) {}
    ReadonlyVector(const Vector&& items) = delete;

    size_type size() const { return _items.get().size(); }
    bool empty() const { return _items.get().empty(); }

    /// An index past the end fails the contract "index < size()".
    reference operator[](size_type index) const
    {
        checkIndex(index);
        return Functor{}(_items.get()[index]);
    }

    /// `front` and `back` of an empty vector fail the contract "!_items.get().empty()".
    reference front() const
    {
        checkNotEmpty();
        return Functor{}(_items.get().front());
    }

    reference back() const
    {
        checkNotEmpty();
        return Functor{}(_items.get().back());
    }

    /// What an owning element points to, null for a null one: for who must look before reading. An index past the end fails
    /// as in `operator[]`.
    auto getPointer(size_type index) const -> std::add_pointer_t<reference>
    requires requires(const Vector& items) { items[index].get(); }
    {
        checkIndex(index);
        return _items.get()[index].get();
    }

    Iterator begin() const { return Iterator(_items.get().begin()); }
    Iterator end() const { return Iterator(_items.get().end()); }

private:
    void checkIndex([[maybe_unused]] size_type index) const
    {
        QN_CONTRACT(index < size(), "Utils/Public/ReadonlyVector", 449, "index < size()");
    }

    void checkNotEmpty() const
    {
        QN_CONTRACT(!_items.get().empty(), "Utils/Public/ReadonlyVector", 547, "!_items.get().empty()");
    }

    std::reference_wrapper<const Vector> _items;
};

template <class Vector, class Functor>
class ReadonlyVector<Vector, Functor>::Iterator {
public:
    using iterator_category = std::random_access_iterator_tag;
    using reference = typename ReadonlyVector::reference;
    using value_type = typename ReadonlyVector::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = std::add_pointer_t<reference>;

    Iterator() = default;
    explicit Iterator(Items item) : _item(item) {}

    reference operator*() const { return Functor{}(*_item); }
    pointer operator->() const requires std::is_reference_v<reference> { return std::addressof(**this); }
    reference operator[](difference_type distance) const { return Functor{}(_item[distance]); }

    Iterator& operator++()
    {
        ++_item;
        return *this;
    }
    Iterator& operator--()
    {
        --_item;
        return *this;
    }
    Iterator operator++(int) { return Iterator(_item++); }
    Iterator operator--(int) { return Iterator(_item--); }

    Iterator& operator+=(difference_type distance)
    {
        _item += distance;
        return *this;
    }
    Iterator& operator-=(difference_type distance)
    {
        _item -= distance;
        return *this;
    }

    friend Iterator operator+(Iterator left, difference_type right) { return left += right; }
    friend Iterator operator+(difference_type left, Iterator right) { return right += left; }
    friend Iterator operator-(Iterator left, difference_type right) { return left -= right; }
    friend difference_type operator-(const Iterator& left, const Iterator& right)
    {
        return left._item - right._item;
    }

    friend bool operator==(const Iterator& left, const Iterator& right) { return left._item == right._item; }
    friend std::strong_ordering operator<=>(const Iterator& left, const Iterator& right)
    {
        return left - right <=> difference_type{0};
    }

private:
    Items _item{};
};

/// A view of owned objects, through which they can be neither changed nor taken.
template <class T>
using ReadonlyPtrVector =
    ReadonlyVector<std::vector<std::unique_ptr<T>>, ReadonlyFixedVectorDetails::DerefAndMakeConstFunctor>;

} // namespace QN
