#include "DOM/DOM_PredefinedEntities.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "DOM/DOM_Document.h"
#include "DOM/DOM_NumberingLevel.h"
#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"

namespace QN::DOM::PredefinedEntitiesTest {

TEST(PredefinedEntitiesTest, ANewDocumentReceivesTheListsAndTheTextStyles)
{
    Document document;
    appendPredefinedEntities(document);
    EXPECT_EQ(document.getNumLists().size(), 15U);
    EXPECT_EQ(std::as_const(document).getStyles().getTextStyles().size(), 21U);
    EXPECT_EQ(document.getStyles().getDefaultParagraphStyleUUID(),
              makePredefinedTextStyleUUID(PredefinedStyleName::Normal));
}

TEST(PredefinedEntitiesTest, TheStylesOfTheLevelsComeFromThePoolsOfTheDocument)
{
    Document document;
    appendPredefinedEntities(document);
    const auto& level = *document.getNumLists()[0].getNumberingLevels()[0];
    EXPECT_EQ(document.getSharedObjectFactory().create(level.getStyle()), level.getSharedStyle());
}

TEST(PredefinedEntitiesTest, AppendingAgainChangesNothing)
{
    Document document;
    appendPredefinedEntities(document);
    const Document before(document);
    appendPredefinedEntities(document);
    EXPECT_TRUE(document == before);
}

TEST(PredefinedEntitiesDeathTest, ATypeWithoutItsUUIDIsAContractFailure)
{
    Document document;
    NamedTextStyle style(UUID("8b7a892e-b199-47bf-ba6d-139900efb7f6"));
    style.setName(PredefinedStyleName::Heading1);
    document.getStyles().getTextStyles().insert(style);
    EXPECT_DEATH(appendPredefinedEntities(document),
                 "DOM/PredefinedStyles/DOM_PredefinedStylesUtils:49: "
                 "style->getUUID\\(\\) == makeUUIDFunctor\\(styleType\\)");
}

TEST(PredefinedEntitiesDeathTest, AUUIDWithoutItsTypeIsAContractFailure)
{
    Document document;
    NamedTextStyle style(makePredefinedTextStyleUUID(PredefinedStyleName::Heading1));
    style.setName(std::string("Heading 1"));
    document.getStyles().getTextStyles().insert(style);
    EXPECT_DEATH(appendPredefinedEntities(document),
                 "DOM_UUIDContainer:67: _collection.find\\(uuid\\) == _collection.end\\(\\)");
}

} // namespace QN::DOM::PredefinedEntitiesTest
