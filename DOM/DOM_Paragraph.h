#pragma once

#include <memory>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/DOM_Run.h"
#include "DOM/Properties/DOM_NumberingRef.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_RunStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

/// A paragraph: runs one after the other. An empty paragraph has no runs.
///
/// A null run can come from a file. It is copied, compared and saved as it stands; reading it through `getRuns() const`
/// fails the contract "plainPtr".
class DOM_API Paragraph final : public Reflectable<Block> {
public:
    enum class CopyStrategy : unsigned char {
        Everything = 0,
        WithoutRuns = 1,
    };

    Paragraph() = default;
    /// Shares the styles and the token of `IDHolder` with the source; runs are copied deeply.
    Paragraph(const Paragraph& other, CopyStrategy strategy);
    Paragraph(const Paragraph& other) : Paragraph(other, CopyStrategy::Everything) {}
    Paragraph(Paragraph&&) noexcept = default;
    Paragraph& operator=(const Paragraph& other);
    Paragraph& operator=(Paragraph&&) noexcept = default;
    ~Paragraph() override = default;

    ReadonlyPtrVector<Run> getRuns() const { return _runs; }
    std::vector<std::unique_ptr<Run>>& getRuns() { return _runs; }

    /// The style behind the handle, or the one empty style of the process where the handle is null.
    const ParagraphStyle& getStyle() const { return derefSharedStyle(_style); }
    const SharedStylePtr<ParagraphStyle>& getSharedStyle() const { return _style; }
    SharedStylePtr<ParagraphStyle>& getSharedStyle() { return _style; }

    /// The style of the mark that ends the paragraph, in the same way.
    const RunStyle& getParaMarkStyle() const { return derefSharedStyle(_paraMarkStyle); }
    const SharedStylePtr<RunStyle>& getSharedParaMarkStyle() const { return _paraMarkStyle; }
    SharedStylePtr<RunStyle>& getSharedParaMarkStyle() { return _paraMarkStyle; }

    /// The place in a numbered list; null for none.
    const std::unique_ptr<NumberingRef>& getNumRef() const { return _numRef; }
    std::unique_ptr<NumberingRef>& getNumRef() { return _numRef; }

    /// Styles compare by value where neither handle is null; a null handle is unequal to one of an empty style.
    QN_VALUE(Paragraph)
    QN_CONCRETE(Block)

private:
    std::vector<std::unique_ptr<Run>> _runs;
    SharedStylePtr<ParagraphStyle> _style;
    SharedStylePtr<RunStyle> _paraMarkStyle;
    std::unique_ptr<NumberingRef> _numRef;

    BOOST_DESCRIBE_CLASS(Paragraph, (Block), (), (), (_runs, _style, _paraMarkStyle, _numRef))
};

} // namespace QN::DOM
