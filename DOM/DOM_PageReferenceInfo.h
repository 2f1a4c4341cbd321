#pragma once

#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A field that shows the page of a bookmark.
class DOM_API PageReferenceInfo {
public:
    PageReferenceInfo() = default;
    explicit PageReferenceInfo(std::string bookmarkName) : _referredBookmarkName(std::move(bookmarkName)) {}

    const std::string& getReferredBookmarkName() const { return _referredBookmarkName; }

    QN_VALUE(PageReferenceInfo)

private:
    std::string _referredBookmarkName;

    BOOST_DESCRIBE_CLASS(PageReferenceInfo, (), (), (), (_referredBookmarkName))
};

} // namespace QN::DOM
