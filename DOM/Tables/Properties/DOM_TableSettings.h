#pragma once

#include "DOM/Tables/Properties/DOM_GroupingProps.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How a sheet is shown.
class DOM_API TableSettings {
public:
    bool getShowZeroValue() const { return _showZeroValue; }
    void setShowZeroValue(bool showZeroValue) { _showZeroValue = showZeroValue; }

    const GroupingProps& getGroupingProps() const { return _groupingProps; }
    GroupingProps& getGroupingProps() { return _groupingProps; }
    void setGroupingProps(const GroupingProps& props) { _groupingProps = props; }

    QN_ORDERED_VALUE(TableSettings)

private:
    bool _showZeroValue = true;
    GroupingProps _groupingProps;

    BOOST_DESCRIBE_CLASS(TableSettings, (), (), (), (_showZeroValue, _groupingProps))
};

} // namespace QN::DOM
