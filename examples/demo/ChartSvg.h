#pragma once

#include <string>

#include "DOM/DOM.h"
#include "SheetValues.h"

namespace Demo {

/// A simple drawing of the line charts of a chart space, over the cells of one sheet.
std::string drawChart(const QN::DOM::ChartSpace& chart, SheetValues& values,
                      const QN::DOM::Document& document);

} // namespace Demo
