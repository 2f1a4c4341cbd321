#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "DOM/DOM.h"
#include "DOM/Tables/DOM_StoredCellWalk.h"
#include "Support/StatedStops.h"
#include "Utils/Public/Archive/JSONArchives.h"

/// Loads any bytes as a document and collects its findings, which must not stop the process. Whatever loads is saved and must
/// load again with the same findings; it is copied and compared, but for one stated stop: a node of a formula that lacks an
/// operand. A document without broken rules is validated, walked and cleaned.

namespace {

using QN::DOM::Document;
using QN::DOM::DOMCleanType;
using QN::DOM::Finding;
using QN::DOM::FindingKind;
using QN::DOM::StoredCellWalk;
using QN::DOM::Table;
using QN::DOM::Validator;

std::string save(const Document& document)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        document.serialize(archive);
    }
    return stream.str();
}

void load(const std::string& text, Document& document)
{
    std::istringstream stream(text);
    cereal::JSONInputArchive archive(stream);
    document.serialize(archive);
}

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// Sorted, since what stands in a hash map is looked at in any order.
std::vector<std::string> getTexts(const std::vector<Finding>& findings)
{
    std::vector<std::string> texts;
    for (const Finding& finding : findings) {
        texts.push_back(finding.toString());
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

/// Reads the text of the body as a user of a valid document does.
std::size_t walk(const QN::DOM::Validator::Blocks& blocks)
{
    std::size_t length = 0;
    for (const QN::DOM::Block& block : blocks) {
        if (const auto* const paragraph = dynamic_cast<const QN::DOM::Paragraph*>(&block)) {
            for (const QN::DOM::Run& run : paragraph->getRuns()) {
                length += run.getText().size();
            }
        } else if (const auto* const table = dynamic_cast<const Table*>(&block)) {
            for (StoredCellWalk<const Table> cells(*table); !cells.isAtEnd(); ++cells) {
                length += *cells != nullptr ? walk((*cells)->getRawBlocks()) : 0;
            }
        } else if (const auto* const shape = dynamic_cast<const QN::DOM::Shape*>(&block)) {
            length += walk(shape->getBlocks());
        }
    }
    return length;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (QN::Test::holdsReversedIndexRange(text)) {
        return 0;
    }
    Document document;
    try {
        load(text, document);
    } catch (const cereal::Exception&) {
        return 0;
    }

    const std::vector<Finding> findings = Validator::collectFindings(document);
    const std::vector<std::string> texts = getTexts(findings);
    const bool isValid = std::none_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.kind == FindingKind::BrokenRule;
    });
    if (isValid) {
        Validator().validate(document);
        static_cast<void>(walk(static_cast<const Document&>(document).getBlocks()));
    }
    const std::string saved = save(document);
    Document reloaded;
    load(saved, reloaded);
    require(getTexts(Validator::collectFindings(reloaded)) == texts);
    require(save(reloaded) == saved);

    if (!QN::Test::lacksOperand(saved)) {
        const Document copy(document);
        require(getTexts(Validator::collectFindings(copy)) == texts);
        static_cast<void>(copy == document);
    }
    if (isValid) {
        cleanDOM(document, DOMCleanType::Tombstones | DOMCleanType::UUID | DOMCleanType::RowColumnIDs);
        static_cast<void>(getTexts(Validator::collectFindings(document)));
        static_cast<void>(save(document));
    }
    return 0;
}
