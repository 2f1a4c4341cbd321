#include "DOM/Properties/DOM_SharedObjectFactory.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_ShapeProps.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::SharedObjectFactoryTest {

using namespace Test;

namespace {

template <class T>
T makeNonEmpty()
{
    return withParent<T>(SomeUUID);
}

template <>
NumberingLevelStyle makeNonEmpty()
{
    return NumberingLevelStyle(makeParaProps(1.0F), nullptr);
}

} // namespace

template <class T>
class SharedObjectFactoryTest : public ::testing::Test {
};

using StyleTypes = ::testing::Types<CellStyle, ColumnStyle, RowStyle, ParagraphStyle, RunStyle, ShapeStyle,
                                    TableStyle, NumberingLevelStyle>;
TYPED_TEST_SUITE(SharedObjectFactoryTest, StyleTypes);

static_assert(std::is_nothrow_move_constructible_v<SharedObjectFactory>);
static_assert(std::is_nothrow_move_assignable_v<SharedObjectFactory>);

TYPED_TEST(SharedObjectFactoryTest, EqualStylesOfATypeAreOneObject)
{
    const SharedObjectFactory factory;
    const SharedStylePtr<TypeParam> style = factory.create(makeNonEmpty<TypeParam>());
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->get(), makeNonEmpty<TypeParam>());
    EXPECT_EQ(factory.create(makeNonEmpty<TypeParam>()), style);
}

TYPED_TEST(SharedObjectFactoryTest, AnEmptyStyleIsNullUnlessItIsThatOfACell)
{
    const SharedObjectFactory factory;
    const SharedStylePtr<TypeParam> style = factory.create(TypeParam());
    EXPECT_EQ(style != nullptr, (std::is_same_v<TypeParam, CellStyle>));
    EXPECT_EQ(factory.create(TypeParam()), style);
}

TYPED_TEST(SharedObjectFactoryTest, ACopySharesAndAMoveTakesOver)
{
    SharedObjectFactory source;
    const auto style = source.create(makeNonEmpty<TypeParam>());
    SharedObjectFactory copy(source);
    EXPECT_EQ(copy.create(makeNonEmpty<TypeParam>()), style);
    SharedObjectFactory assigned;
    assigned = source;
    EXPECT_EQ(assigned.create(makeNonEmpty<TypeParam>()), style);
    const SharedObjectFactory& itself = assigned;
    assigned = itself;
    EXPECT_EQ(assigned.create(makeNonEmpty<TypeParam>()), style);
    const SharedObjectFactory moved(std::move(source));
    EXPECT_EQ(moved.create(makeNonEmpty<TypeParam>()), style);
    assigned = SharedObjectFactory();
    EXPECT_NE(assigned.create(makeNonEmpty<TypeParam>()), style);
}

TYPED_TEST(SharedObjectFactoryTest, ALoadEmptiesThePool)
{
    SharedObjectFactory factory;
    const auto style = factory.create(makeNonEmpty<TypeParam>());
    loadJson("{}", factory);
    EXPECT_NE(factory.create(makeNonEmpty<TypeParam>()), style);
}

TYPED_TEST(SharedObjectFactoryTest, AStyleThatIsLoadedDoesNotEnterThePool)
{
    const SharedObjectFactory factory;
    const auto style = factory.create(makeNonEmpty<TypeParam>());
    const auto loaded = fromJson<SharedStylePtr<TypeParam>>(toJson(style));
    EXPECT_EQ(loaded->get(), style->get());
    EXPECT_NE(loaded, style);
    EXPECT_EQ(factory.create(loaded->get()), style);
}

TEST(SharedObjectFactoryPersistenceTest, WritesNoKeysAndIgnoresThoseOfAFile)
{
    SharedObjectFactory factory;
    factory.create(makeNonEmpty<RunStyle>());
    EXPECT_EQ(toJson(factory), "{}");
    loadJson(R"({"_cellStyles":[1,2,3]})", factory);
    EXPECT_EQ(toJson(factory), "{}");
}

} // namespace QN::DOM::SharedObjectFactoryTest
