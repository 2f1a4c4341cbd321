#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/DOM_TrackChangesType.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class Hyperlink;
class RunProps;
template <class V>
class TrackedObject;

/// The anonymous style of a run or of a paragraph mark.
class DOM_API RunStyle {
public:
    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> props) { _runProps = std::move(props); }

    /// The named text style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    const std::shared_ptr<const Hyperlink>& getHyperlink() const { return _hyperlink; }
    void setHyperlink(std::shared_ptr<const Hyperlink> hyperlink) { _hyperlink = std::move(hyperlink); }

    /// Whether the run was inserted or removed, and by whom.
    const std::shared_ptr<const TrackedObject<TrackChangesType>>& getTrackedAction() const
    {
        return _trackedAction;
    }
    void setTrackedAction(std::shared_ptr<const TrackedObject<TrackChangesType>> action)
    {
        _trackedAction = std::move(action);
    }

    /// The properties before a tracked change of them.
    const std::shared_ptr<const TrackedObject<std::shared_ptr<const RunProps>>>& getTrackedRunProps() const
    {
        return _trackedRunProps;
    }
    void setTrackedRunProps(std::shared_ptr<const TrackedObject<std::shared_ptr<const RunProps>>> props)
    {
        _trackedRunProps = std::move(props);
    }

    /// The parent before a tracked change of it.
    const std::shared_ptr<const TrackedObject<UUID>>& getTrackedParent() const { return _trackedParent; }
    void setTrackedParent(std::shared_ptr<const TrackedObject<UUID>> parent)
    {
        _trackedParent = std::move(parent);
    }

    /// The comments on the run.
    const std::vector<UUID>& getCommentUUIDs() const { return _commentUUIDs; }
    std::vector<UUID>& getCommentUUIDs() { return _commentUUIDs; }

    /// Whether the style holds any of the three tracked members.
    bool hasTrackedInfo() const { return _trackedAction || _trackedRunProps || _trackedParent; }

    /// Whether the style says nothing. It looks at pointers alone: properties that are present and empty do say
    /// something.
    bool isEmpty() const
    {
        return !_runProps && !_parentUUID && !_hyperlink && !hasTrackedInfo() && _commentUUIDs.empty();
    }

    QN_ORDERED_VALUE(RunStyle)

private:
    std::shared_ptr<const RunProps> _runProps;
    UUID _parentUUID;
    std::shared_ptr<const Hyperlink> _hyperlink;
    std::shared_ptr<const TrackedObject<TrackChangesType>> _trackedAction;
    std::shared_ptr<const TrackedObject<std::shared_ptr<const RunProps>>> _trackedRunProps;
    std::shared_ptr<const TrackedObject<UUID>> _trackedParent;
    std::vector<UUID> _commentUUIDs;

    BOOST_DESCRIBE_CLASS(RunStyle, (), (), (),
                         (_runProps, _parentUUID, _hyperlink, _trackedAction, _trackedRunProps,
                          _trackedParent, _commentUUIDs))
};

} // namespace QN::DOM
