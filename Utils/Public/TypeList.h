#pragma once

namespace QN {

/// A list of types at compile time: the classes of a family, in the family's order.
template <class... Ts>
struct TypeList {
};

/// Fills a template parameter where no real type is meant.
struct QNDummy {};

} // namespace QN
