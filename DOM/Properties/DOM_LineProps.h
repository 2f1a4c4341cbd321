#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class RegularLineProps;
class ThemeLineProps;

// The usual widths, for those who make lines. The model does not read them.

inline constexpr float ThinLineWidth = 0.0576F;
inline constexpr float MediumLineWidth = 1.00008F;
inline constexpr float ThickLineWidth = 2.49696F;

/// What paints a line: a border, an outline.
class DOM_API LineProps : public Clonable<LineProps>, public Reflectable<> {
public:
    using Types = TypeList<RegularLineProps, ThemeLineProps>;

    QN_FAMILY_ROOT(LineProps)
    QN_SERIALIZE(LineProps)

    BOOST_DESCRIBE_CLASS(LineProps, (), (), (), ())
};

/// Whether two lines are of one class and equal.
DOM_API bool areDeeplyEqual(const LineProps& left, const LineProps& right);

/// Lines of different classes order by their place in `LineProps::Types`.
DOM_API bool areDeeplyLess(const LineProps& left, const LineProps& right);
DOM_API std::partial_ordering compareDeeply(const LineProps& left, const LineProps& right, NanOrder nanOrder);

} // namespace QN::DOM
