#include "DOM/Properties/DOM_ViewModeProps.h"

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_RunStyle.h"

namespace QN::DOM {

namespace {

template <class Props>
std::shared_ptr<const Props>
choose(const std::shared_ptr<const TrackedObject<std::shared_ptr<const Props>>>& tracked,
       const std::shared_ptr<const Props>& own, TrackChangesViewMode mode)
{
    const bool wantsTracked =
        (mode & TrackChangesViewMode::TrackedProps) == TrackChangesViewMode::TrackedProps;
    return wantsTracked && tracked ? tracked->getValue() : own;
}

} // namespace

std::shared_ptr<const RunProps> getRunPropsForViewMode(const RunStyle& style, TrackChangesViewMode mode)
{
    return choose(style.getTrackedRunProps(), style.getRunProps(), mode);
}

std::shared_ptr<const ParaProps> getParaPropsForViewMode(const ParagraphStyle& style,
                                                         TrackChangesViewMode mode)
{
    return choose(style.getTrackedParaProps(), style.getParaProps(), mode);
}

} // namespace QN::DOM
