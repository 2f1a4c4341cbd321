#include "DOM/DOM_AnchorRun.h"
#include "DOM/DOM_BookmarkRun.h"
#include "DOM/DOM_BreakRun.h"
#include "DOM/DOM_DrawingRun.h"
#include "DOM/DOM_FieldRun.h"
#include "DOM/DOM_Run.h"
#include "DOM/DOM_TabRun.h"
#include "DOM/DOM_TextRun.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

/// What knows each kind, apart from the root that each kind is built on.
namespace QN::DOM {

QN_DEFINE_DEEP_EQUALITY(Run)

QN_REGISTER_TYPE(TextRun, "QN::DOM::TextRun")
QN_REGISTER_TYPE(TabRun, "QN::DOM::TabRun")
QN_REGISTER_TYPE(BreakRun, "QN::DOM::BreakRun")
QN_REGISTER_TYPE(DrawingRun, "QN::DOM::DrawingRun")
QN_REGISTER_TYPE(BookmarkRun, "QN::DOM::BookmarkRun")
QN_REGISTER_TYPE(FieldRun, "QN::DOM::FieldRun")
QN_REGISTER_TYPE(AnchorRun, "QN::DOM::AnchorRun")

QN_REGISTER_RELATION(Run, TextRun)
QN_REGISTER_RELATION(Run, TabRun)
QN_REGISTER_RELATION(Run, BreakRun)
QN_REGISTER_RELATION(Run, DrawingRun)
QN_REGISTER_RELATION(Run, BookmarkRun)
QN_REGISTER_RELATION(Run, FieldRun)
QN_REGISTER_RELATION(Run, AnchorRun)

} // namespace QN::DOM
