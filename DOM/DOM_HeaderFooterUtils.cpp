#include "DOM/DOM_HeaderFooterUtils.h"

#include <algorithm>
#include <cstddef>

#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/Properties/DOM_SectionProps.h"

namespace QN::DOM {

namespace {

using Pairs = UUIDContainer<HeaderFooterPair>;

const HeaderFooterPair* findNext(const Pairs& pairs, const HeaderFooterPair& pair)
{
    return pairs.find(pair.getNextHeaderFooterUUID());
}

/// The number of pairs in the circle that `pair` is part of.
unsigned long getCycleLength(const Pairs& pairs, const HeaderFooterPair& pair)
{
    unsigned long length = 1;
    for (const auto* other = findNext(pairs, pair); other != &pair; other = findNext(pairs, *other)) {
        ++length;
    }
    return length;
}

} // namespace

const HeaderFooterPair* getHeaderFooter(const SectionProps& section, const Pairs& pairs, PageIndex pageIndex)
{
    if (!section.getHeaderFooterUUID() || pairs.empty()) {
        return nullptr;
    }
    const HeaderFooterPair* current = pairs.find(section.getHeaderFooterUUID());
    if (current == nullptr) {
        return nullptr;
    }
    std::size_t walked = 0;
    for (unsigned long steps = pageIndex.get(); steps > 0; --steps) {
        const HeaderFooterPair* const next = findNext(pairs, *current);
        if (next == nullptr) {
            return current;
        }
        if (next->getNextHeaderFooterUUID() == current->getUUID()) {
            return steps % 2 != 0 ? next : current;
        }
        current = next;
        // After as many steps as there are pairs, the chain runs in a circle: whole rounds change nothing.
        if (++walked == pairs.size()) {
            steps = (steps - 1) % getCycleLength(pairs, *current) + 1;
        }
    }
    return current;
}

const HeaderFooterPair* getLeadingHeaderFooterIfUnique(const SectionProps& section, const Pairs& pairs)
{
    if (pairs.empty()) {
        return nullptr;
    }
    const UUID& uuid = section.getHeaderFooterUUID();
    const HeaderFooterPair* const leading = pairs.find(uuid);
    if (leading == nullptr || !leading->getNextHeaderFooterUUID()) {
        return nullptr;
    }
    const bool isNext = std::any_of(pairs.begin(), pairs.end(), [&](const HeaderFooterPair& pair) {
        return pair.getNextHeaderFooterUUID() == uuid;
    });
    return isNext ? nullptr : leading;
}

} // namespace QN::DOM
