#pragma once

#include <mutex>
#include <vector>

#include "DOM/Properties/DOM_SharedStyle.h"
#include "DOM/Properties/DOM_StyleSharingPolicy.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

/// The pool of the styles of one type: it holds each of several equal styles once. A pool only grows, and a style lives at
/// least as long as its pool.
///
/// Two equal styles from one pool are the same handle; handles from two pools say nothing about each other. Equality is
/// deep and that of numbers: a negative zero finds the style with zero, and a style with a NaN, which equals itself only
/// through one and the same pointer, is not found again once another with a NaN in the same place has come.
template <class T, StyleSharingPolicy Policy>
class DOM_API SharedStyleFactory {
public:
    SharedStyleFactory();
    /// The copy shares the styles that the source has by now, and has a mutex of its own.
    SharedStyleFactory(const SharedStyleFactory& other);
    SharedStyleFactory(SharedStyleFactory&& other) noexcept;
    SharedStyleFactory& operator=(const SharedStyleFactory& other);
    SharedStyleFactory& operator=(SharedStyleFactory&& other) noexcept;
    ~SharedStyleFactory();

    /// The one shared style that equals the given one. O(log n) deep comparisons; a style that is known costs no
    /// allocation. Safe from any thread, also while the pool is copied.
    SharedStylePtr<T> create(T style) const;

private:
    using Styles = std::vector<SharedStylePtr<T>>;

    Styles copyStyles() const;
    void replaceStyles(Styles styles) noexcept;

    mutable std::mutex _mutex;
    mutable Styles _styles; // ascending, with a NaN behind all numbers
};

} // namespace QN::DOM
