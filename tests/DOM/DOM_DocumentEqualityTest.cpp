#include "DOM/DOM_Document.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <utility>

#include "DOM/DocumentSamples.h"
#include "DOM/Properties/DOM_GradientFill.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"

namespace QN::DOM::DocumentEqualityTest {
namespace {

using namespace QN::Test;

TEST(DOM_DocumentEquality, EqualsAnotherNewOne)
{
    EXPECT_EQ(Document(), Document());
    EXPECT_EQ(makeFullDocument(), makeFullDocument());
}

TEST(DOM_DocumentEquality, ComparesEachMember)
{
    for (std::size_t index = 0; index < getDocumentChanges().size(); ++index) {
        Document document;
        getDocumentChanges()[index](document);
        EXPECT_NE(document, Document()) << index;
        EXPECT_NE(Document(), document) << index;
        Document same;
        getDocumentChanges()[index](same);
        EXPECT_EQ(document, same) << index;
    }
}

TEST(DOM_DocumentEquality, ComparesThemesAndColorMapsByValue)
{
    Document left;
    Document right;
    left.setTheme(std::make_unique<Theme>());
    auto theme = std::make_unique<Theme>();
    theme->setName("name");
    right.setTheme(std::move(theme));
    EXPECT_NE(left, right);

    left.setTheme(nullptr);
    right.setTheme(nullptr);
    left.setColorMap(std::make_unique<ColorMap>());
    auto colorMap = std::make_unique<ColorMap>();
    colorMap->setMapping(static_cast<ThemeColorId>(0), static_cast<ThemeColorId>(1));
    right.setColorMap(std::move(colorMap));
    EXPECT_NE(left, right);
}

TEST(DOM_DocumentEquality, AThemeOrAColorMapEqualsNoneOnlyWhereThereIsNoneOnTheOtherSide)
{
    Document left;
    Document right;
    left.setTheme(std::make_unique<Theme>());
    EXPECT_NE(left, right);
    EXPECT_NE(right, left);
    right.setTheme(std::make_unique<Theme>());
    EXPECT_EQ(left, right);
    right.setColorMap(std::make_unique<ColorMap>());
    EXPECT_NE(left, right);
    EXPECT_NE(right, left);
}

TEST(DOM_DocumentEquality, AThemeWithANaNEqualsItselfButNoCopy)
{
    auto fill = std::make_unique<GradientFill>();
    fill->setRotationAngle(std::numeric_limits<float>::quiet_NaN());
    FormatScheme scheme;
    scheme.getFills().push_back(std::move(fill));
    auto theme = std::make_unique<Theme>();
    theme->setFormatScheme(std::move(scheme));
    Document document;
    document.setTheme(std::move(theme));
    const Document& itself = document;
    EXPECT_TRUE(document == itself);
    EXPECT_FALSE(document == makeCopy(document));
}

TEST(DOM_DocumentEquality, ComparesNumberedListsInTheirOrder)
{
    Document left;
    Document right;
    left.getNumLists().emplace_back(makeUUID('1'));
    left.getNumLists().emplace_back(makeUUID('2'));
    right.getNumLists().emplace_back(makeUUID('2'));
    right.getNumLists().emplace_back(makeUUID('1'));
    EXPECT_NE(left, right);
    std::swap(right.getNumLists().front(), right.getNumLists().back());
    EXPECT_EQ(left, right);
    right.getNumLists().pop_back();
    EXPECT_NE(left, right);
}

template <class T, class Change>
void expectComparedByIdentityAndElement(UUIDContainer<T>& (Document::*getContainer)(), Change change)
{
    Document left;
    Document right;
    (left.*getContainer)() = makeUUIDContainer<T>('1');
    (right.*getContainer)() = makeUUIDContainer<T>('2');
    EXPECT_NE(left, right);
    (right.*getContainer)() = makeUUIDContainer<T>('1');
    EXPECT_EQ(left, right);
    change(*(right.*getContainer)().find(makeUUID('1')));
    EXPECT_NE(left, right);
}

TEST(DOM_DocumentEquality, ComparesContainersByIdentityAndByElement)
{
    expectComparedByIdentityAndElement<HeaderFooterPair>(
        &Document::getHeadersFooters,
        [](HeaderFooterPair& pair) { pair.setNextHeaderFooterUUID(makeUUID('9')); });
    expectComparedByIdentityAndElement<Comment>(&Document::getComments,
                                                [](Comment& comment) { comment.setResolved(true); });
    expectComparedByIdentityAndElement<Note>(&Document::getNotes,
                                             [](Note& note) { note.setAlwaysVisible(true); });
}

TEST(DOM_DocumentEquality, ComparesDefinedNamesWhateverTheirOrder)
{
    Document left;
    Document right;
    for (int index = 0; index < 100; ++index) {
        setDefinedName(left, std::to_string(index), index);
        setDefinedName(right, std::to_string(99 - index), 99 - index);
    }
    EXPECT_EQ(left, right);
    setDefinedName(right, "50", 51);
    EXPECT_NE(left, right);
    right.getDefinedNames().erase("50");
    setDefinedName(right, "100", 50);
    EXPECT_NE(left, right);
}

TEST(DOM_DocumentEquality, ANullExpressionEqualsANullExpressionOnly)
{
    Document left;
    Document right;
    left.getDefinedNames()["name"] = nullptr;
    right.getDefinedNames()["name"] = nullptr;
    EXPECT_EQ(left, right);
    setDefinedName(right, "name", 1);
    EXPECT_NE(left, right);
    EXPECT_NE(right, left);
}

TEST(DOM_DocumentEquality, ThePoolsOfSharedStylesTakeNoPartInEquality)
{
    const Document document;
    RunStyle style;
    style.setParentUUID(makeUUID('1'));
    const auto shared = document.getSharedObjectFactory().create(style);
    EXPECT_EQ(document, Document());
}

TEST(DOM_DocumentEquality, ATabStopDistanceThatIsNoNumberMakesItUnequalToItself)
{
    Document document;
    document.setTabStopDistance(std::numeric_limits<float>::quiet_NaN());
    const Document& itself = document;
    EXPECT_FALSE(document == itself);
    EXPECT_FALSE(document == Document());
}

} // namespace
} // namespace QN::DOM::DocumentEqualityTest
