#pragma once

#include "Utils/Public/Export.h"

namespace QN::DOM {

/// Making one ties in the translation unit that registers the kinds of table filters for saving and loading.
struct DOM_API TableFiltersDynamicInitEnforcer {
    TableFiltersDynamicInitEnforcer();
};

} // namespace QN::DOM
