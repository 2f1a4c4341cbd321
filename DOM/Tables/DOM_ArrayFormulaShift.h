#pragma once

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What a cell of an array formula holds in place of the formula: how far it lies from the root cell, which has it.
class DOM_API ArrayFormulaShift {
public:
    ArrayFormulaShift() = default;
    ArrayFormulaShift(std::uint64_t rowsCount, std::uint64_t columnsCount)
        : _rowsCount(rowsCount), _columnsCount(columnsCount)
    {
    }

    std::uint64_t getRowsCount() const { return _rowsCount; }
    std::uint64_t getColumnsCount() const { return _columnsCount; }

    QN_VALUE(ArrayFormulaShift)

private:
    std::uint64_t _rowsCount = 0;
    std::uint64_t _columnsCount = 0;

    BOOST_DESCRIBE_CLASS(ArrayFormulaShift, (), (), (), (_rowsCount, _columnsCount))
};

} // namespace QN::DOM
