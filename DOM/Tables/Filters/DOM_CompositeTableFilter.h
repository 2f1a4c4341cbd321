#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "DOM/Tables/Filters/DOM_TableFilter.h"

namespace QN::DOM {

/// How a composite filter joins its filters. Any other number passes through unchanged.
enum class CompositeTableFilterType : std::int32_t { And = 0, Or = 1 };

/// Combines filters, other composite ones included. Copying it clones the filters; a null one stays null.
class DOM_API CompositeTableFilter final : public Reflectable<TableFilter> {
public:
    using Filters = std::vector<std::unique_ptr<TableFilter>>;

    CompositeTableFilter() = default;
    explicit CompositeTableFilter(CompositeTableFilterType type) : _type(type) {}
    ~CompositeTableFilter() override = default;
    QN_DEEP_COPY(CompositeTableFilter)

    CompositeTableFilterType getType() const { return _type; }
    void setType(CompositeTableFilterType type) { _type = type; }

    const Filters& getFilters() const { return _filters; }
    Filters& getFilters() { return _filters; }

    QN_VALUE(CompositeTableFilter)
    QN_CONCRETE(TableFilter)

private:
    CompositeTableFilterType _type{};
    Filters _filters;

    BOOST_DESCRIBE_CLASS(CompositeTableFilter, (TableFilter), (), (), (_type, _filters))
};

} // namespace QN::DOM
