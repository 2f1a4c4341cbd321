#include "DOM/DOM_TrackedObject.h"

#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <class V>
bool TrackedObject<V>::operator==(const TrackedObject& other) const
{
    return areAllMembersEqual(*this, other);
}

template <class V>
std::partial_ordering TrackedObject<V>::compare(const TrackedObject& other, NanOrder nanOrder) const
{
    return compareAllMembers(*this, other, nanOrder);
}

template <class V>
void TrackedObject<V>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <class V>
void TrackedObject<V>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

template class TrackedObject<TrackChangesType>;
template class TrackedObject<UUID>;
template class TrackedObject<std::shared_ptr<const RunProps>>;
template class TrackedObject<std::shared_ptr<const ParaProps>>;

#define QN_DEFINE_VALUE_ALGEBRA(Class)                                                                       \
    void override(Class& target, const Class& other)                                                         \
    {                                                                                                        \
        overrideMember(target.getValue(), other.getValue());                                                 \
    }                                                                                                        \
    void exclude(Class& target, const Class& other)                                                          \
    {                                                                                                        \
        excludeMember(target.getValue(), other.getValue());                                                  \
    }                                                                                                        \
    void intersect(Class& target, const Class& other)                                                        \
    {                                                                                                        \
        intersectMember(target.getValue(), other.getValue());                                                \
    }

#define QN_DEFINE_VALUE_REBASE(Class)                                                                        \
    void rebaseProperty(Class& target, const Class& replacement, const Class& left, const Class& right)      \
    {                                                                                                        \
        rebaseMember(target.getValue(), replacement.getValue(), left.getValue(), right.getValue());          \
    }

/// `Pointee` is the class, const or not.
#define QN_DEFINE_POINTER_REBASE(Pointee, Class)                                                             \
    void rebaseProperty(std::shared_ptr<Pointee>& target, const std::shared_ptr<const Class>& replacement,   \
                        const std::shared_ptr<const Class>& left, const std::shared_ptr<const Class>& right) \
    {                                                                                                        \
        if (arePointersDeeplyEqual(left, right)) {                                                           \
            target = replacement ? std::make_shared<Pointee>(*replacement) : nullptr;                        \
        }                                                                                                    \
    }

QN_DEFINE_VALUE_ALGEBRA(TrackedObject<TrackChangesType>)
QN_DEFINE_VALUE_ALGEBRA(TrackedObject<UUID>)
QN_DEFINE_VALUE_ALGEBRA(TrackedObject<std::shared_ptr<const RunProps>>)
QN_DEFINE_VALUE_ALGEBRA(TrackedObject<std::shared_ptr<const ParaProps>>)

QN_DEFINE_VALUE_REBASE(TrackedObject<std::shared_ptr<const RunProps>>)
QN_DEFINE_VALUE_REBASE(TrackedObject<std::shared_ptr<const ParaProps>>)

QN_DEFINE_POINTER_REBASE(const TrackedObject<TrackChangesType>, TrackedObject<TrackChangesType>)
QN_DEFINE_POINTER_REBASE(TrackedObject<TrackChangesType>, TrackedObject<TrackChangesType>)
QN_DEFINE_POINTER_REBASE(const TrackedObject<UUID>, TrackedObject<UUID>)
QN_DEFINE_POINTER_REBASE(TrackedObject<UUID>, TrackedObject<UUID>)

#undef QN_DEFINE_VALUE_ALGEBRA
#undef QN_DEFINE_VALUE_REBASE
#undef QN_DEFINE_POINTER_REBASE

std::shared_ptr<TrackedObject<UUID>> makeTrackedParent(const TrackChangesInfo& info, const UUID& parentUUID)
{
    return std::make_shared<TrackedObject<UUID>>(info, parentUUID);
}

} // namespace QN::DOM
