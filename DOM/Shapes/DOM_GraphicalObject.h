#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/IDHolder.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class Picture;
class ChartSpace;

/// What a `Frame` can show. Each object has an identity for the run of the process, which its copies share.
class DOM_API GraphicalObject : public Clonable<GraphicalObject>, public Reflectable<IDHolder> {
public:
    using Types = TypeList<Picture, ChartSpace>;

    QN_FAMILY_ROOT(GraphicalObject)
    QN_SERIALIZE(GraphicalObject)

    BOOST_DESCRIBE_CLASS(GraphicalObject, (), (), (), ())
};

/// Whether two objects are of one class and equal, whatever their identities.
DOM_API bool areDeeplyEqual(const GraphicalObject& left, const GraphicalObject& right);

} // namespace QN::DOM
