#pragma once

namespace QN::DOM {

/// Makes `TaggedValue<unsigned long, ViewItemIndexTag>` the place of an item in the view of a pivot table, which no other
/// index can be taken for.
struct ViewItemIndexTag {};

} // namespace QN::DOM
