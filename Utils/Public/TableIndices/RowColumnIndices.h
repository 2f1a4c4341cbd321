#pragma once

#include "Utils/Public/Assert.h"
#include "Utils/Public/TaggedValue.h"

namespace QN {

/// How far `end` lies behind `begin`, for two rows or two columns; 0 when they are one. An end before the begin fails
/// the contract "end >= begin".
template <class T, class Tag>
T getDistance(const TaggedValue<T, Tag>& end, const TaggedValue<T, Tag>& begin)
{
    QN_CONTRACT(end >= begin, "Utils/Public/TableIndices/RowColumnIndices", 29, "end >= begin");
    return (end - begin).get();
}

} // namespace QN
