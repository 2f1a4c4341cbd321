#pragma once

#include <boost/container/map.hpp>
#include <boost/optional/optional.hpp>

#include <cstdint>
#include <utility>
#include <vector>

#include "DOM/DOM_TableOfContentsLevelDecorationInfo.h"
#include "DOM/Tables/DOM_RareValue.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class Styles;

/// From what a table of contents is made, and how its levels are set.
class DOM_API TableOfContentsInfo {
public:
    /// A named text style whose paragraphs are entries of a level.
    struct StyleLevelInfo {
        UUID uuid;
        std::uint64_t level = 0;

        friend bool operator==(const StyleLevelInfo&, const StyleLevelInfo&) = default;

        BOOST_DESCRIBE_CLASS(StyleLevelInfo, (), (uuid, level), (), ())
    };
    /// The first and the last outline level whose paragraphs are entries.
    using OutlineLevelsRange = std::pair<std::uint64_t, std::uint64_t>;
    using LevelsStyleInfo = boost::container::map<std::uint64_t, TableOfContentsLevelDecorationInfo>;

    /// Valid until it is set again.
    const boost::optional<OutlineLevelsRange>& getOutlineLevelsRange() const
    {
        return _outlineLevelsRange.get();
    }
    void setOutlineLevelsRange(boost::optional<OutlineLevelsRange> range) { _outlineLevelsRange.set(range); }

    // What a const form gives is valid until the next change of the list or map, by whichever way. A non-const form makes
    // its storage even if it stays empty.

    const std::vector<StyleLevelInfo>& getHeadingStylesLevels() const { return _headingStylesLevels.get(); }
    std::vector<StyleLevelInfo>& getHeadingStylesLevels() { return _headingStylesLevels.edit(); }

    const LevelsStyleInfo& getLevelsStyleInfo() const { return _levelsStyleInfo.get(); }
    LevelsStyleInfo& getLevelsStyleInfo() { return _levelsStyleInfo.edit(); }

    /// The first entry of a style, null for none. A linear search; the pointer is good until the list of heading styles
    /// changes.
    const StyleLevelInfo* findStyleLevel(const UUID& uuid) const;

    /// The order of the heading styles counts.
    QN_VALUE(TableOfContentsInfo)

private:
    // Small, since each field block has room for it.
    RareValue<boost::optional<OutlineLevelsRange>> _outlineLevelsRange;
    RareValue<std::vector<StyleLevelInfo>> _headingStylesLevels;
    RareValue<LevelsStyleInfo> _levelsStyleInfo;

    BOOST_DESCRIBE_CLASS(TableOfContentsInfo, (), (), (),
                         (_outlineLevelsRange, _headingStylesLevels, _levelsStyleInfo))
};

/// The contents that a new document gets: three levels of headings, however many there are. Styles that the store lacks
/// stand in it with a nil `UUID`. A style of one of its types under another `UUID` than the type's fails the contract of
/// `findNamedStyle`.
DOM_API TableOfContentsInfo makeDefaultTableOfContentsInfo(const Styles& styles);

} // namespace QN::DOM
