#pragma once

#include <memory>

/// Clones of polymorphic objects as values of an expression.

namespace QN::Test {

template <class Root>
std::unique_ptr<Root> cloneUnique(const Root& object)
{
    std::unique_ptr<Root> copy;
    object.cloneTo(copy);
    return copy;
}

template <class Root>
std::shared_ptr<Root> cloneShared(const Root& object)
{
    std::shared_ptr<Root> copy;
    object.cloneTo(copy);
    return copy;
}

} // namespace QN::Test
