#include "FormulaParser.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "Formulas.h"

namespace Demo {

namespace {

using namespace QN::DOM::FormulaSyntaxTree;
using QN::ColumnIndex;
using QN::RowIndex;
using QN::DOM::Table;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

char toUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

template <class Operator>
std::unique_ptr<Expr> makeUnary(std::unique_ptr<Expr> operand)
{
    return std::make_unique<Operator>(ExprPtr(std::move(operand)));
}

template <class Operator>
std::unique_ptr<Expr> makeBinary(std::unique_ptr<Expr> left, std::unique_ptr<Expr> right)
{
    return std::make_unique<Operator>(ExprPtr(std::move(left)), ExprPtr(std::move(right)));
}

/// Recursive descent, one function for each level of precedence. Each gives null where the text is no formula.
class FormulaParser {
public:
    FormulaParser(std::string_view text, const Table& table) : _rest(text), _table(table) {}

    std::unique_ptr<Expr> parse()
    {
        std::unique_ptr<Expr> expr = parseSum();
        skipBlanks();
        return _rest.empty() ? std::move(expr) : nullptr;
    }

private:
    std::unique_ptr<Expr> parseSum()
    {
        std::unique_ptr<Expr> left = parseProduct();
        while (left) {
            const bool isPlus = take('+');
            if (!isPlus && !take('-')) {
                break;
            }
            std::unique_ptr<Expr> right = parseProduct();
            if (!right) {
                return nullptr;
            }
            left = isPlus ? makeBinary<Plus>(std::move(left), std::move(right))
                          : makeBinary<Minus>(std::move(left), std::move(right));
        }
        return left;
    }

    std::unique_ptr<Expr> parseProduct()
    {
        std::unique_ptr<Expr> left = parsePower();
        while (left) {
            const bool isTimes = take('*');
            if (!isTimes && !take('/')) {
                break;
            }
            std::unique_ptr<Expr> right = parsePower();
            if (!right) {
                return nullptr;
            }
            left = isTimes ? makeBinary<Mul>(std::move(left), std::move(right))
                           : makeBinary<Div>(std::move(left), std::move(right));
        }
        return left;
    }

    std::unique_ptr<Expr> parsePower()
    {
        std::unique_ptr<Expr> left = parseSigned();
        while (left && take('^')) {
            std::unique_ptr<Expr> right = parseSigned();
            if (!right) {
                return nullptr;
            }
            left = makeBinary<Pow>(std::move(left), std::move(right));
        }
        return left;
    }

    std::unique_ptr<Expr> parseSigned()
    {
        // Deeper nesting than anybody writes is no formula: it would take the stack.
        constexpr int MaxDepth = 100;
        if (_depth > MaxDepth) {
            return nullptr;
        }
        ++_depth;
        std::unique_ptr<Expr> expr;
        const bool isMinus = take('-');
        if (isMinus || take('+')) {
            std::unique_ptr<Expr> operand = parseSigned();
            if (operand) {
                expr = isMinus ? makeUnary<UnaryMinus>(std::move(operand))
                               : makeUnary<UnaryPlus>(std::move(operand));
            }
        } else {
            expr = parseOperand();
        }
        while (expr && take('%')) {
            expr = makeUnary<UnaryPercent>(std::move(expr));
        }
        --_depth;
        return expr;
    }

    std::unique_ptr<Expr> parseOperand()
    {
        if (take('(')) {
            std::unique_ptr<Expr> expr = parseSum();
            return take(')') ? std::move(expr) : nullptr;
        }
        if (take('"')) {
            const std::size_t end = _rest.find('"');
            if (end == _rest.npos) {
                return nullptr;
            }
            auto text = std::make_unique<String>(std::string(_rest.substr(0, end)));
            _rest.remove_prefix(end + 1);
            return text;
        }
        if (!_rest.empty() && (isDigit(_rest.front()) || _rest.front() == '.')) {
            return parseNumber();
        }
        std::unique_ptr<Expr> reference = parseReference();
        return reference ? std::move(reference) : parseName();
    }

