#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/TextSamples.h"

/// Documents, the faults that break them, and what a fault must lead to in both ways of validation.

namespace QN::Test {

// Documents

inline DOM::Document makeDocument(std::vector<std::string> paragraphs = {})
{
    DOM::Document document;
    for (std::string& text : paragraphs) {
        document.getBlocks().push_back(makeParagraph({std::move(text)}));
    }
    return document;
}

template <class Run>
std::unique_ptr<DOM::Paragraph> makeParagraphWith(std::unique_ptr<Run> run)
{
    auto paragraph = std::make_unique<DOM::Paragraph>();
    paragraph->getRuns().push_back(std::move(run));
    return paragraph;
}

inline std::unique_ptr<DOM::Paragraph> makeListParagraph(char tagDigit)
{
    auto paragraph = makeParagraph({"item"});
    paragraph->getNumRef() = std::make_unique<DOM::NumberingRef>();
    paragraph->getNumRef()->setListTagUUID(DOM::ListTagUUID(makeUUID(tagDigit)));
    return paragraph;
}

/// Of 3 rows and 3 columns, with a number in each cell.
inline std::unique_ptr<DOM::Table> makeSheet(std::string name)
{
    auto table = std::make_unique<DOM::Table>(makeGrid(3, 3));
    table->setName(std::move(name));
    return table;
}

inline DOM::Document makeSheetDocument()
{
    DOM::Document document;
    document.getBlocks().push_back(makeSheet("Sheet"));
    return document;
}

inline DOM::Table& getSheet(DOM::Document& document)
{
    return dynamic_cast<DOM::Table&>(*document.getBlocks().front());
}

inline std::string getUUIDText(char digit)
{
    return makeUUID(digit).toString();
}

inline DOM::HeaderFooterPair& getPair(DOM::Document& document, char digit)
{
    if (DOM::HeaderFooterPair* const pair = document.getHeadersFooters().find(makeUUID(digit))) {
        return *pair;
    }
    return document.getHeadersFooters().insert(DOM::HeaderFooterPair(makeUUID(digit)));
}

/// Where a block can stand.
struct Place {
    std::string name;
    /// Puts a block there and answers its address.
    std::function<std::string(DOM::Document& document, std::unique_ptr<DOM::Block> block)> put;
};

inline const Place Body{"body", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
                            document.getBlocks().push_back(std::move(block));
                            return "blocks[" + std::to_string(document.getBlocks().size() - 1) + "]";
                        }};
inline const Place InCell{
    "cell", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
        auto table = std::make_unique<DOM::Table>(RowIndex(4), ColumnIndex(8));
        table->setName("Holder");
        table->getOrCreateCell(RowIndex(2), ColumnIndex(5)).getRawBlocks().push_back(std::move(block));
        return Body.put(document, std::move(table)) + "/cell(2, 5)/blocks[0]";
    }};
inline const Place InShape{"shape", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
                               auto shape = std::make_unique<DOM::Shape>();
                               shape->getBlocks().push_back(std::move(block));
                               return Body.put(document, std::move(shape)) + "/blocks[0]";
                           }};
inline const Place InHeader{"header", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
                                getPair(document, 'a').getHeader().getBlocks().push_back(std::move(block));
                                return "headersFooters[" + getUUIDText('a') + "]/header/blocks[0]";
                            }};
inline const Place InFooter{"footer", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
                                getPair(document, 'b').getFooter().getBlocks().push_back(std::move(block));
                                return "headersFooters[" + getUUIDText('b') + "]/footer/blocks[0]";
                            }};
inline const Place InNote{"note", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
                              DOM::Note note(makeUUID('c'));
                              note.getBlocks().push_back(std::move(block));
                              document.getNotes().insert(std::move(note));
                              return "notes[" + getUUIDText('c') + "]/blocks[0]";
                          }};
