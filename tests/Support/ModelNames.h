#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// The names under which the classes of the model's families stand in a file, as files have them: they never change.

namespace QN::Test {

using Names = std::vector<std::string>;

inline const Names ChartNames{"QN::DOM::AreaChart",     "QN::DOM::Area3DChart", "QN::DOM::BarChart",
                              "QN::DOM::Bar3DChart",    "QN::DOM::LineChart",   "QN::DOM::Line3DChart",
                              "QN::DOM::PieChart",      "QN::DOM::Pie3DChart",  "QN::DOM::ScatterChart",
                              "QN::DOM::Scatter3DChart"};

inline const Names AxisNames{"QN::DOM::CategoryAxis", "QN::DOM::SeriesAxis", "QN::DOM::ValueAxis",
                             "QN::DOM::DateAxis"};

inline const Names SeriesNames{"QN::DOM::AreaSeries", "QN::DOM::BarSeries", "QN::DOM::LineSeries",
                               "QN::DOM::PieSeries", "QN::DOM::ScatterSeries"};

inline const Names BlockNames{"QN::DOM::Paragraph", "QN::DOM::Table", "QN::DOM::SectionTag", "QN::DOM::Shape",
                              "QN::DOM::FieldBlock"};

inline const Names GraphicalObjectNames{"QN::DOM::Picture", "QN::DOM::ChartSpace"};

inline const Names FillNames{"QN::DOM::NoFill",   "QN::DOM::SolidFill",   "QN::DOM::GradientFill",
                             "QN::DOM::BlipFill", "QN::DOM::PatternFill", "QN::DOM::ThemeFill"};

inline const Names LineNames{"QN::DOM::RegularLineProps", "QN::DOM::ThemeLineProps"};

inline const Names GeometryNames{"QN::DOM::PresetGeometry", "QN::DOM::CustomGeometry"};

inline const Names TableFilterNames{"QN::DOM::ValuesTableFilter", "QN::DOM::NullaryConditionTableFilter",
                                    "QN::DOM::UnaryConditionTableFilter", "QN::DOM::CompositeTableFilter"};

inline const Names RunNames{"QN::DOM::TextRun",    "QN::DOM::TabRun",      "QN::DOM::BreakRun",
                            "QN::DOM::DrawingRun", "QN::DOM::BookmarkRun", "QN::DOM::FieldRun",
                            "QN::DOM::AnchorRun"};

inline const Names ExprNames{"QN::DOM::FormulaSyntaxTree::String",
                             "QN::DOM::FormulaSyntaxTree::Number",
                             "QN::DOM::FormulaSyntaxTree::Label",
                             "QN::DOM::FormulaSyntaxTree::Bool",
                             "QN::DOM::FormulaSyntaxTree::Error",
                             "QN::DOM::FormulaSyntaxTree::Empty",
                             "QN::DOM::FormulaSyntaxTree::CellAddress",
                             "QN::DOM::FormulaSyntaxTree::CellRange",
                             "QN::DOM::FormulaSyntaxTree::FunctionCall",
                             "QN::DOM::FormulaSyntaxTree::Array",
                             "QN::DOM::FormulaSyntaxTree::ArgumentsList",
                             "QN::DOM::FormulaSyntaxTree::UnaryPlus",
                             "QN::DOM::FormulaSyntaxTree::UnaryMinus",
                             "QN::DOM::FormulaSyntaxTree::UnaryPercent",
                             "QN::DOM::FormulaSyntaxTree::Plus",
                             "QN::DOM::FormulaSyntaxTree::Minus",
                             "QN::DOM::FormulaSyntaxTree::Mul",
                             "QN::DOM::FormulaSyntaxTree::Div",
                             "QN::DOM::FormulaSyntaxTree::Pow",
                             "QN::DOM::FormulaSyntaxTree::Equal",
                             "QN::DOM::FormulaSyntaxTree::NotEqual",
                             "QN::DOM::FormulaSyntaxTree::Less",
                             "QN::DOM::FormulaSyntaxTree::LessOrEqual",
                             "QN::DOM::FormulaSyntaxTree::Greater",
                             "QN::DOM::FormulaSyntaxTree::GreaterOrEqual",
                             "QN::DOM::FormulaSyntaxTree::Concat",
                             "QN::DOM::FormulaSyntaxTree::Intersection",
                             "QN::DOM::FormulaSyntaxTree::Union"};

inline const Names PathCommandNames{"QN::DOM::DrawingCommands::MoveTo",
                                    "QN::DOM::DrawingCommands::LineTo",
                                    "QN::DOM::DrawingCommands::QuadCurveTo",
                                    "QN::DOM::DrawingCommands::CubicCurveTo",
                                    "QN::DOM::DrawingCommands::Arc",
                                    "QN::DOM::DrawingCommands::ArcTo",
                                    "QN::DOM::DrawingCommands::ArcByVectorCW",
                                    "QN::DOM::DrawingCommands::ArcToByVectorCW",
                                    "QN::DOM::DrawingCommands::ArcByVectorCC",
                                    "QN::DOM::DrawingCommands::ArcToByVectorCC",
                                    "QN::DOM::DrawingCommands::EllipticalQuadrantX",
                                    "QN::DOM::DrawingCommands::EllipticalQuadrantY",
                                    "QN::DOM::DrawingCommands::ArcRelative"};

inline const Names DrawingFormulaNames{"QN::DOM::DrawingFormulas::Value",
                                       "QN::DOM::DrawingFormulas::AdjustValueReference",
                                       "QN::DOM::DrawingFormulas::FormulaReference",
                                       "QN::DOM::DrawingFormulas::Constant",
                                       "QN::DOM::DrawingFormulas::UnaryFunction",
                                       "QN::DOM::DrawingFormulas::BinaryFunction",
                                       "QN::DOM::DrawingFormulas::IfFunction"};

/// All of them.
inline std::set<std::string> getModelNames()
{
    std::set<std::string> all;
    for (const Names* names : {&ChartNames, &AxisNames, &SeriesNames, &BlockNames, &GraphicalObjectNames,
                               &FillNames, &LineNames, &GeometryNames, &TableFilterNames, &RunNames,
                               &ExprNames, &PathCommandNames, &DrawingFormulaNames}) {
        all.insert(names->begin(), names->end());
    }
    return all;
}

} // namespace QN::Test
