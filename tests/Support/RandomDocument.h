#pragma once

#include <cstdint>

#include "DOM/DOM_Document.h"

namespace QN::Test {

/// A document with random content in all its members. The same seed gives the same content.
DOM::Document makeRandomDocument(std::uint64_t seed, int depth = 4);

} // namespace QN::Test
