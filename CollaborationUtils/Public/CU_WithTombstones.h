#pragma once

namespace QN::CollaborationUtils {

/// Whether a query counts tombstones or ignores them.
enum class WithTombstones : bool { No = false, Yes = true };

} // namespace QN::CollaborationUtils
