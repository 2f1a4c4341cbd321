#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/DOM_DateTime.h"
#include "DOM/DOM_UserInfo.h"

namespace QN::DOM {

/// Who did something and when. Either can be unknown.
class DOM_API TrackChangesInfo {
public:
    TrackChangesInfo() = default;
    TrackChangesInfo(boost::optional<UserInfo> author, boost::optional<DateTime> dateTime)
        : _userInfo(std::move(author)), _dateTime(dateTime)
    {
    }

    const boost::optional<UserInfo>& getAuthorInfo() const { return _userInfo; }
    void setAuthorInfo(boost::optional<UserInfo> author) { _userInfo = std::move(author); }

    const boost::optional<DateTime>& getDateTime() const { return _dateTime; }
    void setDateTime(boost::optional<DateTime> dateTime) { _dateTime = dateTime; }

    QN_ORDERED_VALUE(TrackChangesInfo)

private:
    boost::optional<UserInfo> _userInfo;
    boost::optional<DateTime> _dateTime;

    BOOST_DESCRIBE_CLASS(TrackChangesInfo, (), (), (), (_userInfo, _dateTime))
};

/// Whether the authors are the same, or both unknown, whatever the dates.
DOM_API bool areSameWithoutDate(const TrackChangesInfo& left, const TrackChangesInfo& right);

} // namespace QN::DOM
