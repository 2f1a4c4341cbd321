#pragma once

#include <memory>

#include "Utils/Public/Export.h"

/// Setting the lines of a cell together, and choosing between the lines of two neighbours.

namespace QN::DOM {

class BordersProps;
class LineProps;

/// The four outer edges take `line`; the rest stays.
DOM_API void setBorderPerimeter(BordersProps& borders, const std::shared_ptr<const LineProps>& line);

// The reset family gives `line` to the named edges and states "no border" at all others, so that no edge stays unset.

DOM_API void setBorderPerimeterAndResetOther(BordersProps& borders,
                                             const std::shared_ptr<const LineProps>& line);
DOM_API void setBorderBottomAndResetOther(BordersProps& borders,
                                          const std::shared_ptr<const LineProps>& line);
DOM_API void setBorderLeftAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line);
DOM_API void setBorderRightAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line);
DOM_API void setBorderTopAndResetOther(BordersProps& borders, const std::shared_ptr<const LineProps>& line);

/// The line to draw on the edge that two cells share; null only when both are null. A line whose dash style is set wins
/// over one without, a line to be seen over the "no border" style, then the wider, then a coloured one, then the darker
/// colour; whatever is equal goes to `a`. A reference to the theme counts as a line without dash style, an absent width
/// as 0, and a colour that is not given by its components as none.
DOM_API std::shared_ptr<const LineProps> getPreferedBorder(const std::shared_ptr<const LineProps>& a,
                                                           const std::shared_ptr<const LineProps>& b);

} // namespace QN::DOM
