#pragma once

#include <string>
#include <utility>

#include "DOM/DOM_Run.h"

namespace QN::DOM {

/// A named place in the text. Its text is `SpecialCharacter::Bookmark`, and not the name.
class DOM_API BookmarkRun final : public Reflectable<Run> {
public:
    BookmarkRun() = default;
    explicit BookmarkRun(std::string name) : _bookmarkName(std::move(name)) {}

    const std::string& getBookmarkName() const { return _bookmarkName; }
    void setBookmarkName(std::string name) { _bookmarkName = std::move(name); }

    const std::string& getText() const override;

    QN_VALUE(BookmarkRun)
    QN_CONCRETE(Run)

private:
    std::string _bookmarkName;

    BOOST_DESCRIBE_CLASS(BookmarkRun, (Run), (), (), (_bookmarkName))
};

} // namespace QN::DOM
