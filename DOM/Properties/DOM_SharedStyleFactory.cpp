#include "DOM/Properties/DOM_SharedStyleFactory.h"

#include <algorithm>
#include <utility>

#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_NumberingLevelStyle.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_RowColumnStyle.h"
#include "DOM/Properties/DOM_RunStyle.h"
#include "DOM/Properties/DOM_ShapeStyle.h"
#include "DOM/Properties/DOM_TableStyle.h"

namespace QN::DOM {

template <class T, StyleSharingPolicy Policy>
SharedStyleFactory<T, Policy>::SharedStyleFactory() = default;

template <class T, StyleSharingPolicy Policy>
SharedStyleFactory<T, Policy>::SharedStyleFactory(const SharedStyleFactory& other)
    : _styles(other.copyStyles())
{
}

template <class T, StyleSharingPolicy Policy>
SharedStyleFactory<T, Policy>::SharedStyleFactory(SharedStyleFactory&& other) noexcept
    : _styles(std::move(other._styles))
{
}

template <class T, StyleSharingPolicy Policy>
SharedStyleFactory<T, Policy>& SharedStyleFactory<T, Policy>::operator=(const SharedStyleFactory& other)
{
    // One mutex after the other: no order between two pools, and none is locked twice when both are one.
    replaceStyles(other.copyStyles());
    return *this;
}

template <class T, StyleSharingPolicy Policy>
SharedStyleFactory<T, Policy>& SharedStyleFactory<T, Policy>::operator=(SharedStyleFactory&& other) noexcept
{
    replaceStyles(std::move(other._styles));
    return *this;
}

template <class T, StyleSharingPolicy Policy>
SharedStyleFactory<T, Policy>::~SharedStyleFactory() = default;

template <class T, StyleSharingPolicy Policy>
SharedStylePtr<T> SharedStyleFactory<T, Policy>::create(T style) const
{
    if constexpr (Policy == StyleSharingPolicy::EmptyIsNull) {
        if (style.isEmpty()) {
            return nullptr;
        }
    }
    const std::lock_guard lock(_mutex);
    const auto found = std::partition_point(_styles.begin(), _styles.end(), [&](const auto& known) {
        return known->get().compare(style, NanOrder::Last) < 0;
    });
    if (found != _styles.end() && (*found)->get() == style) {
        return *found;
    }
    SharedStylePtr<T> created(new SharedStyle<T>(std::move(style), SharedStyleFactoryPrivateAccessTag()));
    _styles.insert(found, created);
    return created;
}

template <class T, StyleSharingPolicy Policy>
typename SharedStyleFactory<T, Policy>::Styles SharedStyleFactory<T, Policy>::copyStyles() const
{
    const std::lock_guard lock(_mutex);
    return _styles;
}

template <class T, StyleSharingPolicy Policy>
void SharedStyleFactory<T, Policy>::replaceStyles(Styles styles) noexcept
{
    const std::lock_guard lock(_mutex);
    _styles.swap(styles); // the former ones go after the mutex is free again
}

template class SharedStyleFactory<CellStyle, StyleSharingPolicy::EmptyIsShared>;
template class SharedStyleFactory<ColumnStyle, StyleSharingPolicy::EmptyIsNull>;
template class SharedStyleFactory<RowStyle, StyleSharingPolicy::EmptyIsNull>;
template class SharedStyleFactory<ParagraphStyle, StyleSharingPolicy::EmptyIsNull>;
template class SharedStyleFactory<RunStyle, StyleSharingPolicy::EmptyIsNull>;
template class SharedStyleFactory<ShapeStyle, StyleSharingPolicy::EmptyIsNull>;
template class SharedStyleFactory<TableStyle, StyleSharingPolicy::EmptyIsNull>;
template class SharedStyleFactory<NumberingLevelStyle, StyleSharingPolicy::EmptyIsNull>;

} // namespace QN::DOM
