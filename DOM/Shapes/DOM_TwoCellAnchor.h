#pragma once

#include "DOM/Shapes/DOM_TableOffset.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Stretches an object between two cells: it moves and grows with them. Nothing checks that `to` stands behind `from`.
class DOM_API TwoCellAnchor {
public:
    TwoCellAnchor() = default;
    TwoCellAnchor(const TableOffset& from, const TableOffset& to) : _from(from), _to(to) {}

    const TableOffset& getFrom() const { return _from; }
    void setFrom(const TableOffset& from) { _from = from; }

    const TableOffset& getTo() const { return _to; }
    void setTo(const TableOffset& to) { _to = to; }

    QN_ORDERED_VALUE(TwoCellAnchor)

private:
    TableOffset _from;
    TableOffset _to;

    BOOST_DESCRIBE_CLASS(TwoCellAnchor, (), (), (), (_from, _to))
};

} // namespace QN::DOM
