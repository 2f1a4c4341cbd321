#include "Utils/Public/Archive/PersistUtils.h"

#include "Utils/Public/TableIndices/TableRange.h"
#include "Utils/Public/UUID.h"
#include "Utils/Public/UUIDable.h"

namespace QN {

void UUID::serialize(cereal::JSONOutputArchive& archive) const
{
    archive.member("_id", toString());
}

void UUID::serialize(cereal::JSONInputArchive& archive)
{
    archive.seek("_id");
    const std::string_view text = archive.loadString();
    try {
        *this = UUID(boost::string_ref(text.data(), text.size()));
    } catch (const BaseRuntimeError& error) {
        throw cereal::Exception(error.what());
    }
}

void UUIDable::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

void UUIDable::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

void TableRange::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

void TableRange::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
    if (!(_beginRow < _endRow && _beginColumn < _endColumn)) {
        throw cereal::Exception("A range of cells is empty or reversed");
    }
}

} // namespace QN
