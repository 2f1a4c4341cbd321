#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/DOM_TrackChangesInfo.h"
#include "DOM/DOM_TrackChangesType.h"
#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class ParaProps;
class RunProps;

/// A value with the record of who changed it and when: what was done to a run, or what stood there before. The record
/// takes no part in combining properties. Properties behind a pointer compare by value.
template <class V>
class DOM_API TrackedObject {
public:
    TrackedObject() = default;
    TrackedObject(boost::optional<TrackChangesInfo> info, V value)
        : _info(std::move(info)), _value(std::move(value))
    {
    }

    const boost::optional<TrackChangesInfo>& getInfo() const { return _info; }
    void setInfo(boost::optional<TrackChangesInfo> info) { _info = std::move(info); }

    const V& getValue() const { return _value; }
    V& getValue() { return _value; }
    void setValue(V value) { _value = std::move(value); }

    QN_ORDERED_VALUE(TrackedObject)

private:
    boost::optional<TrackChangesInfo> _info;
    V _value{};

    BOOST_DESCRIBE_CLASS(TrackedObject, (), (), (), (_info, _value))
};

extern template class DOM_API TrackedObject<TrackChangesType>;
extern template class DOM_API TrackedObject<UUID>;
extern template class DOM_API TrackedObject<std::shared_ptr<const RunProps>>;
extern template class DOM_API TrackedObject<std::shared_ptr<const ParaProps>>;

QN_DECLARE_OVERRIDE(TrackedObject<TrackChangesType>)
QN_DECLARE_EXCLUDE(TrackedObject<TrackChangesType>)
QN_DECLARE_INTERSECT(TrackedObject<TrackChangesType>)

QN_DECLARE_OVERRIDE(TrackedObject<UUID>)
QN_DECLARE_EXCLUDE(TrackedObject<UUID>)
QN_DECLARE_INTERSECT(TrackedObject<UUID>)

QN_DECLARE_ALGEBRA(TrackedObject<std::shared_ptr<const RunProps>>)
QN_DECLARE_ALGEBRA(TrackedObject<std::shared_ptr<const ParaProps>>)

/// A plain value and its record are replaced whole, by a new copy of `replacement`, where `left` and `right` are equal.
QN_DECLARE_REBASE(std::shared_ptr<const TrackedObject<TrackChangesType>>)
QN_DECLARE_REBASE(std::shared_ptr<const TrackedObject<UUID>>)

/// The same for a pointer that lets its holder change the object; the others may be of either kind.
DOM_API void rebaseProperty(std::shared_ptr<TrackedObject<TrackChangesType>>& target,
                            const std::shared_ptr<const TrackedObject<TrackChangesType>>& replacement,
                            const std::shared_ptr<const TrackedObject<TrackChangesType>>& left,
                            const std::shared_ptr<const TrackedObject<TrackChangesType>>& right);
DOM_API void rebaseProperty(std::shared_ptr<TrackedObject<UUID>>& target,
                            const std::shared_ptr<const TrackedObject<UUID>>& replacement,
                            const std::shared_ptr<const TrackedObject<UUID>>& left,
                            const std::shared_ptr<const TrackedObject<UUID>>& right);

/// The record of a former parent style.
DOM_API std::shared_ptr<TrackedObject<UUID>> makeTrackedParent(const TrackChangesInfo& info,
                                                               const UUID& parentUUID);

} // namespace QN::DOM
