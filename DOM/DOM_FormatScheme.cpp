#include "DOM/DOM_FormatScheme.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY(FormatScheme)
QN_DEFINE_EQUALITY(FormatScheme)

void FormatScheme::serialize(cereal::JSONOutputArchive& archive) const
{
    archive.member("_name", _name);
    archive.member("_fills", _fills);
    archive.member("_lineProps", asPlainPointers(_lineProps));
    archive.member("_effects", _effects);
    archive.member("_backgroundFills", _backgroundFills);
}

void FormatScheme::serialize(cereal::JSONInputArchive& archive)
{
    archive.member("_name", _name);
    archive.member("_fills", _fills);
    auto lineProps = asPlainPointers(_lineProps);
    archive.member("_lineProps", lineProps);
    archive.member("_effects", _effects);
    archive.member("_backgroundFills", _backgroundFills);
}

} // namespace QN::DOM
