#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_ExprNodes.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

/// Short ways to write trees down in tests.

namespace QN::DOM::FormulaSyntaxTree {

using namespace Test;

inline std::unique_ptr<Expr> number(double value)
{
    return std::make_unique<Number>(value);
}

inline std::unique_ptr<Expr> text(std::string value)
{
    return std::make_unique<String>(std::move(value));
}

template <class... Exprs>
std::vector<ExprPtr> args(Exprs... exprs)
{
    std::vector<ExprPtr> list;
    (list.emplace_back(std::move(exprs)), ...);
    return list;
}

template <class Operator>
std::unique_ptr<Expr> op(ExprPtr arg)
{
    return std::make_unique<Operator>(std::move(arg));
}

template <class Operator>
std::unique_ptr<Expr> op(ExprPtr left, ExprPtr right)
{
    return std::make_unique<Operator>(std::move(left), std::move(right));
}

inline std::unique_ptr<Expr> call(std::string name, std::vector<ExprPtr> arguments)
{
    return std::make_unique<FunctionCall>(FormulaFunctionType(7), std::move(name), std::move(arguments));
}

inline std::unique_ptr<Expr> list(std::vector<ExprPtr> arguments)
{
    return std::make_unique<ArgumentsList>(std::move(arguments));
}

/// An array of one row.
inline std::unique_ptr<Expr> row(std::vector<ExprPtr> items)
{
    Array::Items rows;
    rows.push_back(std::move(items));
    return std::make_unique<Array>(std::move(rows));
}

inline CellAddress cell(ColumnAxis column, RowAxis rowAxis)
{
    return {"", TableAddress(), {std::move(column), std::move(rowAxis)}};
}

/// The text of a pointer to a node that is the first of its type in a file, with these keys.
inline std::string pointerJson(const std::string& name, const std::string& data)
{
    return R"({"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::FormulaSyntaxTree::)" + name +
           R"(","ptr_wrapper":{"valid":1,"data":)" + data + "}}";
}

/// A copy of the same dynamic type.
inline std::unique_ptr<Expr> clone(const Expr& expr)
{
    std::unique_ptr<Expr> copy;
    expr.cloneTo(copy);
    return copy;
}

/// What every node goes through: it persists through a pointer, both kinds of clone are equal and of the same type, and
/// it is unlike a node of another type.
inline void expectNode(const std::unique_ptr<Expr>& node)
{
    expectPersists(node);
    const auto copy = clone(*node);
    EXPECT_NE(copy.get(), node.get());
    const Expr& original = *node;
    const Expr& copied = *copy;
    EXPECT_EQ(typeid(copied), typeid(original));
    EXPECT_TRUE(areDeeplyEqual(*copy, *node));

    std::shared_ptr<Expr> shared;
    node->cloneTo(shared);
    const Expr& sharedCopy = *shared;
    EXPECT_EQ(typeid(sharedCopy), typeid(original));
    EXPECT_TRUE(areDeeplyEqual(*shared, *node));

    const UnaryPlus other{ExprPtr(std::make_unique<Empty>())};
    EXPECT_FALSE(areDeeplyEqual(*node, other));
    EXPECT_FALSE(areDeeplyEqual(other, *node));
}

} // namespace QN::DOM::FormulaSyntaxTree
