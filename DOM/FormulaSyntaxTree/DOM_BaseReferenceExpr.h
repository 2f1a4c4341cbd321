#pragma once

#include <string>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A reference to something in this document or in another one.
class DOM_API BaseReferenceExpr : public Reflectable<Expr> {
public:
    BaseReferenceExpr() = default;
    explicit BaseReferenceExpr(std::string docURL) : _docURL(std::move(docURL)) {}

    /// Empty for the document that holds the reference.
    const std::string& getDocURL() const { return _docURL; }
    void setDocURL(std::string docURL) { _docURL = std::move(docURL); }

    QN_VALUE(BaseReferenceExpr)

private:
    std::string _docURL;

    BOOST_DESCRIBE_CLASS(BaseReferenceExpr, (Expr), (), (), (_docURL))
};

} // namespace QN::DOM::FormulaSyntaxTree
