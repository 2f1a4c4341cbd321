#pragma once

#include <map>
#include <string>
#include <variant>

#include "DOM/DOM.h"

namespace Demo {

/// Why a formula has no value: "#REF!" and its like.
struct FormulaError {
    std::string text;
};

/// What a cell shows: nothing, a number, a boolean, a text or an error.
using Value = std::variant<std::monostate, double, bool, std::string, FormulaError>;

/// The values of a sheet's cells. The library holds formulas and computes none; this computes those that the demo uses,
/// each once. The table must not change meanwhile.
class SheetValues {
public:
    explicit SheetValues(const QN::DOM::Table& table) : _table(table) {}

    const QN::DOM::Table& getTable() const { return _table; }

    Value get(QN::RowIndex row, QN::ColumnIndex column);

    /// The value of a formula. A range has none by itself: it is an argument.
    Value evaluate(const QN::DOM::FormulaSyntaxTree::Expr& expr);

private:
    const QN::DOM::Table& _table;
    std::map<QN::CellIndex, Value> _formulas;
    int _depth = 0;
};

} // namespace Demo
