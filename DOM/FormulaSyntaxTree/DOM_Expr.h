#pragma once

#include <memory>

#include "DOM/FormulaSyntaxTree/DOM_OperatorTypes.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Ptr/PropagateConstPtr.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN {

template <class T>
struct Persist;

namespace DOM::FormulaSyntaxTree {

class String;
class Number;
class Label;
class Bool;
class Error;
class Empty;
class CellAddress;
class CellRange;
class FunctionCall;
class Array;
class ArgumentsList;

/// A node of a parsed formula. A node owns its children; the depth of a tree is limited by memory alone, because
/// building, copying, comparing, saving, loading and destroying one does not recurse over it.
class DOM_API Expr : public Clonable<Expr>, public Reflectable<> {
public:
    using Types =
        TypeList<String, Number, Label, Bool, Error, Empty, CellAddress, CellRange, UnaryPlus, UnaryMinus,
                 UnaryPercent, Plus, Minus, Mul, Div, Pow, Equal, NotEqual, Less, LessOrEqual, Greater,
                 GreaterOrEqual, Concat, FunctionCall, Array, Intersection, Union, ArgumentsList>;
    QN_FAMILY_ROOT(Expr)

    QN_SERIALIZE(Expr)

    BOOST_DESCRIBE_CLASS(Expr, (), (), (), ())
};

/// A child of a node. It may be null: in a file, in a default constructed node, after a move, or where a caller puts
/// null; the constructors of the operators refuse it. Reading through a null one fails the contract "plainPtr".
using ExprPtr = PropagateConstPtr<std::unique_ptr<Expr>>;

/// Whether two trees have the same shape and equal nodes, null children included.
DOM_API bool areDeeplyEqual(const Expr& left, const Expr& right);

} // namespace DOM::FormulaSyntaxTree

/// A whole tree in the form of a polymorphic pointer, followed without recursion. It counts as one level against the
/// nesting limit of the archive, however deep it is.
template <>
struct DOM_API Persist<std::unique_ptr<DOM::FormulaSyntaxTree::Expr>> {
    using Pointer = std::unique_ptr<DOM::FormulaSyntaxTree::Expr>;

    static void save(cereal::JSONOutputArchive& archive, const Pointer& value);
    static void load(cereal::JSONInputArchive& archive, Pointer& value);
};

} // namespace QN
