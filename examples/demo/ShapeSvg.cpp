#include "ShapeSvg.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "Css.h"
#include "Text.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using namespace QN::DOM::DrawingCommands;
using namespace QN::DOM::DrawingFormulas;

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// Evaluates the expressions of a geometry in the box of one of its paths; visited by class.
class FormulaEvaluator {
public:
    FormulaEvaluator(const CustomGeometry& geometry, const Path& path) : _geometry(geometry), _path(path) {}

    double evaluate(const Expression& expression)
    {
        // Formulas that need each other have no value.
        constexpr int MaxDepth = 200;
        if (_depth >= MaxDepth) {
            return NoNumber;
        }
        ++_depth;
        const auto value = QN::visit<double>(expression, *this);
        --_depth;
        return value;
    }

    double operator()(const DrawingFormulas::Value& value) const { return value.getValue(); }
    double operator()(const AdjustValueReference& reference) const
    {
        return _geometry.getAdjustValues().get(reference.getIndex()).value_or(NoNumber);
    }
    double operator()(const FormulaReference& reference)
    {
        const Expression* const formula = _geometry.getFormulasMap().get(reference.getIndex());
        return formula != nullptr ? evaluate(*formula) : NoNumber;
    }

    double operator()(const Constant& constant) const
    {
        const auto width = static_cast<double>(_path.getWidth());
        const auto height = static_cast<double>(_path.getHeight());
        switch (constant.getType()) {
        case ConstantType::Left:
            return static_cast<double>(_path.getMinX());
        case ConstantType::Top:
            return static_cast<double>(_path.getMinY());
        case ConstantType::Right:
            return static_cast<double>(_path.getMinX()) + width;
        case ConstantType::Bottom:
            return static_cast<double>(_path.getMinY()) + height;
        case ConstantType::Width:
            return width;
        case ConstantType::Height:
            return height;
        case ConstantType::ShortSide:
            return std::min(width, height);
        case ConstantType::LongSide:
            return std::max(width, height);
        default:
            // The others have a value of their own, or none.
            return constant.getValue();
        }
    }

    double operator()(const UnaryFunction& function)
    {
        const double operand = evaluate(*function.getOperand());
        switch (function.getType()) {
        case UnaryFunctionType::Negate:
            return -operand;
        case UnaryFunctionType::Abs:
            return std::abs(operand);
        case UnaryFunctionType::Sqrt:
            return std::sqrt(operand);
        case UnaryFunctionType::Sin:
            return std::sin(operand);
        case UnaryFunctionType::Cos:
            return std::cos(operand);
        case UnaryFunctionType::Tan:
            return std::tan(operand);
        case UnaryFunctionType::Atan:
            return std::atan(operand);
        }
        return NoNumber;
    }

    double operator()(const BinaryFunction& function)
    {
        const double left = evaluate(*function.getOperand1());
        const double right = evaluate(*function.getOperand2());
        switch (function.getType()) {
        case BinaryFunctionType::Plus:
            return left + right;
        case BinaryFunctionType::Minus:
            return left - right;
        case BinaryFunctionType::Multiply:
            return left * right;
        case BinaryFunctionType::Divide:
            return left / right;
        case BinaryFunctionType::Min:
            return std::min(left, right);
        case BinaryFunctionType::Max:
            return std::max(left, right);
        case BinaryFunctionType::Atan2:
            return std::atan2(left, right);
        }
        return NoNumber;
    }

    double operator()(const IfFunction& function)
    {
        const bool isPositive = evaluate(*function.getCondition()) > 0.0;
        return evaluate(isPositive ? *function.getThenExpression() : *function.getElseExpression());
    }

private:
    const CustomGeometry& _geometry;
    const Path& _path;
    int _depth = 0;
};

/// The commands of a path as the data of an SVG path; visited by class.
class PathWriter {
public:
    PathWriter(const CustomGeometry& geometry, const Path& path) : _evaluator(geometry, path)
    {
        for (const PathCommand& command : path.getCommands()) {
            QN::visit<void>(command, *this);
        }
        _data += path.isClosed() ? "Z" : "";
    }

    const std::string& getData() const { return _data; }

    void operator()(const MoveTo& command) { write("M", {command.getX(), command.getY()}); }
    void operator()(const LineTo& command) { write("L", {command.getX(), command.getY()}); }
    void operator()(const QuadCurveTo& command)
    {
        write("Q", {command.getControlX(), command.getControlY(), command.getX(), command.getY()});
    }
    void operator()(const CubicCurveTo& command)
    {
        write("C", {command.getControl1X(), command.getControl1Y(), command.getControl2X(),
                    command.getControl2Y(), command.getX(), command.getY()});
    }

