#pragma once

#include <boost/variant/variant.hpp>

#include <utility>

#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelExpression.h"
#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeLocalizedExpression.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Reflectable.h"

namespace QN::DOM {

/// How the value of a cell is shown: a format written out item by item, or a date or time of which only the fields are
/// told and whose pattern the reader's locale decides. A format is data: choosing a rule for a value, and rendering it,
/// is its clients' work.
class DOM_API CellFormat : public Reflectable<> {
public:
    using Data = boost::variant<CellFormatModel::Expression, CellFormatModel::DateTimeLocalizedExpression>;

    /// An expression without rules.
    CellFormat() = default;
    explicit CellFormat(Data data) : _data(std::move(data)) {}

    const Data& getData() const { return _data; }
    void setData(Data data) { _data = std::move(data); }

    /// Every format written out comes before every localized one.
    QN_ORDERED_VALUE(CellFormat)

private:
    Data _data;

    BOOST_DESCRIBE_CLASS(CellFormat, (), (), (), (_data))
};

DOM_API bool areDeeplyEqual(const CellFormat& left, const CellFormat& right);
DOM_API bool areDeeplyLess(const CellFormat& left, const CellFormat& right);

} // namespace QN::DOM
