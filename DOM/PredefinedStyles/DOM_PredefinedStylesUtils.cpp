#include "DOM/PredefinedStyles/DOM_PredefinedStylesUtils.h"

#include <boost/variant/get.hpp>

#include <algorithm>

#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"
#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "Utils/Public/Assert.h"

namespace QN::DOM {

namespace {

boost::optional<PredefinedStyleName> resolveType(const NamedStyleName& name)
{
    if (const auto* const type = boost::get<PredefinedStyleName>(&name)) {
        return *type;
    }
    return boost::none;
}

boost::optional<std::string> resolveName(const NamedStyleName& name)
{
    if (const auto type = resolveType(name)) {
        return makePredefinedTextStyleName(*type);
    }
    if (const auto* const text = boost::get<std::string>(&name)) {
        return *text;
    }
    return boost::none;
}

template <class NamedStyle, class Predicate>
const NamedStyle* findFirst(const UUIDContainer<NamedStyle>& styles, Predicate predicate)
{
    const auto found = std::find_if(styles.begin(), styles.end(), predicate);
    return found == styles.end() ? nullptr : &*found;
}

} // namespace

boost::optional<std::string> resolveNamedStyleName(const NamedTextStyle& style)
{
    return resolveName(style.getName());
}

boost::optional<std::string> resolveNamedStyleName(const NamedTableStyle& style)
{
    return resolveName(style.getName());
}

boost::optional<std::string> resolveNamedStyleName(const NamedShapeStyle& style)
{
    return resolveName(style.getName());
}

boost::optional<PredefinedStyleName> resolveNamedStyleType(const NamedTextStyle& style)
{
    return resolveType(style.getName());
}

boost::optional<PredefinedStyleName> resolveNamedStyleType(const NamedTableStyle& style)
{
    return resolveType(style.getName());
}

boost::optional<PredefinedStyleName> resolveNamedStyleType(const NamedShapeStyle& style)
{
    return resolveType(style.getName());
}

template <class NamedStyle>
const NamedStyle* findNamedStyle(const UUIDContainer<NamedStyle>& styles, PredefinedStyleName styleType)
{
    const UUID uuid = makePredefinedTextStyleUUID(styleType);
    const NamedStyle* const style = findFirst(
        styles, [&](const NamedStyle& candidate) { return resolveNamedStyleType(candidate) == styleType; });
    QN_CONTRACT(style == nullptr || style->getUUID() == uuid,
                "DOM/PredefinedStyles/DOM_PredefinedStylesUtils", 49,
                "style->getUUID() == makeUUIDFunctor(styleType)");
    return style;
}

template <class NamedStyle>
const NamedStyle* findNamedStyle(const UUIDContainer<NamedStyle>& styles, const std::string& name)
{
    return findFirst(styles,
                     [&](const NamedStyle& candidate) { return resolveNamedStyleName(candidate) == name; });
}

template const NamedTextStyle* findNamedStyle(const UUIDContainer<NamedTextStyle>& styles,
                                              PredefinedStyleName styleType);
template const NamedTextStyle* findNamedStyle(const UUIDContainer<NamedTextStyle>& styles,
                                              const std::string& name);

} // namespace QN::DOM
