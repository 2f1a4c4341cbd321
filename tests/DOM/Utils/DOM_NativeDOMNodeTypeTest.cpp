#include "DOM/Utils/DOM_NativeDOMNodeType.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

namespace QN::DOM::NativeDOMNodeTypeTest {

namespace {

constexpr unsigned int Largest = std::numeric_limits<unsigned int>::max();

NativeDOMNodeType toType(unsigned int number)
{
    return static_cast<NativeDOMNodeType>(number);
}

template <class Predicate>
std::set<unsigned int> getAllFor(Predicate predicate)
{
    std::set<unsigned int> numbers;
    for (unsigned int number = 0; number < 1000; ++number) {
        if (predicate(toType(number))) {
            numbers.insert(number);
        }
    }
    return numbers;
}

TEST(NativeDOMNodeTypeTest, BlocksAreNumber5)
{
    EXPECT_EQ(NativeDOMNodeType::Blocks, toType(5));
}

TEST(NativeDOMNodeTypeTest, ThirteenStepsAreToCollections)
{
    const std::set<unsigned int> expected = {4, 5, 9, 11, 13, 17, 19, 22, 28, 29, 31, 33, 35};
    EXPECT_EQ(getAllFor(isCollectionAddressType), expected);
}

TEST(NativeDOMNodeTypeTest, ThreeStepsAreIntoHeadersAndFooters)
{
    const std::set<unsigned int> expected = {23, 24, 25};
    EXPECT_EQ(getAllFor(isHeaderFooterAddressType), expected);
}

TEST(NativeDOMNodeTypeTest, NumbersAboveTheLastAreNeither)
{
    for (const unsigned int number : {36U, 64U + 5U, 256U + 5U, 0x80000005U, Largest}) {
        EXPECT_FALSE(isCollectionAddressType(toType(number))) << number;
        EXPECT_FALSE(isHeaderFooterAddressType(toType(number))) << number;
    }
}

TEST(NativeDOMNodeTypeTest, EveryKnownStepHasANameOfItsOwn)
{
    std::set<std::string> names;
    for (unsigned int number = 0; number <= 35; ++number) {
        const std::string name = getNodeTypeName(toType(number));
        EXPECT_EQ(name.find('('), std::string::npos) << number;
        EXPECT_TRUE(names.insert(name).second) << number;
    }
}

TEST(NativeDOMNodeTypeTest, NamesAreThoseOfTheEnumerators)
{
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Document), "document");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::DocumentProperties), "documentProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Scripts), "scripts");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::DefaultSection), "defaultSection");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Runs), "runs");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Blocks), "blocks");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::ParagraphProperties), "paragraphProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::ParagraphMark), "paragraphMark");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::NumberingReference), "numberingReference");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Rows), "rows");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::RowProperties), "rowProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Columns), "columns");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::ColumnProperties), "columnProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Frames), "frames");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::TableProperties), "tableProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::CellProperties), "cellProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::TableFilter), "tableFilter");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::TextStyles), "textStyles");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::RunProperties), "runProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::TableStyles), "tableStyles");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::SectionProperties), "sectionProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::PageProperties), "pageProperties");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::HeadersFooters), "headersFooters");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::HeaderFooterPair), "headerFooterPair");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Header), "header");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Footer), "footer");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Theme), "theme");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::ColorMap), "colorMap");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Comments), "comments");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Notes), "notes");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::Field), "field");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::NumberedLists), "numberedLists");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::NumberingLevel), "numberingLevel");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::ShapeStyles), "shapeStyles");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::GraphicalObject), "graphicalObject");
    EXPECT_EQ(getNodeTypeName(NativeDOMNodeType::DefinedNames), "definedNames");
}

TEST(NativeDOMNodeTypeTest, AnUnknownStepIsNamedByItsNumber)
{
    EXPECT_EQ(getNodeTypeName(toType(36)), "node(36)");
    EXPECT_EQ(getNodeTypeName(toType(Largest)), "node(4294967295)");
}

} // namespace

} // namespace QN::DOM::NativeDOMNodeTypeTest
