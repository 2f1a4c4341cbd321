#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_BaseReferenceExpr.h"
#include "DOM/FormulaSyntaxTree/DOM_TableAddress.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A defined name of a sheet or a document.
class DOM_API Label final : public Reflectable<BaseReferenceExpr> {
public:
    Label() = default;
    Label(std::string label, std::string docURL, TableAddress tableAddress)
        : Reflectable<BaseReferenceExpr>(std::move(docURL)), _tableAddress(std::move(tableAddress)),
          _label(std::move(label))
    {
    }

    const TableAddress& getTableAddress() const { return _tableAddress; }
    void setTableAddress(TableAddress tableAddress) { _tableAddress = std::move(tableAddress); }

    const std::string& getLabel() const { return _label; }

    QN_VALUE(Label)
    QN_CONCRETE(Expr)

private:
    TableAddress _tableAddress;
    std::string _label;

    BOOST_DESCRIBE_CLASS(Label, (BaseReferenceExpr), (), (), (_tableAddress, _label))
};

/// Of the label, the document and the table address, so that labels can key a hash map.
DOM_API std::size_t hash_value(const Label& label);

} // namespace QN::DOM::FormulaSyntaxTree
