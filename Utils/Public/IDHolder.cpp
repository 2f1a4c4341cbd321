#include "Utils/Public/IDHolder.h"

#include <atomic>

namespace QN {

IDHolder::IDImpl IDHolder::makeImpl()
{
    static constinit std::atomic<std::uint64_t> nextToken{1};
    return {nextToken.fetch_add(1, std::memory_order_relaxed)};
}

} // namespace QN
