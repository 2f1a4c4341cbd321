#include "DOM/Validator/DOM_Validator.h"

#include <gtest/gtest.h>

#include "DOM/Validator/ValidatorSamples.h"

/// The rules of text: blocks, runs, lists, and what stands beside the text.

namespace QN::DOM::ValidatorTest {
namespace {

using namespace Test;

template <class T>
Fault makeBlockFault(const Place& place)
{
    return {[&place](Document& document) { return place.put(document, std::make_unique<T>()); }};
}

template <class T>
Fault makeRunFault(const Place& place)
{
    return {[&place](Document& document) {
        return place.put(document, makeParagraphWith(std::make_unique<T>())) + "/runs[0]";
    }};
}

Document makeMixedDocument()
{
    Document document = makeDocument({"first", "second"});
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns() = makeOneRunOfEachKind();
    document.getBlocks().push_back(std::move(paragraph));
    document.getBlocks().push_back(std::make_unique<Paragraph>());
    document.getBlocks().push_back(std::make_unique<SectionTag>());
    document.getBlocks().push_back(std::make_unique<FieldBlock>());
    document.getBlocks().push_back(std::make_unique<Shape>());
    return document;
}

TEST(ValidatorTest, ADefaultDocumentIsValid)
{
    expectValid(Document());
}

TEST(ValidatorTest, AnEmptyParagraphIsValidAnywhere)
{
    for (const Place& place : AllPlaces) {
        Document document;
        place.put(document, std::make_unique<Paragraph>());
        expectValid(document);
    }
}

TEST(ValidatorTest, ATextRunHasText)
{
    std::vector<Fault> faults;
    for (const Place& place : AllPlaces) {
        faults.push_back(makeRunFault<TextRun>(place));
    }
    faults.push_back({[](Document& document) {
        auto paragraph = makeParagraph({"a", "b", "", "c"});
        return Body.put(document, std::move(paragraph)) + "/runs[2]";
    }});
    expectRule(makeValidatorRule(71, "TextRun is empty."), makeMixedDocument, faults);
}

TEST(ValidatorTest, ABreakRunStandsInRootBlocksOnly)
{
    std::vector<Fault> faults;
    for (const Place& place : {InCell, InShape, InHeader, InFooter, InNote, InComment}) {
        faults.push_back({[place](Document& document) {
            return place.put(document, makeParagraphWith(std::make_unique<BreakRun>())) + "/runs[0]";
        }});
    }
    expectRule(
        makeValidatorRule(178, "Break run should be inside a paragraph only from root blocks collection"),
        makeMixedDocument, faults);
}

TEST(ValidatorTest, ASectionTagStandsInRootBlocksOnly)
{
    expectRule(makeValidatorRule(265, "Section tag should be placed only in root block collection"),
               makeMixedDocument,
               {makeBlockFault<SectionTag>(InCell), makeBlockFault<SectionTag>(InShape),
                makeBlockFault<SectionTag>(InHeader), makeBlockFault<SectionTag>(InFooter)});
}

TEST(ValidatorTest, ANoteHoldsParagraphsOnly)
{
    expectRule(makeValidatorRule(366, "Invalid block type in Note"),
               [] {
                   Document document = makeMixedDocument();
                   document.getNotes().insert(Note(makeUUID('e')));
                   return document;
               },
               {makeBlockFault<SectionTag>(InNote), makeBlockFault<Shape>(InNote),
                makeBlockFault<FieldBlock>(InNote), makeBlockFault<Table>(InNote)});
}

TEST(ValidatorTest, ACommentHoldsParagraphsOnly)
{
    expectRule(makeValidatorRule(386, "Invalid block type in Comment"),
               [] {
                   Document document = makeMixedDocument();
                   document.getComments().insert(Comment(makeUUID('e')));
                   return document;
               },
               {makeBlockFault<SectionTag>(InComment), makeBlockFault<Shape>(InComment),
                makeBlockFault<FieldBlock>(InComment), makeBlockFault<Table>(InComment)});
}

// Lists

Document makeListDocument()
{
    Document document;
    Body.put(document, makeListParagraph('1'));
    Body.put(document, makeParagraph({"between"}));
    Body.put(document, makeListParagraph('1'));
    InShape.put(document, makeListParagraph('1'));
    getPair(document, '7').getHeader().getBlocks().push_back(makeListParagraph('2'));
    getPair(document, '7').getHeader().getBlocks().push_back(makeListParagraph('2'));
    getPair(document, '7').getFooter().getBlocks().push_back(makeListParagraph('3'));
    return document;
}

TEST(ValidatorTest, AListTagStaysInOneScope)
{
    const auto put = [](const Place& place, char tag) {
        return Fault{[place, tag](Document& document) { return place.put(document, makeListParagraph(tag)); },
                     "List tag was found in another document scope"};
    };
    expectRule(makeValidatorRule(305, "it == tmpListTags.end()"), makeListDocument,
               {put(InHeader, '1'),
                put(InFooter, '1'),
                put(InFooter, '2'),
                put(InHeader, '3'),
                {[](Document& document) {
                     getPair(document, '7').getFooter().getBlocks().push_back(makeListParagraph('2'));
                     return "headersFooters[" + getUUIDText('7') + "]/footer/blocks[1]";
                 },
                 "List tag was found in another document scope"}});
}

TEST(ValidatorTest, AListTagIsToldAtItsFirstUseInTheSecondScope)
{
    Document document = makeListDocument();
    auto& blocks = getPair(document, 'a').getFooter().getBlocks();
    blocks.push_back(makeParagraph({"text"}));
    blocks.push_back(makeListParagraph('1'));
    blocks.push_back(makeListParagraph('1'));
    const auto findings = Validator::collectFindings(document);
    ASSERT_EQ(findings.size(), 1U) << getTexts(findings);
    EXPECT_EQ(findings[0].getAddress().toString(),
              "headersFooters[" + getUUIDText('a') + "]/footer/blocks[1]");
}

TEST(ValidatorTest, TheTagsOfNotesAndCommentsAndStylesBelongToNoScope)
{
    Document document = makeListDocument();
    InNote.put(document, makeListParagraph('1'));
    InComment.put(document, makeListParagraph('1'));
    NamedTextStyle style(makeUUID('5'));
    style.getNumRef() = std::make_unique<NumberingRef>(*makeListParagraph('1')->getNumRef());
    document.getStyles().getTextStyles().insert(std::move(style));
    expectValid(document);
}

TEST(ValidatorTest, ANumberingReferenceWithoutAListTagAddsNothing)
{
    Document document;
    for (const Place& place : {Body, InHeader, InFooter}) {
        auto paragraph = makeParagraph({"item"});
        paragraph->getNumRef() = std::make_unique<NumberingRef>();
        place.put(document, std::move(paragraph));
    }
    expectValid(document);
}

// Null

TEST(ValidatorTest, NoBlockIsNull)
{
    std::vector<Fault> faults;
    for (const Place& place : AllPlaces) {
        faults.push_back({[&place](Document& document) { return place.put(document, nullptr); }});
    }
    expectRule(NullPointerRule, makeMixedDocument, faults);
}

TEST(ValidatorTest, NoRunIsNull)
{
    std::vector<Fault> faults;
    for (const Place& place : AllPlaces) {
        faults.push_back({[&place](Document& document) {
            auto paragraph = makeParagraph({"text"});
            paragraph->getRuns().push_back(nullptr);
            return place.put(document, std::move(paragraph)) + "/runs[1]";
        }});
    }
    expectRule(NullPointerRule, makeMixedDocument, faults);
}

TEST(ValidatorTest, NoHeaderOrFooterIsMissing)
{
    const auto takeFrom = [](char digit) {
        return Fault{[digit](Document& document) {
                         const HeaderFooterPair taken(std::move(getPair(document, digit)));
                         return "headersFooters[" + getUUIDText(digit) + "]/header";
                     },
                     "", 2};
    };
    expectRule(NullPointerRule,
               [] {
                   Document document;
                   getPair(document, '1');
                   getPair(document, '2').setFooter(TextWithTombstones());
                   InHeader.put(document, makeParagraph({"header"}));
                   return document;
               },
               {takeFrom('1'), takeFrom('2'), takeFrom('a'), {[](Document& document) {
                    HeaderFooterPair& pair = getPair(document, '1');
                    const HeaderFooterPair taken(std::move(pair));
                    pair.setHeader(TextWithTombstones());
                    return "headersFooters[" + getUUIDText('1') + "]/footer";
                }}});
}

// Both ways

TEST(ValidatorTest, FindingsStandInTheOrderOfTheWalk)
{
    Document document;
    for (const Place& place : {InComment, InNote, InFooter, InHeader}) {
        place.put(document, makeParagraphWith(std::make_unique<TextRun>()));
    }
    for (const Place& place : {Body, InCell, InShape}) {
        place.put(document, makeParagraphWith(std::make_unique<TextRun>()));
        place.put(document, nullptr);
    }
    std::string addresses;
    for (const Finding& finding : Validator::collectFindings(document)) {
        addresses += finding.getAddress().toString() + "\n";
    }
    EXPECT_EQ(addresses, "blocks[0]/runs[0]\n"
                         "blocks[1]\n"
                         "blocks[2]/cell(2, 5)/blocks[0]/runs[0]\n"
                         "blocks[3]\n"
                         "blocks[3]/cell(2, 5)/blocks[0]\n"
                         "blocks[4]/blocks[0]/runs[0]\n"
                         "blocks[5]/blocks[0]\n"
                         "headersFooters[00000000-0000-0000-0000-00000000000a]/header/blocks[0]/runs[0]\n"
                         "headersFooters[00000000-0000-0000-0000-00000000000b]/footer/blocks[0]/runs[0]\n"
                         "notes[00000000-0000-0000-0000-00000000000c]/blocks[0]/runs[0]\n"
                         "comments[00000000-0000-0000-0000-00000000000d]/blocks[0]/runs[0]\n");
}

TEST(ValidatorTest, CollectingLeavesTheDocumentAsItIs)
{
    Document document = makeMixedDocument();
    Body.put(document, makeParagraph({""}));
    const Document copy(document);
    EXPECT_FALSE(Validator::collectFindings(document).empty());
    EXPECT_EQ(document, copy);
}

// Parts of a document

TEST(ValidatorTest, EachPartOfADocumentIsValidatedByItself)
{
    Document document = makeListDocument();
    InNote.put(document, makeParagraph({"note"}));
    InComment.put(document, makeParagraph({"comment"}));
    const auto table = makeSheet("Sheet");
    Shape shape;
    shape.getBlocks().push_back(makeParagraph({"shape"}));
    const TextRun text("text");
    const DOM::Run& run = text;
    const Block& block = *table;

    Validator().validate(document.getTextWithTombstones());
    Validator().validate(std::as_const(document).getBlocks());
    Validator().validate(block);
    Validator().validate(makeParagraphValue({"text"}));
    Validator().validate(run);
    Validator().validate(text);
    Validator().validate(NumberingRef());
    Validator().validate(*table);
    Validator().validate(*table->getCell(RowIndex(0), ColumnIndex(0)));
    Validator().validate(shape);
    Validator().validate(document.getNotes());
    Validator().validate(document.getComments());
    Validator().validate(document.getHeadersFooters());
    Validator().validateRootBlocks(std::as_const(document).getBlocks());
}

TEST(ValidatorTest, APartByItselfIsNotInRootBlocks)
{
    const auto message =
        testing::HasSubstr("DOM/Validator/DOM_Validator:178: Break run should be inside a paragraph only "
                           "from root blocks collection\n");
    const auto makeBlocks = [] {
        std::vector<std::unique_ptr<Block>> blocks;
        blocks.push_back(makeParagraphWith(std::make_unique<BreakRun>()));
        return blocks;
    };
    const TextWithTombstones text(makeBlocks());
    Cell cell;
    cell.getRawBlocks() = makeBlocks();
    Shape shape;
    shape.getBlocks() = makeBlocks();

    EXPECT_DEATH(Validator().validate(text), message);
    EXPECT_DEATH(Validator().validate(text.getBlocks()), message);
    EXPECT_DEATH(Validator().validateRootBlocks(text.getBlocks()), message);
    EXPECT_DEATH(Validator().validate(text.getBlocks().front()), message);
    EXPECT_DEATH(Validator().validate(BreakRun()), message);
    EXPECT_DEATH(Validator().validate(cell), message);
    EXPECT_DEATH(Validator().validate(shape), message);
    EXPECT_DEATH(Validator().validate(SectionTag()), "DOM/Validator/DOM_Validator:265: Section tag");
    EXPECT_DEATH(Validator().validate(TextRun()), "DOM/Validator/DOM_Validator:71: TextRun is empty.");
}

TEST(ValidatorTest, NotesCommentsAndHeadersByThemselvesAreNotInRootBlocks)
{
    const auto message = testing::HasSubstr("DOM/Validator/DOM_Validator:178: Break run");
    Document document;
    for (const Place& place : {InNote, InComment, InHeader}) {
        place.put(document, makeParagraphWith(std::make_unique<BreakRun>()));
    }
    EXPECT_DEATH(Validator().validate(document.getNotes()), message);
    EXPECT_DEATH(Validator().validate(document.getComments()), message);
    EXPECT_DEATH(Validator().validate(document.getHeadersFooters()), message);
}

TEST(ValidatorTest, AFaultInAnyPartByItselfIsFound)
{
    const auto makeFaulty = [] { return makeParagraphWith(std::make_unique<TextRun>()); };
    const auto message = testing::Eq("DOM/Validator/DOM_Validator:71: TextRun is empty.\n");
    Document document;
    for (const Place& place : {Body, InNote, InComment, InFooter}) {
        place.put(document, makeFaulty());
    }
    Shape shape;
    shape.getBlocks().push_back(makeFaulty());
    const auto table = makeSheet("Sheet");
    Cell& cell = *table->getCell(RowIndex(0), ColumnIndex(0));
    cell.getRawBlocks().clear();
    cell.getRawBlocks().push_back(makeFaulty());
    const auto paragraph = makeFaulty();
    const Block& block = *paragraph;
    const TextRun text;
    const DOM::Run& run = text;

    EXPECT_DEATH(Validator().validate(document.getTextWithTombstones()), message);
    EXPECT_DEATH(Validator().validate(std::as_const(document).getBlocks()), message);
    EXPECT_DEATH(Validator().validate(block), message);
    EXPECT_DEATH(Validator().validate(*paragraph), message);
    EXPECT_DEATH(Validator().validate(run), message);
    EXPECT_DEATH(Validator().validate(text), message);
    EXPECT_DEATH(Validator().validate(*table), message);
    EXPECT_DEATH(Validator().validate(cell), message);
    EXPECT_DEATH(Validator().validate(shape), message);
    EXPECT_DEATH(Validator().validate(document.getNotes()), message);
    EXPECT_DEATH(Validator().validate(document.getComments()), message);
    EXPECT_DEATH(Validator().validate(document.getHeadersFooters()), message);
    EXPECT_DEATH(Validator().validateRootBlocks(std::as_const(document).getBlocks()), message);
}

TEST(ValidatorTest, AValidatorRemembersTablesAndScopesFromCallToCall)
{
    Validator validator;
    const auto table = makeSheet("Sheet");
    validator.validate(*table);
    EXPECT_DEATH(validator.validate(*table), "DOM_Validator:89: .*: Duplicate table name 'Sheet'.");

    std::vector<std::unique_ptr<Block>> blocks;
    blocks.push_back(makeListParagraph('1'));
    validator.validateRootBlocks(blocks);
    Validator moved(std::move(validator));
    validator = std::move(moved);
    EXPECT_DEATH(validator.validateRootBlocks(blocks), "DOM_Validator:305: it == tmpListTags.end");
    Validator().validateRootBlocks(blocks);
}

} // namespace
} // namespace QN::DOM::ValidatorTest