inline const Place InComment{"comment", [](DOM::Document& document, std::unique_ptr<DOM::Block> block) {
                                 DOM::Comment comment(makeUUID('d'));
                                 comment.getBlocks().push_back(std::move(block));
                                 document.getComments().insert(std::move(comment));
                                 return "comments[" + getUUIDText('d') + "]/blocks[0]";
                             }};

inline const std::vector<Place> AllPlaces{Body, InCell, InShape, InHeader, InFooter, InNote, InComment};

// Faults

struct ExpectedRule {
    std::string file;
    /// 0 where the line is that of the source.
    int line;
    std::string condition;
};

inline ExpectedRule makeValidatorRule(int line, std::string condition)
{
    return {"DOM/Validator/DOM_Validator", line, std::move(condition)};
}

/// What reading null fails.
inline const ExpectedRule NullPointerRule{"Utils/Public/Ptr/PtrUtils", 254, "plainPtr"};

struct Fault {
    /// Breaks a valid document and answers the address of the place.
    std::function<std::string(DOM::Document& document)> make;
    std::string message = "";
    /// More than one where the fault breaks other rules, too, but later in the walk.
    std::size_t findings = 1;
};

inline std::string getTexts(const std::vector<DOM::Finding>& findings)
{
    std::string texts;
    for (const DOM::Finding& finding : findings) {
        texts += finding.toString() + "\n";
    }
    return texts;
}

inline void expectValid(const DOM::Document& document)
{
    DOM::Validator().validate(document);
    EXPECT_EQ(getTexts(DOM::Validator::collectFindings(document)), "");
}

/// `validate` stops with the text of the first finding, or returns when no rule is broken.
inline void expectBothWaysAgree(const DOM::Document& document)
{
    const std::vector<DOM::Finding> findings = DOM::Validator::collectFindings(document);
    if (findings.empty() || findings.front().kind == DOM::FindingKind::Hazard) {
        DOM::Validator().validate(document);
        return;
    }
    EXPECT_DEATH(DOM::Validator().validate(document), testing::Eq(findings.front().getContractText() + "\n"));
}

inline void expectFinding(const ExpectedRule& rule, const Fault& fault, const std::string& address,
                          const std::vector<DOM::Finding>& findings)
{
    ASSERT_EQ(findings.size(), fault.findings) << getTexts(findings);
    const DOM::Finding& first = findings.front();
    EXPECT_EQ(first.kind, DOM::FindingKind::BrokenRule);
    EXPECT_EQ(first.file, rule.file);
    if (rule.line != 0) {
        EXPECT_EQ(first.line, rule.line);
    }
    EXPECT_EQ(first.condition, rule.condition);
    EXPECT_EQ(first.message, fault.message);
    EXPECT_EQ(first.getAddress().toString(), address);
}

/// The document is valid without a fault, and each fault alone breaks the rule: the process stops with its text, and the
/// first finding tells it with the place.
inline void expectRule(const ExpectedRule& rule, const std::function<DOM::Document()>& makeValid,
                       const std::vector<Fault>& faults)
{
    expectValid(makeValid());
    EXPECT_GE(faults.size(), 3U);
    for (std::size_t index = 0; index < faults.size(); ++index) {
        SCOPED_TRACE("fault " + std::to_string(index));
        const Fault& fault = faults[index];
        DOM::Document document = makeValid();
        const std::string address = fault.make(document);
        const std::vector<DOM::Finding> findings = DOM::Validator::collectFindings(document);
        expectFinding(rule, fault, address, findings);
        if (findings.empty()) {
            continue;
        }
        const int line = rule.line != 0 ? rule.line : findings.front().line;
        const std::string text = rule.file + ":" + std::to_string(line) + ": " + rule.condition +
                                 (fault.message.empty() ? "" : ": " + fault.message) + "\n";
        EXPECT_DEATH(DOM::Validator().validate(document), testing::Eq(text));
    }
}

} // namespace QN::Test
