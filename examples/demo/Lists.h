#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "DOM/DOM.h"

namespace Demo {

/// A place in one of the document's predefined lists, for a paragraph to take. Paragraphs with one tag are one list.
std::unique_ptr<QN::DOM::NumberingRef> makeNumberingRef(const QN::DOM::Document& document,
                                                        QN::DOM::NumberedListName list, const QN::UUID& tag,
                                                        unsigned long level);

/// What stands before the paragraphs of lists. The library stores templates such as "%1.%2."; this counts the paragraphs
/// and fills the counts in.
class ListMarkers {
public:
    explicit ListMarkers(const QN::DOM::Document& document) : _document(document) {}

    /// The level of its list that a paragraph is on; null for a paragraph of no list.
    const QN::DOM::NumberingLevel* findLevel(const QN::DOM::Paragraph& paragraph) const;

    /// The marker of the next paragraph: all paragraphs have to be asked for, in their order. Empty for one of no list.
    std::string getNext(const QN::DOM::Paragraph& paragraph);

private:
    const QN::DOM::NumberedList* findList(const QN::DOM::NumberingRef& ref) const;

    const QN::DOM::Document& _document;
    /// The counts of the levels of each list, by the list's tag.
    std::map<QN::UUID, std::vector<unsigned long>> _counts;
};

} // namespace Demo
