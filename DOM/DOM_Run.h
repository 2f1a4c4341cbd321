#pragma once

#include <string>

#include "DOM/Properties/DOM_RunStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class TextRun;
class TabRun;
class BreakRun;
class DrawingRun;
class BookmarkRun;
class FieldRun;
class AnchorRun;

/// A stretch of inline content in a paragraph: text, or one inline object, which takes one code point of the text.
/// Copies share the style.
class DOM_API Run : public Clonable<Run>, public Reflectable<> {
public:
    using Types = TypeList<TextRun, TabRun, BreakRun, DrawingRun, BookmarkRun, FieldRun, AnchorRun>;
    QN_FAMILY_ROOT(Run)

    virtual const std::string& getText() const = 0;

    /// The style behind the handle, or the one empty style of the process where the handle is null.
    const RunStyle& getStyle() const { return derefSharedStyle(_style); }
    const SharedStylePtr<RunStyle>& getSharedStyle() const { return _style; }
    SharedStylePtr<RunStyle>& getSharedStyle() { return _style; }

    /// Compares the styles, by value where neither handle is null; a null handle is unequal to one of an empty style.
    /// `areDeeplyEqual` compares whole runs.
    QN_VALUE(Run)

private:
    SharedStylePtr<RunStyle> _style;

    BOOST_DESCRIBE_CLASS(Run, (), (), (), (_style))
};

DOM_API bool areDeeplyEqual(const Run& left, const Run& right);

} // namespace QN::DOM
