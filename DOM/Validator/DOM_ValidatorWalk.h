#pragma once

#include <boost/unordered/unordered_set.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/DOM_UUIDContainer.h"
#include "DOM/Validator/DOM_Finding.h"
#include "DOM/Validator/DOM_ValidatorRules.h"
#include "DOM/Validator/DOM_WalkAddress.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/SeededHash.h"
#include "Utils/Public/TableIndices/TableRange.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class Cell;
class Document;
class NumberingRef;
class Run;
class TextRun;

/// The one walk behind both ways of `Validator`, which either stops at a broken rule or collects it.
///
/// Lists of blocks and tables that are being walked through stand on a stack of levels of its own, so that the depth of a
/// document costs no stack of the thread. The address is that of the object at hand. Nothing here calls an operation that
/// stops the process at data that a file can hold.
class ValidatorWalk {
public:
    using Blocks = ReadonlyPtrVector<Block>;

    /// Stops the process at the first broken rule, unless it is given a place for the findings.
    explicit ValidatorWalk(std::vector<Finding>* findings = nullptr);
    ~ValidatorWalk();

    void validate(const Document& document);
    void validate(const Blocks& blocks);
    void validate(const Block& block);
    void validate(const Paragraph& paragraph);
    void validate(const Run& run);
    void validate(const TextRun& run);
    void validate(const NumberingRef& numberingRef);
    void validate(const Table& table);
    void validate(const Cell& cell);
    void validate(const Shape& shape);
    void validate(const UUIDContainer<Note>& notes);
    void validate(const UUIDContainer<Comment>& comments);
    void validate(const UUIDContainer<HeaderFooterPair>& headersFooters);
    void validateRootBlocks(const Blocks& blocks);

    /// Needs a place for the findings.
    void collectHazards(const Document& document);

private:
    using Rule = ValidatorRules::Rule;

    struct BlockVisitor;
    struct RunVisitor;
    class Steps;

    /// A list of blocks that is being walked through.
    struct BlocksLevel {
        Blocks blocks;
        std::size_t addressSize;
        /// Whether the list is that of a cell or a shape.
        bool isNested = false;
        /// Null for other lists.
        const Cell* cell = nullptr;
        std::size_t next = 0;
    };
    /// A table whose cells are being walked through.
    struct TableLevel;
    using Level = std::variant<BlocksLevel, std::unique_ptr<TableLevel>>;

    // Broken rules.

    /// Gives back whether the rule holds.
    bool check(bool holds, const Rule& rule);
    void report(const Rule& rule, std::string message);
    /// @param addressNumber that of an address that was recorded.
    void report(const Rule& rule, std::string message, std::size_t addressNumber);

    // The walk. What has blocks inside is entered, which puts it on the levels, and then walked through.

    /// Enters and walks until the levels and the address are as they were.
    template <class Enter>
    void enterAndWalk(Enter&& enter);
    void walkToNextBlock();
    void walkToNextCell();

    void enter(const Block& block);
    void enter(const Table& table);
    void enter(const Cell& cell);
    void enter(const Shape& shape);
    void enterNested(const Blocks& blocks, const Cell* cell);
    void leave(const Cell& cell);

    // The rules.

    bool isInRootBlocks() const;
    void checkTable(const Table& table);
    void checkMergedRange(TableLevel& level, const Cell& cell, const CellIndex& index);
    void checkPivotTables(TableLevel& level, const Cell& cell, const CellIndex& index);
    void checkParagraphs(const Blocks& blocks, const Rule& rule);
    template <class NamedStyle>
    void validateStyles(const UUIDContainer<NamedStyle>& namedStyles, NativeDOMNodeType step);
    void reportHazard(const UUID& styleKey, const Rule& rule);
    template <class NamedStyle>
    void collectStyleHazards(const UUIDContainer<NamedStyle>& namedStyles, NativeDOMNodeType step);
    void collectTakenKeys(const UUIDContainer<NamedTextStyle>& textStyles);

    std::vector<Finding>* _findings;
    WalkAddress _address;
    std::vector<Level> _levels;
    std::size_t _nestedLevels = 0;
    boost::unordered_set<std::string, SeededHash> _tableNames;
    /// The list tags of the scope at hand, and where each is used first: the numbers of recorded addresses.
    boost::unordered_set<UUID, SeededHash> _listTags;
    std::vector<std::pair<UUID, std::size_t>> _listTagUses;
    /// The list tags of the finished scopes.
    boost::unordered_set<UUID, SeededHash> _tmpListTags;
};

/// Puts steps behind the address for its own life.
class ValidatorWalk::Steps {
public:
    template <class... Items>
    explicit Steps(WalkAddress& address, Items&&... items) : _address(address), _size(address.size())
    {
        address.appendItems(std::forward<Items>(items)...);
    }
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;
    ~Steps() { _address.cutToPosition(_size); }

private:
    WalkAddress& _address;
    std::size_t _size;
};

} // namespace QN::DOM
