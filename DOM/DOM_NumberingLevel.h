#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_NumberingLevelStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class NumListMarker;

/// One level of a numbered list. Copies share the marker and the style; equality looks through both.
class DOM_API NumberingLevel {
public:
    const std::shared_ptr<const NumListMarker>& getListMarker() const { return _marker; }
    void setListMarker(std::shared_ptr<const NumListMarker> marker) { _marker = std::move(marker); }

    /// The style behind the handle, or the one empty style of the process where the handle is null.
    const NumberingLevelStyle& getStyle() const { return derefSharedStyle(_numLevelStyle); }
    const SharedStylePtr<NumberingLevelStyle>& getSharedStyle() const { return _numLevelStyle; }
    SharedStylePtr<NumberingLevelStyle>& getSharedStyle() { return _numLevelStyle; }

    QN_VALUE(NumberingLevel)

private:
    std::shared_ptr<const NumListMarker> _marker;
    SharedStylePtr<NumberingLevelStyle> _numLevelStyle;

    BOOST_DESCRIBE_CLASS(NumberingLevel, (), (), (), (_marker, _numLevelStyle))
};

} // namespace QN::DOM
