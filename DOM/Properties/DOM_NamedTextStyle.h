#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_NamedStyleName.h"
#include "DOM/Properties/DOM_NumberingRef.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

class ParaProps;
class RunProps;

/// A style of paragraphs and runs that a document knows by name and `UUID`. Nothing checks that its parent exists, nor that
/// the parents make no circle.
class DOM_API NamedTextStyle final : public Reflectable<UUIDable> {
public:
    NamedTextStyle() = default;
    explicit NamedTextStyle(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}
    QN_DEEP_COPY(NamedTextStyle)
    ~NamedTextStyle() override = default;

    const NamedStyleName& getName() const { return _name; }
    void setName(NamedStyleName name) { _name = std::move(name); }

    const std::shared_ptr<const ParaProps>& getParaProps() const { return _paraProps; }
    void setParaProps(std::shared_ptr<const ParaProps> props) { _paraProps = std::move(props); }

    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> props) { _runProps = std::move(props); }

    /// The named text style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    /// The list that paragraphs of the style join; null for none.
    const std::unique_ptr<NumberingRef>& getNumRef() const { return _numRef; }
    std::unique_ptr<NumberingRef>& getNumRef() { return _numRef; }

    /// The style of a new paragraph after one of this style; nil for the same.
    const UUID& getNextParagraphStyleUUID() const { return _nextParagraphStyleUUID; }
    void setNextParagraphStyleUUID(const UUID& uuid) { _nextParagraphStyleUUID = uuid; }

    QN_VALUE(NamedTextStyle)

private:
    NamedStyleName _name;
    std::shared_ptr<const ParaProps> _paraProps;
    std::shared_ptr<const RunProps> _runProps;
    UUID _parentUUID;
    std::unique_ptr<NumberingRef> _numRef;
    UUID _nextParagraphStyleUUID;

    BOOST_DESCRIBE_CLASS(NamedTextStyle, (UUIDable), (), (),
                         (_name, _paraProps, _runProps, _parentUUID, _numRef, _nextParagraphStyleUUID))
};

} // namespace QN::DOM
