#include "Banner.h"

#include <memory>
#include <utility>

#include "SheetFormats.h"

namespace Demo {

namespace {

using namespace QN::DOM;
using namespace QN::DOM::DrawingCommands;
using namespace QN::DOM::DrawingFormulas;
using ExpressionPtr = std::unique_ptr<Expression>;

ExpressionPtr number(double value)
{
    return std::make_unique<Value>(value);
}

ExpressionPtr constant(ConstantType type)
{
    return std::make_unique<Constant>(type);
}

ExpressionPtr combine(BinaryFunctionType type, ExpressionPtr left, ExpressionPtr right)
{
    return std::make_unique<BinaryFunction>(type, std::move(left), std::move(right));
}

ExpressionPtr times(ExpressionPtr expression, double factor)
{
    return combine(BinaryFunctionType::Multiply, std::move(expression), number(factor));
}

/// Fills a geometry whose formulas depend on the size of the shape, and so on nothing that is known here.
class PennantBuilder {
public:
    std::unique_ptr<CustomGeometry> build()
    {
        _geometry->setType("pennant");
        // What a user could change, as shares of the height.
        auto& adjustValues = _geometry->getAdjustValues();
        const auto share = [](unsigned long value) {
            return combine(BinaryFunctionType::Multiply, constant(ConstantType::Height),
                           std::make_unique<AdjustValueReference>(value));
        };
        _tail = addFormula("tail", share(adjustValues.add("tail", 0.4)));
        _wave = addFormula("wave", share(adjustValues.add("wave", 0.12)));
        _middle = addFormula("middle", times(constant(ConstantType::Height), 0.5));

        addCloth();
        addLamp();
        return std::move(_geometry);
    }

private:
    unsigned long addFormula(std::string name, ExpressionPtr formula)
    {
        return _geometry->getFormulasMap().add(std::move(name), std::move(formula));
    }

    static ExpressionPtr formula(unsigned long index) { return std::make_unique<FormulaReference>(index); }
    static ExpressionPtr left(double share) { return times(constant(ConstantType::Width), share); }
    ExpressionPtr top(double waves) const { return times(formula(_wave), waves); }
    ExpressionPtr bottom(double waves) const
    {
        return combine(BinaryFunctionType::Minus, constant(ConstantType::Height), top(waves));
    }

    Path& addPath()
    {
        Path path;
        path.setWidth(4400);
        path.setHeight(560);
        path.setClosed(true);
        _geometry->getPaths().push_back(std::move(path));
        return _geometry->getPaths().back();
    }

    void addCloth()
    {
        auto& commands = addPath().getCommands();
        commands.push_back(std::make_unique<MoveTo>(left(0.0), top(1.0)));
        commands.push_back(
            std::make_unique<CubicCurveTo>(left(0.3), top(-1.0), left(0.6), top(3.0), left(1.0), top(1.0)));
        commands.push_back(std::make_unique<LineTo>(
            combine(BinaryFunctionType::Minus, constant(ConstantType::Width), formula(_tail)),
            formula(_middle)));
        commands.push_back(std::make_unique<LineTo>(left(1.0), bottom(1.0)));
        commands.push_back(std::make_unique<CubicCurveTo>(left(0.6), bottom(-1.0), left(0.3), bottom(3.0),
                                                          left(0.0), bottom(1.0)));
    }

    /// A disc: an arc of a whole turn.
    void addLamp()
    {
        Path& path = addPath();
        path.setFillMode(PathFillMode::Lighten);
        path.setStroked(false);
        const auto radius = [this] { return times(formula(_middle), 0.3); };
        path.getCommands().push_back(std::make_unique<MoveTo>(
            combine(BinaryFunctionType::Plus, formula(_middle), radius()), formula(_middle)));
        path.getCommands().push_back(
            std::make_unique<ArcRelative>(radius(), radius(), number(0.0), constant(ConstantType::FullTurn)));
    }

    std::unique_ptr<CustomGeometry> _geometry = std::make_unique<CustomGeometry>();
    unsigned long _tail = 0;
    unsigned long _wave = 0;
    unsigned long _middle = 0;
};

ShapeStyle makeStyle()
{
    auto line = std::make_unique<RegularLineProps>();
    line->setWidth(1.0F);
    line->setDashStyle(DashStyle::Solid);
    line->setColor(Color(ThemeColorId::Dark2));

    ShapeProps props;
    props.setAnchor(TextAnchor(AnchorWrapType::TopAndBottom));
    props.setExtent(QN::Size2D<float>(440.0F, 56.0F));
    props.setFill(makeSolidFill(Color(ThemeColorId::Accent1, {Shade(0.75)})));
    props.setLineProps(std::move(line));
    props.setShapeAreaHorizontalAlignment(ShapeAreaHorizontalAlignment::Center);
    props.setShapeAreaVerticalAlignment(ShapeAreaVerticalAlignment::Middle);

    ShapeStyle style;
    style.setShapeProps(std::make_shared<const ShapeProps>(std::move(props)));
    return style;
}

} // namespace

void insertBanner(Document& document, std::size_t position, const std::string& text)
{
    const SharedObjectFactory& factory = document.getSharedObjectFactory();
    auto run = std::make_unique<TextRun>(text);
    RunStyle runStyle;
    runStyle.setRunProps(makeRunProps(true, 13.0F, Color(ThemeColorId::Light1)));
    run->getSharedStyle() = factory.create(std::move(runStyle));
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns().push_back(std::move(run));

    auto shape = std::make_unique<Shape>();
    shape->setShapeType(ShapeType::Shape);
    shape->setGeometry(PennantBuilder().build());
    shape->getSharedStyle() = factory.create(makeStyle());
    shape->getBlocks().push_back(std::move(paragraph));

    auto& blocks = document.getBlocks();
    blocks.insert(blocks.begin() + static_cast<std::ptrdiff_t>(position), std::move(shape));
}

} // namespace Demo
