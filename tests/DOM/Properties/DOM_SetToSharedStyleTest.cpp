#include "DOM/Properties/DOM_SetToSharedStyle.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Properties/StyleSamples.h"

namespace QN::DOM::SetToSharedStyleTest {

using namespace Test;
using SetToSharedStyleDetails::setToSharedStyleVariadicImpl;

TEST(SetToSharedStyleTest, ANullHandleGetsAStyleThatHasOnlyTheNewValue)
{
    const SharedObjectFactory factory;
    SharedStylePtr<CellStyle> style;
    setToSharedStyleVariadicImpl(factory, style, &CellStyle::setNoteUUID, SomeUUID);
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->get(), with<CellStyle>([](CellStyle& s) { s.setNoteUUID(SomeUUID); }));
    EXPECT_TRUE(derefSharedStyle(SharedStylePtr<CellStyle>()).isEmpty());
}

TEST(SetToSharedStyleTest, TheOtherMembersStayAndTheFormerStyleIsLeftAsItWas)
{
    const SharedObjectFactory factory;
    auto style = factory.create(withParent<CellStyle>(OtherUUID));
    const auto former = style;
    setToSharedStyleVariadicImpl(factory, style, &CellStyle::setNoteUUID, SomeUUID);
    EXPECT_EQ(style->get(), with<CellStyle>([](CellStyle& s) {
                  s.setParentUUID(OtherUUID);
                  s.setNoteUUID(SomeUUID);
              }));
    EXPECT_EQ(former->get(), withParent<CellStyle>(OtherUUID));
}

TEST(SetToSharedStyleTest, TheNewValueMayStandInTheStyleThatIsReplaced)
{
    const SharedObjectFactory factory;
    auto style = share(withParent<CellStyle>(OtherUUID));
    setToSharedStyleVariadicImpl(factory, style, &CellStyle::setNoteUUID, style->get().getParentUUID());
    EXPECT_EQ(style->get().getNoteUUID(), OtherUUID);
}

TEST(SetToSharedStyleTest, TheResultIsInterned)
{
    const SharedObjectFactory factory;
    SharedStylePtr<CellStyle> left;
    SharedStylePtr<CellStyle> right;
    setToSharedStyleVariadicImpl(factory, left, &CellStyle::setNoteUUID, SomeUUID);
    setToSharedStyleVariadicImpl(factory, right, &CellStyle::setNoteUUID, SomeUUID);
    EXPECT_EQ(left, right);
    setToSharedStyleVariadicImpl(factory, left, &CellStyle::setNoteUUID, UUID());
    EXPECT_EQ(left, factory.create(CellStyle()));
}

TEST(SetToSharedStyleTest, SeveralValuesAreSetAtOnce)
{
    const SharedObjectFactory factory;
    SharedStylePtr<RunStyle> style;
    setToSharedStyleVariadicImpl(factory, style, &RunStyle::setParentUUID, SomeUUID, &RunStyle::setRunProps,
                                 makeRunProps(1.0F));
    EXPECT_EQ(style->get(), with<RunStyle>([](RunStyle& s) {
                  s.setParentUUID(SomeUUID);
                  s.setRunProps(makeRunProps(1.0F));
              }));
    setToSharedStyleVariadicImpl(factory, style, &RunStyle::setParentUUID, UUID(), &RunStyle::setRunProps,
                                 nullptr);
    EXPECT_EQ(style, nullptr);
}

} // namespace QN::DOM::SetToSharedStyleTest
