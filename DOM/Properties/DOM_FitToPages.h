#pragma once

#include <boost/optional/optional.hpp>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// On how many pages a sheet is to be printed, in each direction; absent for as many as it takes.
class DOM_API FitToPages {
public:
    boost::optional<unsigned long> getValueByWide() const { return _valueByWide; }
    void setValueByWide(boost::optional<unsigned long> count) { _valueByWide = count; }

    boost::optional<unsigned long> getValueByTall() const { return _valueByTall; }
    void setValueByTall(boost::optional<unsigned long> count) { _valueByTall = count; }

    QN_VALUE(FitToPages)

private:
    boost::optional<unsigned long> _valueByWide;
    boost::optional<unsigned long> _valueByTall;

    BOOST_DESCRIBE_CLASS(FitToPages, (), (), (), (_valueByWide, _valueByTall))
};

} // namespace QN::DOM
