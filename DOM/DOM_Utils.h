#pragma once

/// The free functions on texts and trees: plain text to paragraphs and back, searches in lists of blocks, the names of tables,
/// and the cleaning of a tree that leaves collaborative editing.

#include "DOM/Utils/DOM_BlockUtils.h"
#include "DOM/Utils/DOM_CleanDOM.h"
#include "DOM/Utils/DOM_TableNameUtils.h"
#include "DOM/Utils/DOM_TextUtils.h"
