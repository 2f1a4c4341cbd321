#include "DOM/DOM_BookmarkRun.h"

#include "DOM/DOM_SpecialCharacter.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const std::string& BookmarkRun::getText() const
{
    static const std::string Text = getSpecialCharAsUTF8(SpecialCharacter::Bookmark);
    return Text;
}

QN_DEFINE_VALUE(BookmarkRun)
QN_DEFINE_CONCRETE(BookmarkRun, Run)

} // namespace QN::DOM
