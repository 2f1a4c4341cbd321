#pragma once

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How many rows and columns the root cell of a merged range takes beyond its own; both are 0 for a plain cell.
class DOM_API CellMergeProps {
public:
    CellMergeProps() = default;
    CellMergeProps(std::uint64_t capturedRowsCount, std::uint64_t capturedColsCount)
        : _capturedRowsCount(capturedRowsCount), _capturedColsCount(capturedColsCount)
    {
    }

    std::uint64_t getCapturedRowsCount() const { return _capturedRowsCount; }
    void setCapturedRowsCount(std::uint64_t count) { _capturedRowsCount = count; }

    std::uint64_t getCapturedColsCount() const { return _capturedColsCount; }
    void setCapturedColsCount(std::uint64_t count) { _capturedColsCount = count; }

    QN_ORDERED_VALUE(CellMergeProps)

private:
    std::uint64_t _capturedRowsCount = 0;
    std::uint64_t _capturedColsCount = 0;

    BOOST_DESCRIBE_CLASS(CellMergeProps, (), (), (), (_capturedRowsCount, _capturedColsCount))
};

} // namespace QN::DOM
