#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class ParaProps;
class RunProps;

/// The anonymous style of a level of a numbered list: what holds for its paragraphs and for its marker's characters.
class DOM_API NumberingLevelStyle {
public:
    NumberingLevelStyle() = default;
    NumberingLevelStyle(std::shared_ptr<const ParaProps> paraProps, std::shared_ptr<const RunProps> runProps)
        : _paraProps(std::move(paraProps)), _runProps(std::move(runProps))
    {
    }

    const std::shared_ptr<const ParaProps>& getParaProps() const { return _paraProps; }
    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }

    /// Whether the style says nothing. It looks at pointers alone: properties that are present and empty do say
    /// something.
    bool isEmpty() const { return !_paraProps && !_runProps; }

    QN_ORDERED_VALUE(NumberingLevelStyle)

private:
    std::shared_ptr<const ParaProps> _paraProps;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(NumberingLevelStyle, (), (), (), (_paraProps, _runProps))
};

QN_DECLARE_OVERRIDE(NumberingLevelStyle)
QN_DECLARE_EXCLUDE(NumberingLevelStyle)

} // namespace QN::DOM
