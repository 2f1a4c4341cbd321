#pragma once

#include <boost/optional/optional.hpp>

#include <string>

#include "DOM/DOM_UUIDContainer.h"
#include "DOM/PredefinedStyles/DOM_PredefinedStyleName.h"
#include "Utils/Public/Export.h"

/// Names of named styles, and looking for a style by its name.

namespace QN::DOM {

/// The name to show: the text of a predefined name or the custom name; absent for a style without a name. A predefined
/// name of no known style fails the contract "No named text style with such type.".
DOM_API boost::optional<std::string> resolveNamedStyleName(const NamedTextStyle& style);
DOM_API boost::optional<std::string> resolveNamedStyleName(const NamedTableStyle& style);
DOM_API boost::optional<std::string> resolveNamedStyleName(const NamedShapeStyle& style);

/// The predefined name; absent for a custom name, whatever its text, and for none.
DOM_API boost::optional<PredefinedStyleName> resolveNamedStyleType(const NamedTextStyle& style);
DOM_API boost::optional<PredefinedStyleName> resolveNamedStyleType(const NamedTableStyle& style);
DOM_API boost::optional<PredefinedStyleName> resolveNamedStyleType(const NamedShapeStyle& style);

/// The first style of a type in the order of the container, null when there is none. Exists for `NamedTextStyle`. Linear.
///
/// A style that is found must have the `UUID` of its type, or the contract
/// "style->getUUID() == makeUUIDFunctor(styleType)" fails. A type above the last fails the contract
/// "No named text style with such type.".
template <class NamedStyle>
const NamedStyle* findNamedStyle(const UUIDContainer<NamedStyle>& styles, PredefinedStyleName styleType);

/// The first style whose resolved name is `name`, in the order of the container, null when there is none. Exists for
/// `NamedTextStyle`. Linear. A style on the way there with a predefined name above the last fails the contract
/// "No named text style with such type.".
template <class NamedStyle>
const NamedStyle* findNamedStyle(const UUIDContainer<NamedStyle>& styles, const std::string& name);

extern template DOM_API const NamedTextStyle* findNamedStyle(const UUIDContainer<NamedTextStyle>& styles,
                                                             PredefinedStyleName styleType);
extern template DOM_API const NamedTextStyle* findNamedStyle(const UUIDContainer<NamedTextStyle>& styles,
                                                             const std::string& name);

} // namespace QN::DOM
