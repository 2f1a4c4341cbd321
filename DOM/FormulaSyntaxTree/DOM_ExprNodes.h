#pragma once

/// All nodes of formulas.

#include "DOM/FormulaSyntaxTree/DOM_ArgumentsList.h"
#include "DOM/FormulaSyntaxTree/DOM_Array.h"
#include "DOM/FormulaSyntaxTree/DOM_BinaryOp.h"
#include "DOM/FormulaSyntaxTree/DOM_Bool.h"
#include "DOM/FormulaSyntaxTree/DOM_CellAddress.h"
#include "DOM/FormulaSyntaxTree/DOM_CellRange.h"
#include "DOM/FormulaSyntaxTree/DOM_Empty.h"
#include "DOM/FormulaSyntaxTree/DOM_Error.h"
#include "DOM/FormulaSyntaxTree/DOM_FunctionCall.h"
#include "DOM/FormulaSyntaxTree/DOM_Label.h"
#include "DOM/FormulaSyntaxTree/DOM_Number.h"
#include "DOM/FormulaSyntaxTree/DOM_String.h"
#include "DOM/FormulaSyntaxTree/DOM_UnaryOp.h"
