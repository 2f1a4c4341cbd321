#include "DOM/Properties/DOM_StyleFromContainer.h"

#include <gtest/gtest.h>

#include "DOM/DOM_Paragraph.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/StyleSamples.h"

namespace QN::DOM::StyleFromContainerTest {

using namespace Test;

TEST(StyleFromContainerTest, AParagraphGivesItsStyleOrTheEmptyOne)
{
    Paragraph paragraph;
    EXPECT_EQ(&getStyleFromContainer(paragraph), &paragraph.getStyle());
    EXPECT_TRUE(getStyleFromContainer(paragraph).isEmpty());
    paragraph.getSharedStyle() = share(withParent<ParagraphStyle>(SomeUUID));
    EXPECT_EQ(&getStyleFromContainer(paragraph), &paragraph.getSharedStyle()->get());
}

TEST(StyleFromContainerTest, ANamedStyleGivesItself)
{
    const NamedTextStyle style;
    EXPECT_EQ(&getStyleFromContainer(style), &style);
}

} // namespace QN::DOM::StyleFromContainerTest
