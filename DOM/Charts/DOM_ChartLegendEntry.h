#pragma once

#include <memory>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class RunProps;

/// What makes one row of a legend differ from the legend as a whole; a row that does not differ has none. Copies share
/// the run properties, which are immutable; equality looks into them.
class DOM_API ChartLegendEntry {
public:
    /// The row's position. It is not checked.
    unsigned long getIdx() const { return _idx; }
    void setIdx(unsigned long idx) { _idx = idx; }

    bool isDeleted() const { return _deleted; }
    void setDeleted(bool deleted) { _deleted = deleted; }

    std::shared_ptr<const RunProps> getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> runProps) { _runProps = std::move(runProps); }

    QN_VALUE(ChartLegendEntry)

private:
    unsigned long _idx = 0;
    bool _deleted = false;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(ChartLegendEntry, (), (), (), (_idx, _deleted, _runProps))
};

} // namespace QN::DOM
