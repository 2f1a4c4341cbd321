#include "DOM/Properties/DOM_RowColumnStyle.h"

#include <gtest/gtest.h>

#include <memory>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::RowColumnStyleTest {

using namespace Test;

template <class T>
class RowColumnStyleTest : public ::testing::Test {
};

using Forms = ::testing::Types<RowStyle, ColumnStyle>;
TYPED_TEST_SUITE(RowColumnStyleTest, Forms);

TYPED_TEST(RowColumnStyleTest, SaysNothingByDefault)
{
    const TypeParam style;
    EXPECT_EQ(style.getSharedDefaultCellStyle(), nullptr);
    EXPECT_EQ(style.getProps(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_TRUE(style.isEmpty());
    EXPECT_EQ(toJson(style), R"({"_defaultCellStyle":{"id":0},"_props":{"ptr_wrapper":{"id":0}},)"
                             R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TYPED_TEST(RowColumnStyleTest, TheDefaultCellStyleIsTheEmptyOneWhereThereIsNone)
{
    const TypeParam style;
    const TypeParam other;
    EXPECT_TRUE(style.getDefaultCellStyle().isEmpty());
    EXPECT_EQ(&style.getDefaultCellStyle(), &other.getDefaultCellStyle());
}

TYPED_TEST(RowColumnStyleTest, ASetMemberIsReadBackAndPersists)
{
    using Props = typename std::remove_cvref_t<decltype(TypeParam().getProps())>::element_type;
    const auto style = with<TypeParam>([](TypeParam& s) {
        s.getSharedDefaultCellStyle() = share(withParent<CellStyle>(OtherUUID));
        s.setProps(std::make_shared<Props>());
        s.setParentUUID(SomeUUID);
    });
    EXPECT_EQ(style.getDefaultCellStyle(), withParent<CellStyle>(OtherUUID));
    EXPECT_EQ(&style.getDefaultCellStyle(), &style.getSharedDefaultCellStyle()->get());
    EXPECT_EQ(*style.getProps(), Props());
    EXPECT_EQ(style.getParentUUID(), SomeUUID);
    expectPersists(style);
    expectCopiesAndMoves(style);
}

TYPED_TEST(RowColumnStyleTest, AnySingleMemberMakesItNonEmpty)
{
    using Props = typename std::remove_cvref_t<decltype(TypeParam().getProps())>::element_type;
    EXPECT_FALSE(with<TypeParam>([](TypeParam& s) {
                     s.getSharedDefaultCellStyle() = shareEmpty<CellStyle>();
                 }).isEmpty());
    EXPECT_FALSE(with<TypeParam>([](TypeParam& s) { s.setProps(std::make_shared<Props>()); }).isEmpty());
    EXPECT_FALSE(withParent<TypeParam>(SomeUUID).isEmpty());
}

TYPED_TEST(RowColumnStyleTest, OrdersByTheDefaultCellStyleThenThePropertiesThenTheParent)
{
    using Props = typename std::remove_cvref_t<decltype(TypeParam().getProps())>::element_type;
    const auto withCellStyle = [](CellStyle cellStyle) {
        return with<TypeParam>(
            [&](TypeParam& s) { s.getSharedDefaultCellStyle() = share(std::move(cellStyle)); });
    };
    expectAscending<TypeParam>({
        TypeParam(),
        withParent<TypeParam>(SomeUUID),
        with<TypeParam>([](TypeParam& s) { s.setProps(std::make_shared<Props>()); }),
        withCellStyle(CellStyle()),
        withCellStyle(withParent<CellStyle>(SomeUUID)),
        withCellStyle(withParent<CellStyle>(OtherUUID)),
    });
}

TEST(RowColumnStyleFormsTest, ThePropertiesAreThoseOfTheForm)
{
    expectAscending<RowStyle>({
        with<RowStyle>([](RowStyle& s) { s.setProps(makeRowProps(false)); }),
        with<RowStyle>([](RowStyle& s) { s.setProps(makeRowProps(true)); }),
    });
    expectAscending<ColumnStyle>({
        with<ColumnStyle>([](ColumnStyle& s) { s.setProps(makeColumnProps(1.0F)); }),
        with<ColumnStyle>([](ColumnStyle& s) { s.setProps(makeColumnProps(2.0F)); }),
    });
    expectPersists(with<RowStyle>([](RowStyle& s) { s.setProps(makeRowProps(true)); }));
    expectPersists(with<ColumnStyle>([](ColumnStyle& s) { s.setProps(makeColumnProps(2.0F)); }));
}

} // namespace QN::DOM::RowColumnStyleTest
