#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class PresetGeometry;
class CustomGeometry;

/// What outline a shape has, as data: no point is computed here.
class DOM_API Geometry : public Clonable<Geometry>, public Reflectable<> {
public:
    using Types = TypeList<PresetGeometry, CustomGeometry>;
    QN_FAMILY_ROOT(Geometry)
    QN_SERIALIZE(Geometry)

    BOOST_DESCRIBE_CLASS(Geometry, (), (), (), ())
};

/// Of one dynamic class and equal by its `==`.
DOM_API bool areDeeplyEqual(const Geometry& left, const Geometry& right);

/// Keeps the unit that registers the family linked in: made wherever geometries are persisted.
class DOM_API GeometriesDynamicInitEnforcer {
public:
    GeometriesDynamicInitEnforcer();
};

} // namespace QN::DOM
