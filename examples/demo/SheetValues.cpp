#include "SheetValues.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Formulas.h"

namespace Demo {

namespace {

using namespace QN::DOM::FormulaSyntaxTree;
using QN::ColumnIndex;
using QN::RowIndex;
using QN::DOM::Cell;
using QN::DOM::Table;

/// A number, or what stands in its way. A cell of nothing counts as 0, a boolean as 0 or 1.
Value toNumber(Value value)
{
    if (std::holds_alternative<std::monostate>(value)) {
        return 0.0;
    }
    if (const bool* const boolean = std::get_if<bool>(&value)) {
        return *boolean ? 1.0 : 0.0;
    }
    return std::holds_alternative<std::string>(value) ? FormulaError{"#VALUE!"} : value;
}

Value toFinite(double number)
{
    return std::isfinite(number) ? Value(number) : Value(FormulaError{"#NUM!"});
}

/// Evaluates a node; visited by class.
class Evaluator {
public:
    explicit Evaluator(SheetValues& values) : _values(values), _table(values.getTable()) {}

    Value operator()(const String& text) const { return text.getValue(); }
    Value operator()(const Number& number) const { return number.getValue(); }
    Value operator()(const Bool& boolean) const { return boolean.getValue(); }
    Value operator()(const Empty&) const { return {}; }

    /// The cell itself: unlike the end of a range, a removed row has no neighbour that would do instead.
    Value operator()(const CellAddress& address) const
    {
        const auto row = boost::apply_visitor([this](const auto& place) { return this->find(place); },
                                              address.getRow().getID());
        const auto column = boost::apply_visitor([this](const auto& place) { return this->find(place); },
                                                 address.getCol().getID());
        if (!row || !column || !isThisTable(address.getTableAddress())) {
            return FormulaError{"#REF!"};
        }
        return _values.get(RowIndex(*row), ColumnIndex(*column));
    }

    Value operator()(const UnaryPlus& op) const { return toNumber(_values.evaluate(*op.getArg())); }
    Value operator()(const UnaryMinus& op) const { return scale(*op.getArg(), -1.0); }
    Value operator()(const UnaryPercent& op) const { return scale(*op.getArg(), 0.01); }

    Value operator()(const Plus& op) const
    {
        return combine(op, [](double left, double right) { return left + right; });
    }
    Value operator()(const Minus& op) const
    {
        return combine(op, [](double left, double right) { return left - right; });
    }
    Value operator()(const Mul& op) const
    {
        return combine(op, [](double left, double right) { return left * right; });
    }
    Value operator()(const Div& op) const
    {
        return combine(op, [](double left, double right) { return left / right; });
    }
    Value operator()(const Pow& op) const
    {
        return combine(op, [](double left, double right) { return std::pow(left, right); });
    }

    Value operator()(const FunctionCall& call) const
    {
        std::vector<double> numbers;
        for (const ExprPtr& argument : call.getArgs()) {
            if (const auto* const range = dynamic_cast<const CellRange*>(argument.get())) {
                if (const auto error = collect(*range, numbers)) {
                    return *error;
                }
            } else {
                const Value value = toNumber(_values.evaluate(*argument));
                if (!std::holds_alternative<double>(value)) {
                    return value;
                }
                numbers.push_back(std::get<double>(value));
            }
        }
        return apply(static_cast<Function>(call.getFuncType()), numbers);
    }

    /// Everything else has no value here.
    Value operator()(const Expr&) const { return FormulaError{"#VALUE!"}; }

private:
    static boost::optional<std::uint64_t> find(RowIndex index) { return index.get(); }
    static boost::optional<std::uint64_t> find(ColumnIndex index) { return index.get(); }
    template <class ID>
    boost::optional<std::uint64_t> find(const ID& id) const
    {
        const auto index = _table.getIndex(id);
        return index ? boost::make_optional(index->get()) : boost::none;
    }

    bool isThisTable(const TableAddress& address) const
    {
        return address == TableAddress(_table.getUUID()) || address == TableAddress(_table.getName());
    }

