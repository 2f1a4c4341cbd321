#include "DOM/DOM_Block.h"
#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Table.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

/// What knows each kind, apart from the root that each kind is built on.
namespace QN::DOM {

QN_DEFINE_DEEP_EQUALITY(Block)

QN_REGISTER_TYPE(Paragraph, "QN::DOM::Paragraph")
QN_REGISTER_TYPE(Table, "QN::DOM::Table")
QN_REGISTER_TYPE(SectionTag, "QN::DOM::SectionTag")
QN_REGISTER_TYPE(Shape, "QN::DOM::Shape")
QN_REGISTER_TYPE(FieldBlock, "QN::DOM::FieldBlock")

QN_REGISTER_RELATION(Block, Paragraph)
QN_REGISTER_RELATION(Block, Table)
QN_REGISTER_RELATION(Block, SectionTag)
QN_REGISTER_RELATION(Block, Shape)
QN_REGISTER_RELATION(Block, FieldBlock)
QN_REGISTER_RELATION(UUIDable, Table)

} // namespace QN::DOM
