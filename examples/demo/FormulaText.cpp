#include "FormulaText.h"

#include <array>
#include <charconv>

#include "Text.h"

namespace Demo {

namespace {

using namespace QN::DOM::FormulaSyntaxTree;
using QN::ColumnIndex;
using QN::RowIndex;
using QN::DOM::Table;

/// Writes a node; visited by class.
class FormulaWriter {
public:
    explicit FormulaWriter(const Table& table) : _table(table) {}

    std::string write(const Expr& expr) { return QN::visit<std::string>(expr, *this); }

    std::string operator()(const String& text) const { return '"' + text.getValue() + '"'; }
    std::string operator()(const Number& number) const
    {
        std::array<char, 40> buffer{};
        const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number.getValue());
        return {buffer.data(), result.ptr};
    }
    std::string operator()(const Bool& boolean) const { return boolean.getValue() ? "TRUE" : "FALSE"; }
    std::string operator()(const Label& label) const { return label.getLabel(); }
    std::string operator()(const Error&) const { return "#ERROR!"; }
    std::string operator()(const Empty&) const { return ""; }
    std::string operator()(const Array&) const { return "{...}"; }

    /// A cell is there as long as its row and its column are.
    std::string operator()(const CellAddress& address) const
    {
        const auto column = boost::apply_visitor(LiveIndex{_table}, address.getCol().getID());
        const auto row = boost::apply_visitor(LiveIndex{_table}, address.getRow().getID());
        return column && row ? writeCell(ColumnIndex(*column), address.getCol().isFixed(), RowIndex(*row),
                                         address.getRow().isFixed())
                             : "#REF!";
    }

    /// A range is there as long as one of its rows and one of its columns is: without a removed end it is shorter.
    std::string operator()(const CellRange& range) const
    {
        const auto columns =
            _table.resolveRange(range.getBeginColumn().getID(), range.getLastColumn().getID());
        const auto rows = _table.resolveRange(range.getBeginRow().getID(), range.getLastRow().getID());
        if (!columns || !rows) {
            return "#REF!";
        }
        return writeCell(columns->first, range.getBeginColumn().isFixed(), rows->first,
                         range.getBeginRow().isFixed()) +
               ':' +
               writeCell(columns->second, range.getLastColumn().isFixed(), rows->second,
                         range.getLastRow().isFixed());
    }

    std::string operator()(const UnaryPlus& op) { return '+' + writeOperand(*op.getArg()); }
    std::string operator()(const UnaryMinus& op) { return '-' + writeOperand(*op.getArg()); }
    std::string operator()(const UnaryPercent& op) { return writeOperand(*op.getArg()) + '%'; }

    template <BinaryOpType Type>
    std::string operator()(const BinaryOp<Type>& op)
    {
        constexpr std::array<const char*, 14> Signs = {"+", "-",  "*", "/",  "^", "=", "<>",
                                                       "<", "<=", ">", ">=", "&", " ", ","};
        return writeOperand(*op.getArg1()) + Signs[static_cast<std::size_t>(Type)] +
               writeOperand(*op.getArg2());
    }

    std::string operator()(const ArgumentsList& list) { return '(' + writeAll(list.getArgs()) + ')'; }
    std::string operator()(const FunctionCall& call)
    {
        return call.getFuncName() + '(' + writeAll(call.getArgs()) + ')';
    }

private:
    struct LiveIndex : boost::static_visitor<boost::optional<std::uint64_t>> {
        explicit LiveIndex(const Table& sheet) : table(sheet) {}

        template <class T, class Tag>
        boost::optional<std::uint64_t> operator()(const QN::TaggedValue<T, Tag>& place) const
        {
            if constexpr (std::is_same_v<QN::TaggedValue<T, Tag>, RowIndex> ||
                          std::is_same_v<QN::TaggedValue<T, Tag>, ColumnIndex>) {
                return place.get();
            } else if (const auto index = table.getIndex(place)) {
                return index->get();
            }
            return boost::none;
        }

        const Table& table;
    };

    static std::string writeCell(ColumnIndex column, bool isColumnFixed, RowIndex row, bool isRowFixed)
    {
        return (isColumnFixed ? "$" : "") + toColumnName(column) + (isRowFixed ? "$" : "") +
               std::to_string(row.get() + 1);
    }

    std::string writeOperand(const Expr& expr)
    {
        const bool isOperator = dynamic_cast<const BaseBinaryOp*>(&expr) != nullptr;
        return isOperator ? '(' + write(expr) + ')' : write(expr);
    }

    std::string writeAll(const std::vector<ExprPtr>& arguments)
    {
        std::string text;
        for (const ExprPtr& argument : arguments) {
            text += (text.empty() ? "" : ",") + write(*argument);
        }
        return text;
    }

    const Table& _table;
};

} // namespace

std::string toText(const Expr& expr, const Table& table)
{
    return '=' + FormulaWriter(table).write(expr);
}

} // namespace Demo
