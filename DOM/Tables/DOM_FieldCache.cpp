#include "DOM/Tables/DOM_FieldCache.h"

#include <memory>
#include <utility>

#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_TextRun.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

PivotTableValue makeValue(std::unique_ptr<Block> block)
{
    PivotTableValue::Blocks blocks;
    blocks.push_back(std::move(block));
    return PivotTableValue(std::move(blocks));
}

template <class Content>
PivotTableValue makeFieldValue(Content content)
{
    auto block = std::make_unique<FieldBlock>();
    block->getFieldInfo() = std::move(content);
    return makeValue(std::move(block));
}

} // namespace

QN_DEFINE_VALUE(FieldCache)
QN_REGISTER_RELATION(UUIDable, FieldCache)

void FieldCache::addValue(ColumnID id, PivotTableValue value)
{
    _fieldValueCache[id].push_back(std::move(value));
}

void FieldCache::addValue(ColumnID id, const std::string& text)
{
    auto paragraph = std::make_unique<Paragraph>();
    if (!text.empty()) {
        paragraph->getRuns().push_back(std::make_unique<TextRun>(text));
    }
    addValue(id, makeValue(std::move(paragraph)));
}

void FieldCache::addValue(ColumnID id, double number)
{
    addValue(id, BlockValue<FloatNumber>(FloatNumber(number)));
}

void FieldCache::addValue(ColumnID id, const BlockValue<FloatNumber>& number)
{
    addValue(id, makeFieldValue(number));
}

void FieldCache::addBool(ColumnID id, bool value)
{
    addValue(id, makeFieldValue(BlockValue<bool>(value)));
}

const FieldCache::Values* FieldCache::getValues(ColumnID id) const
{
    const auto entry = _fieldValueCache.find(id);
    return entry == _fieldValueCache.end() ? nullptr : &entry->second;
}

} // namespace QN::DOM
