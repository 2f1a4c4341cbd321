#pragma once

#include "DOM/Properties/DOM_TabStopProps.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

/// How the entries of one level of a table of contents are set.
class DOM_API TableOfContentsLevelDecorationInfo {
public:
    TableOfContentsLevelDecorationInfo() = default;
    TableOfContentsLevelDecorationInfo(const UUID& levelStyleUUID, TabStopLeader leader, bool showPageNumbers)
        : _levelStyleUUID(levelStyleUUID), _leader(leader), _showPageNumbers(showPageNumbers)
    {
    }

    const UUID& getLevelStyleUUID() const { return _levelStyleUUID; }
    void setLevelStyleUUID(const UUID& uuid) { _levelStyleUUID = uuid; }

    /// What stands before the page number.
    TabStopLeader getLeader() const { return _leader; }
    void setLeader(TabStopLeader leader) { _leader = leader; }

    bool getShowPageNumbers() const { return _showPageNumbers; }
    void setShowPageNumbers(bool showPageNumbers) { _showPageNumbers = showPageNumbers; }

    QN_VALUE(TableOfContentsLevelDecorationInfo)

private:
    UUID _levelStyleUUID;
    TabStopLeader _leader = TabStopLeader::Hyphen;
    bool _showPageNumbers = true;

    BOOST_DESCRIBE_CLASS(TableOfContentsLevelDecorationInfo, (), (), (),
                         (_levelStyleUUID, _leader, _showPageNumbers))
};

/// What a level without a decoration of its own has: no style, hyphens and page numbers. Lives as long as the process.
DOM_API const TableOfContentsLevelDecorationInfo& getDefaultTableOfContentsLevelStyleInfo();

} // namespace QN::DOM
