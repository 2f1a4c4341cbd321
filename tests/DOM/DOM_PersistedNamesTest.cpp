#include <gtest/gtest.h>

#include <set>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "DOM/DOM.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"

namespace QN::DOM::PersistedNamesTest {

/// The names and relations that files depend on.

namespace {

using namespace cereal::detail;
namespace Commands = DrawingCommands;
namespace Formulas = DrawingFormulas;
namespace Tree = FormulaSyntaxTree;

struct NamedType {
    const std::type_info* type;
    std::string name;
};

template <class T>
NamedType named(const std::string& name)
{
    return {&typeid(T), name};
}

template <int type>
using UnaryOp = Tree::UnaryOp<static_cast<Tree::UnaryOpType>(type)>;
template <int type>
using BinaryOp = Tree::BinaryOp<static_cast<Tree::BinaryOpType>(type)>;

template <int type>
using Linear = Commands::LinearCommand<static_cast<Commands::LinearCommandType>(type)>;
template <int type>
using Arc = Commands::ArcCommand<static_cast<Commands::LinearCommandType>(type)>;
template <int type, int direction>
using ArcByVector = Commands::ArcByVectorCommand<static_cast<Commands::LinearCommandType>(type),
                                                 static_cast<Commands::RotationDirection>(direction)>;
template <int type>
using Quadrant = Commands::EllipticalQuadrantCommand<static_cast<Commands::EllipticalQuadrantType>(type)>;

template <int type>
using Reference = Formulas::Reference<static_cast<Formulas::ReferenceType>(type)>;

std::vector<NamedType> makeModelTypes()
{
    const std::string prefix = "QN::DOM::";
    return {
        named<AreaChart>(prefix + "AreaChart"),
        named<Area3DChart>(prefix + "Area3DChart"),
        named<BarChart>(prefix + "BarChart"),
        named<Bar3DChart>(prefix + "Bar3DChart"),
        named<LineChart>(prefix + "LineChart"),
        named<Line3DChart>(prefix + "Line3DChart"),
        named<PieChart>(prefix + "PieChart"),
        named<Pie3DChart>(prefix + "Pie3DChart"),
        named<ScatterChart>(prefix + "ScatterChart"),
        named<Scatter3DChart>(prefix + "Scatter3DChart"),
        named<CategoryAxis>(prefix + "CategoryAxis"),
        named<SeriesAxis>(prefix + "SeriesAxis"),
        named<ValueAxis>(prefix + "ValueAxis"),
        named<DateAxis>(prefix + "DateAxis"),
        named<AreaSeries>(prefix + "AreaSeries"),
        named<BarSeries>(prefix + "BarSeries"),
        named<LineSeries>(prefix + "LineSeries"),
        named<PieSeries>(prefix + "PieSeries"),
        named<ScatterSeries>(prefix + "ScatterSeries"),
        named<Paragraph>(prefix + "Paragraph"),
        named<Table>(prefix + "Table"),
        named<SectionTag>(prefix + "SectionTag"),
        named<Shape>(prefix + "Shape"),
        named<FieldBlock>(prefix + "FieldBlock"),
        named<Picture>(prefix + "Picture"),
        named<ChartSpace>(prefix + "ChartSpace"),
        named<NoFill>(prefix + "NoFill"),
        named<SolidFill>(prefix + "SolidFill"),
        named<GradientFill>(prefix + "GradientFill"),
        named<BlipFill>(prefix + "BlipFill"),
        named<PatternFill>(prefix + "PatternFill"),
        named<ThemeFill>(prefix + "ThemeFill"),
        named<RegularLineProps>(prefix + "RegularLineProps"),
        named<ThemeLineProps>(prefix + "ThemeLineProps"),
        named<PresetGeometry>(prefix + "PresetGeometry"),
        named<CustomGeometry>(prefix + "CustomGeometry"),
        named<ValuesTableFilter>(prefix + "ValuesTableFilter"),
        named<NullaryConditionTableFilter>(prefix + "NullaryConditionTableFilter"),
        named<UnaryConditionTableFilter>(prefix + "UnaryConditionTableFilter"),
        named<CompositeTableFilter>(prefix + "CompositeTableFilter"),
        named<TextRun>(prefix + "TextRun"),
        named<TabRun>(prefix + "TabRun"),
        named<BreakRun>(prefix + "BreakRun"),
        named<DrawingRun>(prefix + "DrawingRun"),
        named<BookmarkRun>(prefix + "BookmarkRun"),
        named<FieldRun>(prefix + "FieldRun"),
        named<AnchorRun>(prefix + "AnchorRun"),
    };
}

std::vector<NamedType> makeFormulaTypes()
{
    const std::string prefix = "QN::DOM::FormulaSyntaxTree::";
    return {
        named<Tree::String>(prefix + "String"),
        named<Tree::Number>(prefix + "Number"),
        named<Tree::Label>(prefix + "Label"),
        named<Tree::Bool>(prefix + "Bool"),
        named<Tree::Error>(prefix + "Error"),
        named<Tree::Empty>(prefix + "Empty"),
        named<Tree::CellAddress>(prefix + "CellAddress"),
        named<Tree::CellRange>(prefix + "CellRange"),
        named<Tree::FunctionCall>(prefix + "FunctionCall"),
        named<Tree::Array>(prefix + "Array"),
        named<Tree::ArgumentsList>(prefix + "ArgumentsList"),
        named<UnaryOp<0>>(prefix + "UnaryPlus"),
        named<UnaryOp<1>>(prefix + "UnaryMinus"),
        named<UnaryOp<2>>(prefix + "UnaryPercent"),
        named<BinaryOp<0>>(prefix + "Plus"),
        named<BinaryOp<1>>(prefix + "Minus"),
        named<BinaryOp<2>>(prefix + "Mul"),
        named<BinaryOp<3>>(prefix + "Div"),
        named<BinaryOp<4>>(prefix + "Pow"),
        named<BinaryOp<5>>(prefix + "Equal"),
        named<BinaryOp<6>>(prefix + "NotEqual"),
        named<BinaryOp<7>>(prefix + "Less"),
        named<BinaryOp<8>>(prefix + "LessOrEqual"),
        named<BinaryOp<9>>(prefix + "Greater"),
        named<BinaryOp<10>>(prefix + "GreaterOrEqual"),
        named<BinaryOp<11>>(prefix + "Concat"),
        named<BinaryOp<12>>(prefix + "Intersection"),
        named<BinaryOp<13>>(prefix + "Union"),
    };
}

std::vector<NamedType> makeDrawingTypes()
{
    const std::string commands = "QN::DOM::DrawingCommands::";
    const std::string formulas = "QN::DOM::DrawingFormulas::";
    return {
        named<Linear<0>>(commands + "MoveTo"),
        named<Linear<1>>(commands + "LineTo"),
        named<Commands::QuadCurveTo>(commands + "QuadCurveTo"),
        named<Commands::CubicCurveTo>(commands + "CubicCurveTo"),
        named<Commands::ArcRelative>(commands + "ArcRelative"),
        named<Arc<0>>(commands + "Arc"),
        named<Arc<1>>(commands + "ArcTo"),
        named<ArcByVector<0, 0>>(commands + "ArcByVectorCW"),
        named<ArcByVector<1, 0>>(commands + "ArcToByVectorCW"),
        named<ArcByVector<0, 1>>(commands + "ArcByVectorCC"),
        named<ArcByVector<1, 1>>(commands + "ArcToByVectorCC"),
        named<Quadrant<0>>(commands + "EllipticalQuadrantX"),
        named<Quadrant<1>>(commands + "EllipticalQuadrantY"),
        named<Formulas::Value>(formulas + "Value"),
        named<Formulas::Constant>(formulas + "Constant"),
        named<Formulas::UnaryFunction>(formulas + "UnaryFunction"),
        named<Formulas::BinaryFunction>(formulas + "BinaryFunction"),
        named<Formulas::IfFunction>(formulas + "IfFunction"),
        named<Reference<0>>(formulas + "AdjustValueReference"),
        named<Reference<1>>(formulas + "FormulaReference"),
    };
}

std::vector<NamedType> makeAllTypes()
{
    std::vector<NamedType> types = makeModelTypes();
    for (const auto& more : {makeFormulaTypes(), makeDrawingTypes()}) {
        types.insert(types.end(), more.begin(), more.end());
    }
    return types;
}

template <class Base, class Derived>
void expectDirectRelation()
{
    EXPECT_EQ(PolymorphicCasters::lookup(typeid(Base), typeid(Derived), CastPurpose::Load).size(), 1U)
        << typeid(Base).name() << " " << typeid(Derived).name();
    EXPECT_THROW(PolymorphicCasters::lookup(typeid(Derived), typeid(Base), CastPurpose::Load),
                 cereal::Exception);
}

template <class Base, class... Derived>
void expectDirectRelations()
{
    (expectDirectRelation<Base, Derived>(), ...);
}

TEST(DOM_PersistedNames, EachTypeIsKnownByItsNameAndCanBeSavedAndLoaded)
{
    const auto& types = StaticObject<TypeNameMap>::getInstance().map;
    const auto& outputs = StaticObject<OutputBindingMap<cereal::JSONOutputArchive>>::getInstance().map;
    const auto& inputs = StaticObject<InputBindingMap<cereal::JSONInputArchive>>::getInstance().map;
    for (const auto& [type, name] : makeAllTypes()) {
        ASSERT_EQ(types.count(name), 1U) << name;
        EXPECT_EQ(types.at(name), *type) << name;
        ASSERT_EQ(outputs.count(*type), 1U) << name;
        EXPECT_STREQ(outputs.at(*type).name->getName(), name.c_str());
        ASSERT_EQ(inputs.count(*type), 1U) << name;
        EXPECT_EQ(*inputs.at(*type).type, *type) << name;
    }
}

TEST(DOM_PersistedNames, ThereAreNinetyFiveAndNoOthers)
{
    std::set<std::string> expected;
    for (const NamedType& named : makeAllTypes()) {
        expected.insert(named.name);
    }
    std::set<std::string> registered;
    for (const auto& [name, type] : StaticObject<TypeNameMap>::getInstance().map) {
        if (name.starts_with("QN::")) {
            registered.emplace(name);
        }
    }
    EXPECT_EQ(expected.size(), 95U);
    EXPECT_EQ(registered, expected);
}

TEST(DOM_PersistedNames, ClassesAreRelatedToTheirDirectBases)
{
    expectDirectRelations<Block, Paragraph, Table, SectionTag, Shape, FieldBlock>();
    expectDirectRelations<DOM::Run, TextRun, TabRun, BreakRun, DrawingRun, BookmarkRun, FieldRun,
                          AnchorRun>();
    expectDirectRelations<GraphicalObject, Picture, ChartSpace>();
    expectDirectRelations<UUIDable, Comment, Note, HeaderFooterPair, NumberedList, NamedShapeStyle,
                          NamedTableStyle, NamedTextStyle, PivotTable, FieldCache, ValueField, Table>();
    expectDirectRelations<Fill, NoFill, SolidFill, GradientFill, BlipFill, PatternFill, ThemeFill>();
    expectDirectRelations<LineProps, RegularLineProps, ThemeLineProps>();
    expectDirectRelations<Geometry, PresetGeometry, CustomGeometry>();
    expectDirectRelations<TableFilter, ByColumnTableFilter, CompositeTableFilter>();
    expectDirectRelations<ByColumnTableFilter, ValuesTableFilter, NullaryConditionTableFilter,
                          UnaryConditionTableFilter>();
}

TEST(DOM_PersistedNames, ClassesOfChartsAreRelatedToTheirDirectBases)
{
    expectDirectRelations<Chart, AreaChartCommon, BarChartCommon, LineChartCommon, PieChartCommon,
                          ScatterChartCommon>();
    expectDirectRelations<AreaChartCommon, AreaChart, Area3DChart>();
    expectDirectRelations<BarChartCommon, BarChart, Bar3DChart>();
    expectDirectRelations<LineChartCommon, LineChart, Line3DChart>();
    expectDirectRelations<PieChartCommon, PieChart, Pie3DChart>();
    expectDirectRelations<ScatterChartCommon, ScatterChart, Scatter3DChart>();
    expectDirectRelations<ChartAxis, CategoryAxis, SeriesAxis, ValueAxis, DateAxis>();
    expectDirectRelations<Series, AreaSeries, BarSeries, LineSeries, PieSeries, ScatterSeries>();
}

TEST(DOM_PersistedNames, DrawingsAreRelatedToTheirDirectBases)
{
    expectDirectRelations<Commands::PathCommand, Linear<0>, Linear<1>, Commands::QuadCurveTo,
                          Commands::CubicCurveTo, Commands::ArcRelative, Arc<0>, Arc<1>, ArcByVector<0, 0>,
                          ArcByVector<1, 0>, ArcByVector<0, 1>, ArcByVector<1, 1>, Quadrant<0>,
                          Quadrant<1>>();
    expectDirectRelations<Formulas::Expression, Formulas::Value, Formulas::Constant, Formulas::UnaryFunction,
                          Formulas::BinaryFunction, Formulas::IfFunction, Reference<0>, Reference<1>>();
}

template <int... types>
void expectOperators(std::integer_sequence<int, types...>)
{
    expectDirectRelations<Tree::BaseBinaryOp, BinaryOp<types>...>();
    expectDirectRelations<Tree::Expr, BinaryOp<types>...>();
}

TEST(DOM_PersistedNames, FormulasAreRelatedToTheirDirectBases)
{
    expectDirectRelations<Tree::Expr, Tree::BaseBinaryOp, Tree::BaseUnaryOp, Tree::BaseCompoundExpr,
                          Tree::BasePrimitiveType, Tree::BaseReferenceExpr>();
    expectDirectRelations<Tree::Expr, Tree::String, Tree::Number, Tree::Label, Tree::Bool, Tree::Error,
                          Tree::Empty, Tree::CellAddress, Tree::CellRange, Tree::FunctionCall, Tree::Array,
                          Tree::ArgumentsList, UnaryOp<0>, UnaryOp<1>, UnaryOp<2>>();
    expectDirectRelations<Tree::BaseUnaryOp, UnaryOp<0>, UnaryOp<1>, UnaryOp<2>>();
    expectOperators(std::make_integer_sequence<int, 14>());
}

} // namespace

} // namespace QN::DOM::PersistedNamesTest
