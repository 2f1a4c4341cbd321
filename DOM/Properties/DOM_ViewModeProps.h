#pragma once

#include <memory>

#include "DOM/Properties/DOM_TrackChangesViewMode.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

class ParagraphStyle;
class ParaProps;
class RunProps;
class RunStyle;

/// The properties of a style in a view of tracked changes: with the flag `TrackedProps`, those that the style's tracked
/// object holds, if it has one, also when they are null; the style's own otherwise.
DOM_API std::shared_ptr<const RunProps> getRunPropsForViewMode(const RunStyle& style,
                                                               TrackChangesViewMode mode);
DOM_API std::shared_ptr<const ParaProps> getParaPropsForViewMode(const ParagraphStyle& style,
                                                                 TrackChangesViewMode mode);

} // namespace QN::DOM
