#include "DOM/Properties/DOM_SharedStyle.h"

#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_NumberingLevelStyle.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_RowColumnStyle.h"
#include "DOM/Properties/DOM_RunStyle.h"
#include "DOM/Properties/DOM_ShapeStyle.h"
#include "DOM/Properties/DOM_TableStyle.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <class T>
const T& SharedStyle<T>::getEmpty()
{
    static const T Empty{};
    return Empty;
}

template <class T>
void SharedStyle<T>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <class T>
void SharedStyle<T>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

template <class T>
void SharedStyle<T>::destroy(const SharedStyle* style)
{
    delete style;
}

template class SharedStyle<CellStyle>;
template class SharedStyle<ColumnStyle>;
template class SharedStyle<RowStyle>;
template class SharedStyle<ParagraphStyle>;
template class SharedStyle<RunStyle>;
template class SharedStyle<ShapeStyle>;
template class SharedStyle<TableStyle>;
template class SharedStyle<NumberingLevelStyle>;

} // namespace QN::DOM
