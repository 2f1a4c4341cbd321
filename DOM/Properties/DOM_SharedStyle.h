#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <atomic>
#include <cstdint>
#include <utility>

#include "DOM/Properties/DOM_StyleSharingPolicy.h"
#include "Utils/Public/ClassScheme/Declare.h"

/// Anonymous styles are held once for all nodes that have them: through a counted handle to an immutable holder, of which
/// null stands for the empty style.

namespace QN::DOM {

template <class T, StyleSharingPolicy Policy>
class SharedStyleFactory;

/// Lets only the factories make holders of a style.
class SharedStyleFactoryPrivateAccessTag {
    template <class T, StyleSharingPolicy Policy>
    friend class SharedStyleFactory;

    SharedStyleFactoryPrivateAccessTag() = default;
};

/// An immutable style with an atomic count of its handles. The last handle to go, in whatever thread, destroys it.
/// Equality and order are those of the style.
template <class T>
class DOM_API SharedStyle {
public:
    SharedStyle() = default;
    SharedStyle(T style, SharedStyleFactoryPrivateAccessTag /*tag*/) : _style(std::move(style)) {}
    SharedStyle(const SharedStyle&) = delete;
    SharedStyle& operator=(const SharedStyle&) = delete;

    const T& get() const { return _style; }

    /// The style that null stands for: one empty style for the whole process.
    static const T& getEmpty();

    bool operator==(const SharedStyle& other) const { return _style == other._style; }
    std::partial_ordering compare(const SharedStyle& other, NanOrder nanOrder) const
    {
        return _style.compare(other._style, nanOrder);
    }

    QN_SERIALIZE(SharedStyle)

    friend void intrusive_ptr_add_ref(const SharedStyle* style)
    {
        style->_count.fetch_add(1, std::memory_order_relaxed);
    }

    friend void intrusive_ptr_release(const SharedStyle* style)
    {
        if (style->_count.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            destroy(style);
        }
    }

private:
    static void destroy(const SharedStyle* style);

    mutable std::atomic<std::uint32_t> _count{0};
    T _style{};

    BOOST_DESCRIBE_CLASS(SharedStyle, (), (), (), (_style))
};

/// A handle to a shared style, in one pointer. Two equal styles from one factory are the same handle.
template <class T>
using SharedStylePtr = boost::intrusive_ptr<const SharedStyle<T>>;

/// The style of a handle, the empty style for null. Valid as long as the handle holds the style; for ever for null.
template <class T>
const T& derefSharedStyle(const boost::intrusive_ptr<const SharedStyle<T>>& style)
{
    return style ? style->get() : SharedStyle<T>::getEmpty();
}

/// Whether a handle stands for a style that says nothing: a null one does, and so does one that holds an empty style,
/// although the two handles are unequal.
template <class T>
bool isEmptyStyle(const boost::intrusive_ptr<const SharedStyle<T>>& style)
{
    return !style || style->get().isEmpty();
}

} // namespace QN::DOM
