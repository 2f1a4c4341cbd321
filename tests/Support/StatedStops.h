#pragma once

#include <string_view>

namespace QN::Test {

/// Whether loading the text may stop the process by contract: some object in it has the members of a range of positions,
/// and its begin is not below its end. Everything else in a text must end in a document or an exception.
bool holdsReversedIndexRange(std::string_view json);

/// Whether a node of a formula in a document's saved text has no operands, or null for one: copying or comparing such a tree
/// stops the process by contract.
bool lacksOperand(std::string_view saved);

} // namespace QN::Test
