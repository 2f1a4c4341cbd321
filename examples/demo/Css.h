#pragma once

#include <string>

#include "DOM/DOM.h"

/// Properties of the model as declarations of CSS. The library stores levels of formatting and leaves their effect to its
/// users; this is what a browser can be told of them.

namespace Demo {

/// Resolves a theme's slot through the document's colour map and theme. Of the transforms `Tint` and `Shade` are applied.
std::string toCss(const QN::DOM::Color& color, const QN::DOM::Document& document);

/// The colour of a solid fill; "none" for any other fill and for null.
std::string toCss(const QN::DOM::Fill* fill, const QN::DOM::Document& document);

// Declarations, each with its semicolon. Null has none.

std::string toCss(const QN::DOM::RunProps* props, const QN::DOM::Document& document);
std::string toCss(const QN::DOM::ParaProps* props);
std::string toCss(const QN::DOM::CellProps* props, const QN::DOM::Document& document);

} // namespace Demo
