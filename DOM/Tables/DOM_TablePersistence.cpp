#include "DOM/Tables/DOM_Table.h"

#include <string>

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

[[noreturn]] void throwBadTable(const std::string& reason)
{
    throw cereal::Exception("A table cannot be loaded: " + reason);
}

/// The storage is walked by these starts and counts; the offsets themselves are checked at use.
void checkChunks(const std::vector<TableChunk>& chunks)
{
    if (chunks.empty()) {
        throwBadTable("it has no chunks");
    }
    if (chunks.front().startRowIndex != RowIndex(0)) {
        throwBadTable("its first chunk does not start at row 0");
    }
    for (std::size_t next = 1; next < chunks.size(); ++next) {
        const TableChunk& chunk = chunks[next - 1];
        if (chunks[next].startRowIndex <= chunk.startRowIndex) {
            throwBadTable("its chunks are not sorted");
        }
        if (chunks[next].startRowIndex != chunk.getEndRow()) {
            throwBadTable("a chunk has another number of offsets than of rows");
        }
    }
}

} // namespace

void Table::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

void Table::serialize(cereal::JSONInputArchive& archive)
{
    // Not on the stack: tables stand in cells of tables as deep as a file may nest.
    const auto loaded = std::make_unique<Table>();
    loadMembers(archive, *loaded);
    checkChunks(loaded->_chunks);
    if (loaded->_rowsCount > MaxRows) {
        throwBadTable("it has more rows than a table can have");
    }
    if (loaded->_colsCount > MaxColumns) {
        throwBadTable("it has more columns than a table can have");
    }
    *this = std::move(*loaded);
}

} // namespace QN::DOM
