#pragma once

#include "DOM/DOM_UUIDContainer.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/TaggedValue.h"

namespace QN::DOM {

class SectionProps;

struct PageIndexTag {};

/// The place of a page in its section, 0 for the first.
using PageIndex = TaggedValue<unsigned long, PageIndexTag>;

/// The headers and footers of a page of a section; null when the section has none.
///
/// Each page takes the next pair of the section's chain. The last pair of a chain governs all later pages, and two pairs
/// that follow each other take the odd and the even pages. At most a few look-ups for each pair, whatever the page.
DOM_API const HeaderFooterPair* getHeaderFooter(const SectionProps& section,
                                                const UUIDContainer<HeaderFooterPair>& pairs,
                                                PageIndex pageIndex);

/// The first pair of a section, if it names a next one, which need not exist, and no pair of `pairs`, itself included,
/// names it as next; else null. So a lone pair gives null. Linear in the number of pairs.
DOM_API const HeaderFooterPair* getLeadingHeaderFooterIfUnique(const SectionProps& section,
                                                               const UUIDContainer<HeaderFooterPair>& pairs);

} // namespace QN::DOM
