#pragma once

#include <utility>

#include "DOM/Properties/DOM_SharedStyle.h"

namespace QN::DOM::SetToSharedStyleDetails {

template <class T>
void setAll(T& /*style*/)
{
}

template <class T, class Argument, class Value, class... Rest>
void setAll(T& style, void (T::*setter)(Argument), Value&& value, Rest&&... rest)
{
    (style.*setter)(std::forward<Value>(value));
    setAll(style, std::forward<Rest>(rest)...);
}

/// Changes members of a shared style: gives `style` the shared style that equals its own but for the values told, which
/// come as pairs of a setter of `T` and what it is to set. Null counts as the empty style. Other handles to the former
/// style keep it.
template <class Factory, class T, class... SettersAndValues>
void setToSharedStyleVariadicImpl(const Factory& factory, boost::intrusive_ptr<const SharedStyle<T>>& style,
                                  SettersAndValues&&... settersAndValues)
{
    T changed = derefSharedStyle(style);
    setAll(changed, std::forward<SettersAndValues>(settersAndValues)...);
    style = factory.create(std::move(changed));
}

} // namespace QN::DOM::SetToSharedStyleDetails
