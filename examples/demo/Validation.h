#pragma once

#include <iosfwd>

#include "DOM/DOM.h"

namespace Demo {

/// Tells in one line whether a document is valid, and lists what is wrong with it if it is not.
/// @return whether it is valid.
bool validate(const QN::DOM::Document& document, std::ostream& report);

/// Breaks a copy of a document in a few places and lists what validation finds.
void validateBroken(QN::DOM::Document copy, std::ostream& report);

/// Takes the state of collaborative editing off a copy of a document, and tells what went.
void clean(QN::DOM::Document copy, std::ostream& report);

} // namespace Demo
