#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class ParaProps;
class RunProps;
template <class V>
class TrackedObject;

/// The anonymous style of a paragraph.
class DOM_API ParagraphStyle {
public:
    const std::shared_ptr<const ParaProps>& getParaProps() const { return _paraProps; }
    void setParaProps(std::shared_ptr<const ParaProps> props) { _paraProps = std::move(props); }

    /// What holds for the characters of all the paragraph.
    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> props) { _runProps = std::move(props); }

    /// The named text style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    /// The properties before a tracked change of them.
    const std::shared_ptr<const TrackedObject<std::shared_ptr<const ParaProps>>>& getTrackedParaProps() const
    {
        return _trackedParaProps;
    }
    void setTrackedParaProps(std::shared_ptr<const TrackedObject<std::shared_ptr<const ParaProps>>> props)
    {
        _trackedParaProps = std::move(props);
    }

    /// The parent before a tracked change of it.
    const std::shared_ptr<const TrackedObject<UUID>>& getTrackedParent() const { return _trackedParent; }
    void setTrackedParent(std::shared_ptr<const TrackedObject<UUID>> parent)
    {
        _trackedParent = std::move(parent);
    }

    /// Whether the style says nothing. It looks at pointers alone: properties that are present and empty do say
    /// something.
    bool isEmpty() const
    {
        return !_paraProps && !_runProps && !_parentUUID && !_trackedParaProps && !_trackedParent;
    }

    QN_ORDERED_VALUE(ParagraphStyle)

private:
    std::shared_ptr<const ParaProps> _paraProps;
    std::shared_ptr<const RunProps> _runProps;
    UUID _parentUUID;
    std::shared_ptr<const TrackedObject<std::shared_ptr<const ParaProps>>> _trackedParaProps;
    std::shared_ptr<const TrackedObject<UUID>> _trackedParent;

    BOOST_DESCRIBE_CLASS(ParagraphStyle, (), (), (),
                         (_paraProps, _runProps, _parentUUID, _trackedParaProps, _trackedParent))
};

/// The tracked members take no part.
QN_DECLARE_OVERRIDE(ParagraphStyle)
QN_DECLARE_EXCLUDE(ParagraphStyle)

} // namespace QN::DOM
