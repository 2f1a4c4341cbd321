#pragma once

#include <string>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Axis.h"
#include "DOM/FormulaSyntaxTree/DOM_BaseReferenceExpr.h"
#include "DOM/FormulaSyntaxTree/DOM_TableAddress.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A reference to one cell.
class DOM_API CellAddress final : public Reflectable<BaseReferenceExpr> {
public:
    CellAddress() = default;
    CellAddress(std::string docURL, TableAddress tableAddress, std::pair<ColumnAxis, RowAxis> ref)
        : Reflectable<BaseReferenceExpr>(std::move(docURL)), _tableAddress(std::move(tableAddress)),
          _ref(std::move(ref))
    {
    }

    const TableAddress& getTableAddress() const { return _tableAddress; }
    void setTableAddress(TableAddress tableAddress) { _tableAddress = std::move(tableAddress); }

    const std::pair<ColumnAxis, RowAxis>& getRef() const { return _ref; }

    const ColumnAxis& getCol() const { return _ref.first; }
    void setCol(ColumnAxis column) { _ref.first = std::move(column); }

    const RowAxis& getRow() const { return _ref.second; }
    void setRow(RowAxis row) { _ref.second = std::move(row); }

    QN_VALUE(CellAddress)
    QN_CONCRETE(Expr)

private:
    TableAddress _tableAddress;
    std::pair<ColumnAxis, RowAxis> _ref;

    BOOST_DESCRIBE_CLASS(CellAddress, (BaseReferenceExpr), (), (), (_tableAddress, _ref))
};

} // namespace QN::DOM::FormulaSyntaxTree
