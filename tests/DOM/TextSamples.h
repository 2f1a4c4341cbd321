#pragma once

#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_AnchorRun.h"
#include "DOM/DOM_BookmarkRun.h"
#include "DOM/DOM_BreakRun.h"
#include "DOM/DOM_DrawingRun.h"
#include "DOM/DOM_FieldRun.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_TabRun.h"
#include "DOM/DOM_TextRun.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/ValueChecks.h"
#include "Support/Clones.h"

/// Small pieces of text for the tests of what holds them.

namespace QN::Test {

inline UUID makeUUID(char digit)
{
    std::string text = "00000000-0000-0000-0000-000000000000";
    text.back() = digit;
    return UUID(text);
}

/// A handle of its own, however many there are to an equal style.
template <class T>
DOM::SharedStylePtr<T> makeSharedStyle(char parentDigit)
{
    T style;
    style.setParentUUID(makeUUID(parentDigit));
    return DOM::SharedObjectFactory().create(std::move(style));
}

template <class T>
DOM::SharedStylePtr<T> makeEmptySharedStyle()
{
    return DOM::SharedStylePtr<T>(new DOM::SharedStyle<T>());
}

inline std::unique_ptr<DOM::TextRun> makeText(std::string text)
{
    return std::make_unique<DOM::TextRun>(std::move(text));
}

inline DOM::Paragraph makeParagraphValue(const std::vector<std::string>& texts)
{
    DOM::Paragraph paragraph;
    for (const std::string& text : texts) {
        paragraph.getRuns().push_back(makeText(text));
    }
    return paragraph;
}

inline std::unique_ptr<DOM::Paragraph> makeParagraph(const std::vector<std::string>& texts)
{
    return std::make_unique<DOM::Paragraph>(makeParagraphValue(texts));
}

/// A run of each kind, in the order of the family.
inline std::vector<std::unique_ptr<DOM::Run>> makeOneRunOfEachKind()
{
    std::vector<std::unique_ptr<DOM::Run>> runs;
    runs.push_back(makeText("text"));
    runs.push_back(std::make_unique<DOM::TabRun>());
    runs.push_back(std::make_unique<DOM::BreakRun>(DOM::BreakType::Page));
    runs.push_back(std::make_unique<DOM::DrawingRun>());
    runs.push_back(std::make_unique<DOM::BookmarkRun>("bookmark"));
    runs.push_back(std::make_unique<DOM::FieldRun>());
    runs.push_back(std::make_unique<DOM::AnchorRun>());
    return runs;
}

/// A run that cannot be copied.
class UncopyableRun final : public DOM::Run {
public:
    void cloneTo(std::shared_ptr<DOM::Run>& /*target*/) const override { throw std::bad_alloc(); }
    void cloneTo(std::unique_ptr<DOM::Run>& /*target*/) const override { throw std::bad_alloc(); }
    void accept(Visitor& /*visitor*/) override {}
    void accept(ConstVisitor& /*visitor*/) const override {}

    const std::string& getText() const override
    {
        static const std::string Text;
        return Text;
    }
};

/// The JSON text of a null handle.
inline constexpr const char* NullHandleJson = R"({"id":0})";

/// The JSON text of the base of a run without a style.
inline constexpr const char* PlainRunJson = R"("value0":{"_style":{"id":0}})";

inline std::string makeUUIDJson(char digit)
{
    return R"({"_id":"00000000-0000-0000-0000-00000000000)" + std::string(1, digit) + "\"}";
}

} // namespace QN::Test
