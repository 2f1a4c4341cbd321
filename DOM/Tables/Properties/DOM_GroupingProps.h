#pragma once

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Where the summaries of a sheet's row and column groups stand.
class DOM_API GroupingProps {
public:
    bool isSummaryBelow() const { return _isSummaryBelow; }
    void setSummaryBelow(bool isSummaryBelow) { _isSummaryBelow = isSummaryBelow; }

    bool isSummaryRight() const { return _isSummaryRight; }
    void setSummaryRight(bool isSummaryRight) { _isSummaryRight = isSummaryRight; }

    QN_ORDERED_VALUE(GroupingProps)

private:
    bool _isSummaryBelow = true;
    bool _isSummaryRight = true;

    BOOST_DESCRIBE_CLASS(GroupingProps, (), (), (), (_isSummaryBelow, _isSummaryRight))
};

} // namespace QN::DOM
