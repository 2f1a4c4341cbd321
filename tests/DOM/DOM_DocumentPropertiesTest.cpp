#include "DOM/DOM_DocumentProperties.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::DocumentPropertiesTest {
namespace {

using namespace QN::Test;

DocumentProperties makeFullProperties()
{
    DocumentProperties properties;
    properties.setCategory(std::string("1"));
    properties.setContentStatus(std::string("2"));
    properties.setDescription(std::string("3"));
    properties.setLanguage(std::string("4"));
    properties.setTitle(std::string("5"));
    return properties;
}

TEST(DOM_DocumentProperties, SayNothingByDefault)
{
    EXPECT_EQ(
        toJson(DocumentProperties()),
        R"({"_category":{"hasValue":false},"_contentStatus":{"hasValue":false},)"
        R"("_description":{"hasValue":false},"_language":{"hasValue":false},"_title":{"hasValue":false}})");
}

TEST(DOM_DocumentProperties, HoldWhatIsSet)
{
    const DocumentProperties properties = makeFullProperties();
    EXPECT_EQ(*properties.getCategory(), "1");
    EXPECT_EQ(*properties.getContentStatus(), "2");
    EXPECT_EQ(*properties.getDescription(), "3");
    EXPECT_EQ(*properties.getLanguage(), "4");
    EXPECT_EQ(*properties.getTitle(), "5");
    expectCopiesAndMoves(properties);
}

TEST(DOM_DocumentProperties, CompareAllMembers)
{
    using Setter = void (DocumentProperties::*)(boost::optional<std::string>);
    const DocumentProperties properties = makeFullProperties();
    EXPECT_EQ(properties, makeFullProperties());
    for (const Setter set : {&DocumentProperties::setCategory, &DocumentProperties::setContentStatus,
                             &DocumentProperties::setDescription, &DocumentProperties::setLanguage,
                             &DocumentProperties::setTitle}) {
        DocumentProperties other = properties;
        (other.*set)(std::string("other"));
        EXPECT_NE(other, properties);
        (other.*set)(boost::none);
        EXPECT_NE(other, properties);
    }
}

TEST(DOM_DocumentProperties, Persist)
{
    expectPersists(DocumentProperties());
    expectPersists(makeFullProperties());
}

} // namespace
} // namespace QN::DOM::DocumentPropertiesTest