    Value scale(const Expr& operand, double factor) const
    {
        const Value value = toNumber(_values.evaluate(operand));
        const double* const number = std::get_if<double>(&value);
        return number != nullptr ? Value(*number * factor) : value;
    }

    template <class Operation>
    Value combine(const BaseBinaryOp& op, Operation operation) const
    {
        const Value left = toNumber(_values.evaluate(*op.getArg1()));
        if (!std::holds_alternative<double>(left)) {
            return left;
        }
        const Value right = toNumber(_values.evaluate(*op.getArg2()));
        if (!std::holds_alternative<double>(right)) {
            return right;
        }
        return toFinite(operation(std::get<double>(left), std::get<double>(right)));
    }

    /// Adds the numbers among the cells of a range, which loses removed rows and columns at its ends and lives on.
    /// @return the first error among them.
    boost::optional<FormulaError> collect(const CellRange& range, std::vector<double>& numbers) const
    {
        const auto rows = _table.resolveRange(range.getBeginRow().getID(), range.getLastRow().getID());
        const auto columns =
            _table.resolveRange(range.getBeginColumn().getID(), range.getLastColumn().getID());
        if (!rows || !columns || !isThisTable(range.getFirstTableAddress())) {
            return FormulaError{"#REF!"};
        }
        const QN::TableRange cells(rows->first, rows->second + 1, columns->first, columns->second + 1);
        const auto its = _table.getRangeIterators(cells);
        for (auto it = its.first; it != its.second; ++it) {
            const Value value = _values.get(it.getRowIndex(), it.getColIndex());
            if (const double* const number = std::get_if<double>(&value)) {
                numbers.push_back(*number);
            } else if (const auto* const error = std::get_if<FormulaError>(&value)) {
                return *error;
            }
        }
        return boost::none;
    }

    static Value apply(Function function, const std::vector<double>& numbers)
    {
        double sum = 0.0;
        for (const double number : numbers) {
            sum += number;
        }
        switch (function) {
        case Function::Sum:
            return toFinite(sum);
        case Function::Count:
            return static_cast<double>(numbers.size());
        case Function::Average:
            return numbers.empty() ? Value(FormulaError{"#DIV/0!"})
                                   : toFinite(sum / static_cast<double>(numbers.size()));
        case Function::Min:
            return numbers.empty() ? 0.0 : *std::min_element(numbers.begin(), numbers.end());
        case Function::Max:
            return numbers.empty() ? 0.0 : *std::max_element(numbers.begin(), numbers.end());
        default:
            return FormulaError{"#NAME?"};
        }
    }

    SheetValues& _values;
    const Table& _table;
};

} // namespace

Value SheetValues::get(RowIndex row, ColumnIndex column)
{
    const Cell* const cell = _table.getCell(row, column);
    if (cell == nullptr) {
        return {};
    }
    if (const auto* const number = cell->getNumberValue()) {
        return number->get().get();
    }
    if (const auto* const boolean = cell->getBoolValue()) {
        return boolean->get();
    }
    const QN::DOM::Formula* const formula = cell->getFormula();
    if (formula == nullptr) {
        const auto blocks = cell->getRawBlocks();
        return blocks.empty() ? Value() : Value(QN::DOM::getTextFromParagraphs(blocks));
    }
    const QN::CellIndex index(row, column);
    const auto known = _formulas.find(index);
    if (known != _formulas.end()) {
        return known->second;
    }
    // Until its value is known, a formula that needs itself has this one.
    _formulas[index] = FormulaError{"#CYCLE!"};
    return _formulas[index] = evaluate(*formula->getSyntaxTree());
}

Value SheetValues::evaluate(const Expr& expr)
{
    // A chain of references this long is left alone: it would take the stack.
    constexpr int MaxDepth = 1000;
    if (_depth >= MaxDepth) {
        return FormulaError{"#DEPTH!"};
    }
    ++_depth;
    Value value = QN::visit<Value>(expr, Evaluator(*this));
    --_depth;
    return value;
}

} // namespace Demo