    /// In two halves: SVG has no arc of a whole turn.
    void operator()(const ArcRelative& command)
    {
        constexpr double UnitsPerDegree = 60000.0;
        constexpr double Radian = std::numbers::pi / 180.0 / UnitsPerDegree;
        const double width = _evaluator.evaluate(*command.getWidthRadius());
        const double height = _evaluator.evaluate(*command.getHeightRadius());
        const double start = _evaluator.evaluate(*command.getStartAngle()) * Radian;
        const double swing = _evaluator.evaluate(*command.getSwingAngle()) * Radian;
        const double centerX = _x - width * std::cos(start);
        const double centerY = _y - height * std::sin(start);
        for (const double angle : {start + swing / 2.0, start + swing}) {
            _x = centerX + width * std::cos(angle);
            _y = centerY + height * std::sin(angle);
            _data += 'A' + toFixed(width, 1) + ' ' + toFixed(height, 1) +
                     (swing > 0 ? " 0 0 1 " : " 0 0 0 ") + toFixed(_x, 1) + ' ' + toFixed(_y, 1);
        }
    }

    // The other commands are not drawn here.

private:
    void write(const char* letter, std::initializer_list<const Expression*> coordinates)
    {
        _data += letter;
        for (const Expression* const coordinate : coordinates) {
            _x = _y;
            _y = _evaluator.evaluate(*coordinate);
            _data += toFixed(_y, 1) + ' ';
        }
    }

    FormulaEvaluator _evaluator;
    std::string _data;
    /// The pen.
    double _x = 0.0;
    double _y = 0.0;
};

/// The shape's fill as a path takes it: as it is, lighter, darker, or not at all.
std::string getFill(const Fill* fill, PathFillMode mode, const Document& document)
{
    const auto* const solid = dynamic_cast<const SolidFill*>(fill);
    if (solid == nullptr || !solid->getColor() || mode == PathFillMode::None) {
        return "none";
    }
    Color color = *solid->getColor();
    ColorTransforms transforms = color.getTransforms();
    constexpr double Much = 0.4;
    constexpr double Little = 0.7;
    if (mode == PathFillMode::Lighten || mode == PathFillMode::LightenLess) {
        transforms.emplace_back(Tint(mode == PathFillMode::Lighten ? Much : Little));
    } else if (mode == PathFillMode::Darken || mode == PathFillMode::DarkenLess) {
        transforms.emplace_back(Shade(mode == PathFillMode::Darken ? Much : Little));
    }
    color.setTransforms(std::move(transforms));
    return toCss(color, document);
}

} // namespace

std::string drawShape(const Shape& shape, const Document& document)
{
    const auto* const geometry = dynamic_cast<const CustomGeometry*>(shape.getGeometry());
    const auto& props = shape.getStyle().getShapeProps();
    if (geometry == nullptr || !props || !props->getExtent()) {
        return {};
    }
    const auto* const line = dynamic_cast<const RegularLineProps*>(props->getLineProps());
    const std::string width = toFixed(props->getExtent()->getWidth(), 1);
    const std::string height = toFixed(props->getExtent()->getHeight(), 1);
    std::string svg = "<svg width=\"" + width + "pt\" height=\"" + height + "pt\">\n";
    for (const Path& path : geometry->getPaths()) {
        // Each path has a box of its own, which is mapped to all of the shape.
        svg += "<svg width=\"100%\" height=\"100%\" overflow=\"visible\" preserveAspectRatio=\"none\" "
               "viewBox=\"" +
               std::to_string(path.getMinX()) + ' ' + std::to_string(path.getMinY()) + ' ' +
               std::to_string(path.getWidth()) + ' ' + std::to_string(path.getHeight()) + "\"><path d=\"" +
               PathWriter(*geometry, path).getData() + "\" fill=\"" +
               getFill(props->getFill(), path.getFillMode(), document) + '"';
        if (path.isStroked() && line != nullptr && line->getColor()) {
            svg += " vector-effect=\"non-scaling-stroke\" stroke=\"" + toCss(*line->getColor(), document) +
                   "\" stroke-width=\"" + toFixed(line->getWidth().value_or(1.0F), 2) + "pt\"";
        }
        svg += "/></svg>\n";
    }
    return svg + "</svg>";
}

} // namespace Demo
