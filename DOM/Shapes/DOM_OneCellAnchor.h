#pragma once

#include "DOM/Shapes/DOM_TableOffset.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Size2D.h"

namespace QN::DOM {

/// Places an object of a fixed size at a cell: it moves with the cell and keeps its size.
class DOM_API OneCellAnchor {
public:
    OneCellAnchor() = default;
    OneCellAnchor(const TableOffset& from, Size2D<float> extent) : _from(from), _extent(extent) {}

    const TableOffset& getFrom() const { return _from; }
    void setFrom(const TableOffset& from) { _from = from; }

    const Size2D<float>& getExtent() const { return _extent; }
    void setExtent(Size2D<float> extent) { _extent = extent; }

    QN_ORDERED_VALUE(OneCellAnchor)

private:
    TableOffset _from;
    Size2D<float> _extent;

    BOOST_DESCRIBE_CLASS(OneCellAnchor, (), (), (), (_from, _extent))
};

} // namespace QN::DOM
