#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/Properties/DOM_Fill.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Shapes/DOM_Effect.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

/// The lists of fills, lines and effects of a theme, to which a `ThemeFill` or a `ThemeLineProps` refers by position.
/// The placeholder in their colours stands for the colour that the reference gives. Copies are deep, and equality
/// compares the lists element by element through the pointers.
///
/// A null element of any list can come from a file. It is copied, compared and saved as it stands; reading it through the
/// const form of a getter fails the contract "plainPtr".
class DOM_API FormatScheme {
public:
    FormatScheme() = default;
    QN_DEEP_COPY(FormatScheme)

    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

    ReadonlyPtrVector<Fill> getFills() const { return _fills; }
    std::vector<std::unique_ptr<Fill>>& getFills() { return _fills; }

    ReadonlyPtrVector<RegularLineProps> getLinePropsContainer() const { return _lineProps; }
    std::vector<std::unique_ptr<RegularLineProps>>& getLinePropsContainer() { return _lineProps; }

    ReadonlyPtrVector<Effect> getEffects() const { return _effects; }
    std::vector<std::unique_ptr<Effect>>& getEffects() { return _effects; }

    ReadonlyPtrVector<Fill> getBackgroundFills() const { return _backgroundFills; }
    std::vector<std::unique_ptr<Fill>>& getBackgroundFills() { return _backgroundFills; }

    /// Lines stand in a file as plain pointers, without the name of their class.
    QN_VALUE(FormatScheme)

private:
    std::string _name;
    std::vector<std::unique_ptr<Fill>> _fills;
    std::vector<std::unique_ptr<RegularLineProps>> _lineProps;
    std::vector<std::unique_ptr<Effect>> _effects;
    std::vector<std::unique_ptr<Fill>> _backgroundFills;

    BOOST_DESCRIBE_CLASS(FormatScheme, (), (), (), (_name, _fills, _lineProps, _effects, _backgroundFills))
};

} // namespace QN::DOM
