#include "DOM/DOM_TableOfContentsInfo.h"

#include <algorithm>

#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(TableOfContentsInfo)

const TableOfContentsInfo::StyleLevelInfo* TableOfContentsInfo::findStyleLevel(const UUID& uuid) const
{
    const std::vector<StyleLevelInfo>& levels = getHeadingStylesLevels();
    const auto entry = std::find_if(levels.begin(), levels.end(),
                                    [&](const StyleLevelInfo& candidate) { return candidate.uuid == uuid; });
    return entry == levels.end() ? nullptr : &*entry;
}

TableOfContentsInfo makeDefaultTableOfContentsInfo(const Styles& styles)
{
    struct Level {
        PredefinedStyleName heading;
        PredefinedStyleName contents;
    };
    constexpr Level Levels[] = {
        {PredefinedStyleName::Heading1, PredefinedStyleName::Contents1},
        {PredefinedStyleName::Heading2, PredefinedStyleName::Contents2},
        {PredefinedStyleName::Heading3, PredefinedStyleName::Contents3},
    };

    TableOfContentsInfo info;
    std::uint64_t number = 0;
    for (const Level& level : Levels) {
        info.getHeadingStylesLevels().push_back({getPredefinedTextStyleUUID(styles, level.heading), number});
        info.getLevelsStyleInfo().emplace(
            number, TableOfContentsLevelDecorationInfo(getPredefinedTextStyleUUID(styles, level.contents),
                                                       TabStopLeader::Hyphen, true));
        ++number;
    }
    return info;
}

} // namespace QN::DOM
