#pragma once

#include <memory>
#include <random>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"

namespace QN::DOM::FormulaSyntaxTree {

/// Makes random trees of all nodes. They can be cloned: operators and calls have arguments, and none is null.
class RandomExpr {
public:
    explicit RandomExpr(std::uint64_t seed) : _engine(seed) {}

    std::unique_ptr<Expr> make(int depth) { return make(depth, Expr::Types{}); }

private:
    template <class... Nodes>
    std::unique_ptr<Expr> make(int depth, TypeList<Nodes...>)
    {
        using Maker = std::unique_ptr<Expr> (RandomExpr::*)(int);
        static constexpr Maker Makers[]{&RandomExpr::makeNode<Nodes>...};
        return (this->*Makers[below(sizeof...(Nodes))])(depth - 1);
    }

    template <class Node>
    std::unique_ptr<Expr> makeNode(int depth)
    {
        if constexpr (std::is_same_v<Node, Array>) {
            Array::Items items(below(3));
            for (auto& row : items) {
                row = makeList(below(3), depth);
            }
            return std::make_unique<Array>(std::move(items));
        } else if constexpr (!std::is_base_of_v<BaseCompoundExpr, Node>) {
            return makeLeaf<Node>();
        } else if (depth <= 0) {
            return makeLeaf<Number>();
        } else if constexpr (std::is_base_of_v<BaseUnaryOp, Node>) {
            return op<Node>(make(depth));
        } else if constexpr (std::is_base_of_v<BaseBinaryOp, Node>) {
            return op<Node>(make(depth), make(depth));
        } else if constexpr (std::is_same_v<Node, FunctionCall>) {
            return std::make_unique<FunctionCall>(FormulaFunctionType(below(65536)), "F",
                                                  makeList(1 + below(3), depth));
        } else {
            return list(makeList(1 + below(3), depth));
        }
    }

    template <class Leaf>
    std::unique_ptr<Expr> makeLeaf()
    {
        if constexpr (std::is_same_v<Leaf, String>) {
            return text(std::string(below(4), 'x'));
        } else if constexpr (std::is_same_v<Leaf, Number>) {
            return std::make_unique<Number>(static_cast<double>(below(1000)) / 7, makeFormat());
        } else if constexpr (std::is_same_v<Leaf, Label>) {
            return std::make_unique<Label>("Label", makeURL(), makeAddress());
        } else if constexpr (std::is_same_v<Leaf, Bool>) {
            return std::make_unique<Bool>(below(2) == 0);
        } else if constexpr (std::is_same_v<Leaf, Error>) {
            return std::make_unique<Error>(FormulaErrorType(below(10)));
        } else if constexpr (std::is_same_v<Leaf, CellAddress>) {
            return std::make_unique<CellAddress>(makeURL(), makeAddress(),
                                                 std::pair(makeColumn(), makeRow()));
        } else if constexpr (std::is_same_v<Leaf, CellRange>) {
            return std::make_unique<CellRange>(makeURL(), makeAddress(), makeAddress(),
                                               CellRange::Columns(makeColumn(), makeColumn()),
                                               CellRange::Rows(makeRow(), makeRow()));
        } else {
            return std::make_unique<Leaf>();
        }
    }

    std::vector<ExprPtr> makeList(std::size_t count, int depth)
    {
        std::vector<ExprPtr> list;
        for (; count != 0 && depth > 0; --count) {
            list.emplace_back(make(depth));
        }
        return list;
    }

    std::shared_ptr<const CellFormat> makeFormat()
    {
        using namespace CellFormatModel;
        if (below(3) != 0) {
            return nullptr;
        }
        if (!_format || below(2) == 0) {
            _format =
                std::make_shared<CellFormat>(DateTimeLocalizedExpression(DateTimeDefaultType(below(3))));
        }
        return _format;
    }

    std::string makeURL() { return below(2) == 0 ? "" : "file:///other"; }
    TableAddress makeAddress() { return below(2) == 0 ? TableAddress("Sheet") : UUID::generate(); }

    ColumnAxis makeColumn()
    {
        return below(2) == 0 ? ColumnAxis(ColumnIndex(below(99)), below(2) == 0)
                             : ColumnAxis(ColumnID(_engine()), below(2) == 0);
    }

    RowAxis makeRow()
    {
        return below(2) == 0 ? RowAxis(RowIndex(below(99)), below(2) == 0)
                             : RowAxis(RowID(_engine()), below(2) == 0);
    }

    std::uint32_t below(std::uint32_t count) { return static_cast<std::uint32_t>(_engine() % count); }

    std::mt19937_64 _engine;
    std::shared_ptr<const CellFormat> _format;
};

} // namespace QN::DOM::FormulaSyntaxTree
