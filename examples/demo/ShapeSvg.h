#pragma once

#include <string>

#include "DOM/DOM.h"

namespace Demo {

/// The outline of a shape with custom geometry, as SVG. The library stores the formulas of an outline and evaluates none:
/// this evaluates them, and draws lines, curves and arcs that start at the pen. Empty for a shape without such a geometry.
std::string drawShape(const QN::DOM::Shape& shape, const QN::DOM::Document& document);

} // namespace Demo
