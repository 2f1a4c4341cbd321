#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class LineProps;

/// The lines around and across a cell, or around and between the cells of a group. Null says nothing about that line.
class DOM_API BordersProps {
public:
    using Line = std::shared_ptr<const LineProps>;

    const Line& getBottom() const { return _bottom; }
    void setBottom(Line line) { _bottom = std::move(line); }

    const Line& getLeft() const { return _left; }
    void setLeft(Line line) { _left = std::move(line); }

    const Line& getRight() const { return _right; }
    void setRight(Line line) { _right = std::move(line); }

    const Line& getTop() const { return _top; }
    void setTop(Line line) { _top = std::move(line); }

    /// From the upper left to the lower right corner.
    const Line& getDiagonalDown() const { return _diagonalDown; }
    void setDiagonalDown(Line line) { _diagonalDown = std::move(line); }

    /// From the lower left to the upper right corner.
    const Line& getDiagonalUp() const { return _diagonalUp; }
    void setDiagonalUp(Line line) { _diagonalUp = std::move(line); }

    /// Between the columns of a group of cells.
    const Line& getVertical() const { return _vertical; }
    void setVertical(Line line) { _vertical = std::move(line); }

    /// Between the rows of a group of cells.
    const Line& getHorizontal() const { return _horizontal; }
    void setHorizontal(Line line) { _horizontal = std::move(line); }

    QN_ORDERED_VALUE(BordersProps)

private:
    Line _bottom;
    Line _left;
    Line _right;
    Line _top;
    Line _diagonalDown;
    Line _diagonalUp;
    Line _vertical;
    Line _horizontal;

    BOOST_DESCRIBE_CLASS(BordersProps, (), (), (),
                         (_bottom, _left, _right, _top, _diagonalDown, _diagonalUp, _vertical, _horizontal))
};

/// Two lines that differ end the process in `intersect`.
QN_DECLARE_ALGEBRA(BordersProps)

} // namespace QN::DOM
