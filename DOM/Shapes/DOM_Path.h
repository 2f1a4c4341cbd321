#pragma once

#include <memory>
#include <vector>

#include "DOM/Shapes/DOM_PathCommand.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM::DrawingCommands {

/// How a path is filled: not at all, with the shape's fill, or with a lighter or darker one. Any other number passes
/// through unchanged.
enum class PathFillMode : unsigned char {
    None = 0,
    Lighten = 1,
    LightenLess = 2,
    Normal = 3,
    Darken = 4,
    DarkenLess = 5,
};

/// One path of an outline: commands in drawing order, in a coordinate box of its own that is mapped onto the shape's
/// extent. Nothing is checked: a box may be empty or negative.
///
/// A null command can come from a file. It is copied, compared and saved as it stands; reading it through `getCommands()
/// const` fails the contract "plainPtr".
class DOM_API Path {
public:
    Path() = default;
    QN_DEEP_COPY(Path)

    long getMinX() const { return _minX; }
    void setMinX(long minX) { _minX = minX; }

    long getMinY() const { return _minY; }
    void setMinY(long minY) { _minY = minY; }

    long getWidth() const { return _width; }
    void setWidth(long width) { _width = width; }

    long getHeight() const { return _height; }
    void setHeight(long height) { _height = height; }

    ReadonlyPtrVector<PathCommand> getCommands() const { return _commands; }
    std::vector<std::unique_ptr<PathCommand>>& getCommands() { return _commands; }

    bool isClosed() const { return _isClosed; }
    void setClosed(bool closed) { _isClosed = closed; }

    bool isStroked() const { return _isStroked; }
    void setStroked(bool stroked) { _isStroked = stroked; }

    PathFillMode getFillMode() const { return _fillMode; }
    void setFillMode(PathFillMode fillMode) { _fillMode = fillMode; }

    QN_VALUE(Path)

private:
    long _minX = 0;
    long _minY = 0;
    long _width = 0;
    long _height = 0;
    std::vector<std::unique_ptr<PathCommand>> _commands;
    bool _isClosed = false;
    bool _isStroked = true;
    PathFillMode _fillMode = PathFillMode::Normal;

    BOOST_DESCRIBE_CLASS(Path, (), (), (),
                         (_minX, _minY, _width, _height, _commands, _isClosed, _isStroked, _fillMode))
};

} // namespace QN::DOM::DrawingCommands
