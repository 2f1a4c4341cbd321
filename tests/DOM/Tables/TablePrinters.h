#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <gtest/gtest.h>

#include <ostream>

#include "Utils/Public/TableIndices/CellIndex.h"
#include "Utils/Public/TableIndices/TableRange.h"
#include "Utils/Public/TaggedValue.h"

/// How the small values of tables read in the message of a failed test.

namespace boost {

template <class T>
void PrintTo(const optional<T>& value, std::ostream* stream)
{
    *stream << (value ? ::testing::PrintToString(*value) : "none");
}

template <class... Ts>
void PrintTo(const variant<Ts...>& value, std::ostream* stream)
{
    *stream << "alternative " << value.which();
}

} // namespace boost

namespace QN {

template <class T, class Tag>
void PrintTo(const TaggedValue<T, Tag>& value, std::ostream* stream)
{
    *stream << ::testing::PrintToString(value.get());
}

inline void PrintTo(const CellIndex& cell, std::ostream* stream)
{
    *stream << "(" << cell.getRow().get() << ", " << cell.getColumn().get() << ")";
}

inline void PrintTo(const TableRange& range, std::ostream* stream)
{
    *stream << "[" << range.getBeginRow().get() << ", " << range.getEndRow().get() << ") x ["
            << range.getBeginColumn().get() << ", " << range.getEndColumn().get() << ")";
}

} // namespace QN
