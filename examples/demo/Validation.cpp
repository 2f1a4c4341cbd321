#include "Validation.h"

#include <memory>
#include <ostream>
#include <vector>

#include "SheetLayout.h"

namespace Demo {

using namespace QN::DOM;

namespace {

void list(const std::vector<Finding>& findings, std::ostream& report)
{
    for (const Finding& finding : findings) {
        report << "         " << finding << '\n';
    }
}

/// The removed paragraphs, rows and columns whose places are still known.
std::uint64_t countTombstones(const Document& document)
{
    std::uint64_t count = document.getTextWithTombstones().getTombstones().getTombstonesCount();
    if (const Table* const sheet = findSheet(document)) {
        count += sheet->getAllRowsCount().get() - sheet->getLiveRowsCount().get();
        count += sheet->getAllColsCount().get() - sheet->getLiveColsCount().get();
    }
    return count;
}

} // namespace

bool validate(const Document& document, std::ostream& report)
{
    // `Validator().validate(document)` would stop the process at the first finding.
    const std::vector<Finding> findings = Validator::collectFindings(document);
    report << "checked  " << (findings.empty() ? "valid" : "NOT VALID") << '\n';
    list(findings, report);
    return findings.empty();
}

void validateBroken(Document copy, std::ostream& report)
{
    auto emptyRun = std::make_unique<Paragraph>();
    emptyRun->getRuns().push_back(std::make_unique<TextRun>());
    copy.getBlocks().insert(copy.getBlocks().begin(), std::move(emptyRun));

    if (Table* const sheet = findSheet(copy)) {
        // A shape cannot have sections, and no two sheets can have one name.
        auto shape = std::make_unique<Shape>();
        shape->getBlocks().push_back(std::make_unique<SectionTag>());
        auto second = std::make_unique<Table>(QN::RowIndex(2), QN::ColumnIndex(2));
        second->setName(sheet->getName());
        copy.getBlocks().push_back(std::move(shape));
        copy.getBlocks().push_back(std::move(second));
        // A row that goes takes nothing off the filter.
        sheet->removeRow(sheet->getLiveRowsCount() - 1);
    }
    const std::vector<Finding> findings = Validator::collectFindings(copy);
    report << "broke    a copy of it in a few places, for the validator to find:\n";
    list(findings, report);
}

void clean(Document copy, std::ostream& report)
{
    const std::uint64_t before = countTombstones(copy);
    cleanDOM(copy, DOMCleanType::Tombstones);
    report << "cleaned  a copy of it of its tombstones: " << before << " before, " << countTombstones(copy)
           << " after\n";
}

} // namespace Demo
