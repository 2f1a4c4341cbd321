#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class NoFill;
class SolidFill;
class GradientFill;
class BlipFill;
class PatternFill;
class ThemeFill;

/// Whatever can paint an area.
class DOM_API Fill : public Clonable<Fill>, public Reflectable<> {
public:
    using Types = TypeList<NoFill, SolidFill, GradientFill, BlipFill, PatternFill, ThemeFill>;

    QN_FAMILY_ROOT(Fill)
    QN_SERIALIZE(Fill)

    BOOST_DESCRIBE_CLASS(Fill, (), (), (), ())
};

/// Whether two fills are of one class and equal.
DOM_API bool areDeeplyEqual(const Fill& left, const Fill& right);

/// Fills of different classes order by their place in `Fill::Types`.
DOM_API bool areDeeplyLess(const Fill& left, const Fill& right);
DOM_API std::partial_ordering compareDeeply(const Fill& left, const Fill& right, NanOrder nanOrder);

} // namespace QN::DOM
