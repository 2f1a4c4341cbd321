#pragma once

#include <cstdint>

namespace QN::DOM::FormulaSyntaxTree {

/// Operators of one operand. A file holds an operator by its persisted name, not by these numbers.
enum class UnaryOpType : std::uint8_t { Plus = 0, Minus = 1, Percent = 2 };

/// Operators of two operands.
enum class BinaryOpType : std::uint8_t {
    Plus = 0,
    Minus = 1,
    Mul = 2,
    Div = 3,
    Pow = 4,
    Equal = 5,
    NotEqual = 6,
    Less = 7,
    LessOrEqual = 8,
    Greater = 9,
    GreaterOrEqual = 10,
    Concat = 11,
    Intersection = 12,
    Union = 13,
};

template <UnaryOpType Type>
class UnaryOp;
template <BinaryOpType Type>
class BinaryOp;

using UnaryPlus = UnaryOp<UnaryOpType::Plus>;
using UnaryMinus = UnaryOp<UnaryOpType::Minus>;
using UnaryPercent = UnaryOp<UnaryOpType::Percent>;

using Plus = BinaryOp<BinaryOpType::Plus>;
using Minus = BinaryOp<BinaryOpType::Minus>;
using Mul = BinaryOp<BinaryOpType::Mul>;
using Div = BinaryOp<BinaryOpType::Div>;
using Pow = BinaryOp<BinaryOpType::Pow>;
using Equal = BinaryOp<BinaryOpType::Equal>;
using NotEqual = BinaryOp<BinaryOpType::NotEqual>;
using Less = BinaryOp<BinaryOpType::Less>;
using LessOrEqual = BinaryOp<BinaryOpType::LessOrEqual>;
using Greater = BinaryOp<BinaryOpType::Greater>;
using GreaterOrEqual = BinaryOp<BinaryOpType::GreaterOrEqual>;
using Concat = BinaryOp<BinaryOpType::Concat>;
using Intersection = BinaryOp<BinaryOpType::Intersection>;
using Union = BinaryOp<BinaryOpType::Union>;

} // namespace QN::DOM::FormulaSyntaxTree
