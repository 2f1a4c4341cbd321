#include "DOM/Validator/DOM_Validator.h"

#include "DOM/DOM_Comment.h"
#include "DOM/DOM_Document.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_TextRun.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/Validator/DOM_ValidatorWalk.h"

namespace QN::DOM {

Validator::Validator() : _walk(std::make_unique<ValidatorWalk>()) {}

Validator::Validator(Validator&&) noexcept = default;
Validator& Validator::operator=(Validator&&) noexcept = default;
Validator::~Validator() = default;

std::vector<Finding> Validator::collectFindings(const Document& document)
{
    std::vector<Finding> findings;
    ValidatorWalk walk(&findings);
    walk.validate(document);
    walk.collectHazards(document);
    return findings;
}

void Validator::validate(const Document& document)
{
    _walk->validate(document);
}

void Validator::validate(const TextWithTombstones& text)
{
    _walk->validate(text.getBlocks());
}

void Validator::validate(const Blocks& blocks)
{
    _walk->validate(blocks);
}

void Validator::validate(const Block& block)
{
    _walk->validate(block);
}

void Validator::validate(const Paragraph& paragraph)
{
    _walk->validate(paragraph);
}

void Validator::validate(const Run& run)
{
    _walk->validate(run);
}

void Validator::validate(const TextRun& run)
{
    _walk->validate(run);
}

void Validator::validate(const NumberingRef& numberingRef)
{
    _walk->validate(numberingRef);
}

void Validator::validate(const Table& table)
{
    _walk->validate(table);
}

void Validator::validate(const Cell& cell)
{
    _walk->validate(cell);
}

void Validator::validate(const Shape& shape)
{
    _walk->validate(shape);
}

void Validator::validate(const UUIDContainer<Note>& notes)
{
    _walk->validate(notes);
}

void Validator::validate(const UUIDContainer<Comment>& comments)
{
    _walk->validate(comments);
}

void Validator::validate(const UUIDContainer<HeaderFooterPair>& headersFooters)
{
    _walk->validate(headersFooters);
}

void Validator::validateRootBlocks(const Blocks& blocks)
{
    _walk->validateRootBlocks(blocks);
}

} // namespace QN::DOM
