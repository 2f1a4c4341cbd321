#include "Formulas.h"

#include <array>
#include <utility>
#include <vector>

namespace Demo {

using namespace QN::DOM::FormulaSyntaxTree;
using QN::CellIndex;
using QN::DOM::Table;

namespace {

constexpr std::array<std::pair<std::string_view, Function>, 5> Functions{{{"SUM", Function::Sum},
                                                                          {"AVERAGE", Function::Average},
                                                                          {"MIN", Function::Min},
                                                                          {"MAX", Function::Max},
                                                                          {"COUNT", Function::Count}}};

ColumnAxis getColumnAxis(const Table& table, const CellIndex& cell)
{
    return {table.getID(cell.getColumn()), false};
}

RowAxis getRowAxis(const Table& table, const CellIndex& cell)
{
    return {table.getID(cell.getRow()), false};
}

} // namespace

Function findFunction(std::string_view name)
{
    for (const auto& known : Functions) {
        if (known.first == name) {
            return known.second;
        }
    }
    return Function::Unknown;
}

ExprPtr makeReference(const Table& table, const CellIndex& cell)
{
    return std::make_unique<CellAddress>(std::string(), table.getUUID(),
                                         std::make_pair(getColumnAxis(table, cell), getRowAxis(table, cell)));
}

ExprPtr makeReference(const Table& table, const CellIndex& first, const CellIndex& last)
{
    return std::make_unique<CellRange>(
        std::string(), table.getUUID(), table.getUUID(),
        CellRange::Columns(getColumnAxis(table, first), getColumnAxis(table, last)),
        CellRange::Rows(getRowAxis(table, first), getRowAxis(table, last)));
}

ExprPtr makeCall(Function function, ExprPtr argument)
{
    std::vector<ExprPtr> arguments;
    arguments.push_back(std::move(argument));
    std::string name;
    for (const auto& known : Functions) {
        name = known.second == function ? known.first : name;
    }
    return std::make_unique<FunctionCall>(static_cast<FormulaFunctionType>(function), std::move(name),
                                          std::move(arguments));
}

} // namespace Demo
