#pragma once

#include <string>

#include "DOM/DOM.h"

namespace Demo {

/// Inserts a shape with a text into a document, before the block at a position: a pennant, whose outline is made of
/// formulas over its size and two numbers that a user could change, how deep its tail is cut and how high its waves are.
void insertBanner(QN::DOM::Document& document, std::size_t position, const std::string& text);

} // namespace Demo
