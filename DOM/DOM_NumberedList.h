#pragma once

#include <memory>
#include <vector>

#include "DOM/DOM_NumberedListName.h"
#include "DOM/DOM_NumberingLevel.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ReadonlyVector.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

/// A numbered or bulleted list of a document, which paragraphs join through a `NumberingRef`. Copies own their levels.
class DOM_API NumberedList final : public Reflectable<UUIDable> {
public:
    NumberedList() = default;
    explicit NumberedList(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}
    QN_DEEP_COPY(NumberedList)
    ~NumberedList() override = default;

    /// A null level can come from a file; it stays. Reading it through the const form fails the contract "plainPtr".
    ReadonlyPtrVector<NumberingLevel> getNumberingLevels() const { return _levels; }
    std::vector<std::unique_ptr<NumberingLevel>>& getNumberingLevels() { return _levels; }

    NumberedListName getName() const { return _name; }
    void setName(NumberedListName name) { _name = name; }

    QN_VALUE(NumberedList)

private:
    std::vector<std::unique_ptr<NumberingLevel>> _levels;
    NumberedListName _name = NumberedListName::None;

    BOOST_DESCRIBE_CLASS(NumberedList, (UUIDable), (), (), (_levels, _name))
};

} // namespace QN::DOM
