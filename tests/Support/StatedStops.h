#pragma once

#include <string_view>

namespace QN::Test {

/// Whether loading the text may stop the process by contract: some object in it has the members of a range of positions,
/// and its begin is not below its end. Everything else in a text must end in a document or an exception.
bool holdsReversedIndexRange(std::string_view json);

/// Whether the text names a table or a node of a formula tree. Those load with whatever identifiers and operands a file
/// states; one that lacks an operand stops the process by contract when it is copied, and one without identifiers when it
/// is compared.
bool holdsTableOrFormula(std::string_view json);

} // namespace QN::Test