    std::unique_ptr<Expr> parseNumber()
    {
        double value = 0.0;
        const auto result = std::from_chars(_rest.data(), _rest.data() + _rest.size(), value);
        if (result.ec != std::errc()) {
            return nullptr;
        }
        _rest.remove_prefix(static_cast<std::size_t>(result.ptr - _rest.data()));
        return std::make_unique<Number>(value);
    }

    /// Takes nothing from the text when it gives null.
    std::unique_ptr<Expr> parseReference()
    {
        const std::string_view before = _rest;
        auto first = parseCell();
        if (first && take(':')) {
            auto last = parseCell();
            if (last) {
                return std::make_unique<CellRange>(std::string(), _table.getUUID(), _table.getUUID(),
                                                   CellRange::Columns(first->first, last->first),
                                                   CellRange::Rows(first->second, last->second));
            }
            first.reset();
        }
        if (!first || _rest.starts_with('(')) {
            _rest = before;
            return nullptr;
        }
        return std::make_unique<CellAddress>(std::string(), _table.getUUID(), std::move(*first));
    }

    boost::optional<std::pair<ColumnAxis, RowAxis>> parseCell()
    {
        const bool isColumnFixed = take('$');
        std::uint64_t column = 0;
        for (; !_rest.empty() && isLetter(_rest.front()) && column <= QN::DOM::MaxColumns;
             _rest.remove_prefix(1)) {
            column = column * 26 + static_cast<std::uint64_t>(toUpper(_rest.front()) - 'A') + 1;
        }
        const bool isRowFixed = column != 0 && take('$');
        std::uint64_t row = 0;
        for (; !_rest.empty() && isDigit(_rest.front()) && row <= QN::DOM::MaxRows; _rest.remove_prefix(1)) {
            row = row * 10 + static_cast<std::uint64_t>(_rest.front() - '0');
        }
        if (column == 0 || column > QN::DOM::MaxColumns || row == 0 || row > QN::DOM::MaxRows) {
            return boost::none;
        }
        return std::make_pair(ColumnAxis(_table.getID(ColumnIndex(column - 1)), isColumnFixed),
                              RowAxis(_table.getID(RowIndex(row - 1)), isRowFixed));
    }

    /// TRUE, FALSE, or a call.
    std::unique_ptr<Expr> parseName()
    {
        std::string name;
        while (!_rest.empty() && (isLetter(_rest.front()) || isDigit(_rest.front()))) {
            name += toUpper(_rest.front());
            _rest.remove_prefix(1);
        }
        if (!take('(')) {
            return name == "TRUE" || name == "FALSE" ? std::make_unique<Bool>(name == "TRUE") : nullptr;
        }
        std::vector<ExprPtr> arguments;
        while (!take(')')) {
            std::unique_ptr<Expr> argument;
            if (arguments.empty() || take(',')) {
                argument = parseSum();
            }
            if (!argument) {
                return nullptr;
            }
            arguments.emplace_back(std::move(argument));
        }
        if (arguments.empty()) {
            arguments.emplace_back(std::make_unique<Empty>());
        }
        const Function function = findFunction(name);
        return std::make_unique<FunctionCall>(static_cast<FormulaFunctionType>(function), std::move(name),
                                              std::move(arguments));
    }

    void skipBlanks() { _rest.remove_prefix(std::min(_rest.find_first_not_of(' '), _rest.size())); }

    /// Takes a character behind blanks, if it is there.
    bool take(char c)
    {
        skipBlanks();
        const bool isThere = _rest.starts_with(c);
        _rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    std::string_view _rest;
    const Table& _table;
    int _depth = 0;
};

} // namespace

std::unique_ptr<Expr> parseFormula(std::string_view text, const Table& table)
{
    return FormulaParser(text, table).parse();
}

} // namespace Demo
