#include "DOM/Validator/DOM_ValidatorWalk.h"

#include "DOM/DOM_BreakRun.h"
#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/DOM_TextRun.h"
#include "DOM/Properties/DOM_NumberingRef.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Cell.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/Utils/DOM_NodeAddressUtils.h"
#include "DOM/Validator/DOM_ValidatorTableLevel.h"
#include "Utils/Public/Assert.h"

namespace QN::DOM {

namespace {

bool holdsFormulaOrValue(const FieldBlock& block)
{
    return boost::get<TableOfContentsInfo>(&block.getFieldInfo()) == nullptr;
}

bool holdsFormulaOrValue(const ReadonlyPtrVector<Block>& blocks)
{
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        const auto* const field = dynamic_cast<const FieldBlock*>(blocks.getPointer(index));
        if (field != nullptr && holdsFormulaOrValue(*field)) {
            return true;
        }
    }
    return false;
}

} // namespace

/// What each kind of block does in a list.
struct ValidatorWalk::BlockVisitor {
    void operator()(const Paragraph& paragraph) const { walk.validate(paragraph); }
    void operator()(const Table& table) const { walk.enter(table); }
    void operator()(const Shape& shape) const { walk.enter(shape); }
    void operator()(const SectionTag& /*tag*/) const
    {
        walk.check(walk.isInRootBlocks(), ValidatorRules::SectionTagInRootBlocks);
    }
    void operator()(const FieldBlock& /*field*/) const {}

    ValidatorWalk& walk;
};

struct ValidatorWalk::RunVisitor {
    void operator()(const TextRun& run) const { walk.validate(run); }
    void operator()(const BreakRun& /*run*/) const
    {
        walk.check(walk.isInRootBlocks(), ValidatorRules::BreakRunInRootBlocks);
    }

    ValidatorWalk& walk;
};

ValidatorWalk::ValidatorWalk(std::vector<Finding>* findings)
    : _findings(findings), _address(findings != nullptr ? std::make_shared<AddressTree>() : nullptr)
{
}

ValidatorWalk::~ValidatorWalk() = default;

// Broken rules

bool ValidatorWalk::check(bool holds, const Rule& rule)
{
    if (!holds) {
        report(rule, rule.message);
    }
    return holds;
}

void ValidatorWalk::report(const Rule& rule, std::string message)
{
    report(rule, std::move(message), _address.record());
}

void ValidatorWalk::report(const Rule& rule, std::string message, std::size_t addressNumber)
{
    if (_findings != nullptr) {
        _findings->push_back({FindingKind::BrokenRule, rule.file, rule.line, rule.condition,
                              std::move(message), _address.getTree(), addressNumber});
    } else if (message.empty()) {
        doFailAssert(rule.file, rule.line, rule.condition);
    } else {
        doFailAssert(rule.file, rule.line, rule.condition, message);
    }
}

// The walk

template <class Enter>
void ValidatorWalk::enterAndWalk(Enter&& enter)
{
    const std::size_t levels = _levels.size();
    const std::size_t addressSize = _address.size();
    enter();
    while (_levels.size() > levels) {
        if (std::holds_alternative<BlocksLevel>(_levels.back())) {
            walkToNextBlock();
        } else {
            walkToNextCell();
        }
    }
    _address.cutToPosition(addressSize);
}

/// Entering a block moves the levels.
void ValidatorWalk::walkToNextBlock()
{
    auto& level = std::get<BlocksLevel>(_levels.back());
    _address.cutToPosition(level.addressSize);
    if (level.next == level.blocks.size()) {
        const Cell* const cell = level.cell;
        _nestedLevels -= level.isNested ? 1 : 0;
        _levels.pop_back();
        if (cell != nullptr) {
            leave(*cell);
        }
        return;
    }
    const std::size_t index = level.next++;
    const Block* const block = level.blocks.getPointer(index);
    _address.appendItems(NodeAddressing::AddressInList(index));
    if (check(block != nullptr, ValidatorRules::NoNullPointer)) {
        enter(*block);
    }
}

void ValidatorWalk::enter(const Block& block)
{
    visit<void>(block, BlockVisitor{*this});
}

void ValidatorWalk::enter(const Cell& cell)
{
    enterNested(cell.getRawBlocks(), &cell);
}

void ValidatorWalk::enter(const Shape& shape)
{
    enterNested(shape.getBlocks(), nullptr);
}

void ValidatorWalk::enterNested(const Blocks& blocks, const Cell* cell)
{
    _address.appendItems(NativeDOMNodeType::Blocks);
    _levels.emplace_back(BlocksLevel{blocks, _address.size(), true, cell});
    ++_nestedLevels;
}

/// The address still holds the step to the blocks of the cell.
void ValidatorWalk::leave(const Cell& cell)
{
    _address.cutToPosition(_address.size() - 1);
    const Blocks blocks = cell.getRawBlocks();
    check(blocks.size() == 1U || !holdsFormulaOrValue(blocks), ValidatorRules::OneBlockInValueCell);
}

// Entries

void ValidatorWalk::validate(const Blocks& blocks)
{
    enterAndWalk([&] { _levels.emplace_back(BlocksLevel{blocks, _address.size()}); });
}

void ValidatorWalk::validate(const Block& block)
{
    enterAndWalk([&] { enter(block); });
}

void ValidatorWalk::validate(const Table& table)
{
    enterAndWalk([&] { enter(table); });
}

void ValidatorWalk::validate(const Cell& cell)
{
    enterAndWalk([&] { enter(cell); });
}

void ValidatorWalk::validate(const Shape& shape)
{
    enterAndWalk([&] { enter(shape); });
}

void ValidatorWalk::validate(const Paragraph& paragraph)
{
    if (const auto& numberingRef = paragraph.getNumRef()) {
        validate(*numberingRef);
    }
    const auto runs = paragraph.getRuns();
    for (std::size_t index = 0; index < runs.size(); ++index) {
        const Steps steps(_address, NativeDOMNodeType::Runs, NodeAddressing::AddressInList(index));
        const Run* const run = runs.getPointer(index);
        if (check(run != nullptr, ValidatorRules::NoNullPointer)) {
            validate(*run);
        }
    }
}

void ValidatorWalk::validate(const Run& run)
{
    visit<void>(run, RunVisitor{*this});
}

void ValidatorWalk::validate(const TextRun& run)
{
    check(!run.getText().empty(), ValidatorRules::TextInTextRun);
}

void ValidatorWalk::validate(const NumberingRef& numberingRef)
{
    const auto& tag = numberingRef.getListTagUUID();
    if (tag && _listTags.insert(tag->get()).second) {
        _listTagUses.emplace_back(tag->get(), _address.record());
    }
}

/// Also by the levels, since the blocks of a cell or a shape that is given by itself are the first in the address.
bool ValidatorWalk::isInRootBlocks() const
{
    return _nestedLevels == 0 && NodeAddressUtils::isAddressToRootBlocks(_address.get());
}

} // namespace QN::DOM
