#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "DOM/DOM.h"

namespace QN::Test {

/// A document with random content in all its members. The same seed gives the same content.
DOM::Document makeRandomDocument(std::uint64_t seed, int depth = 4);

/// Gives a document other content, and changes what it owns where it stands as far as that can be.
void changeInPlace(DOM::Document& document, std::uint64_t seed, int depth = 4);

/// One object of each concrete class of a family with random content, in the order of the family. For the families that
/// are persisted by name.
template <class Root>
std::vector<std::unique_ptr<Root>> makeOneOfEachKind(std::uint64_t seed);

/// The same for one object of such a family.
template <class Root>
void changeInPlace(Root& object, std::uint64_t seed);

} // namespace QN::Test
