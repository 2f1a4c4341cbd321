#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Alignment.h"
#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_LineSpacing.h"
#include "DOM/Properties/DOM_SpacingValue.h"
#include "DOM/Properties/DOM_TabStops.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class BordersProps;

/// What is said of a paragraph. Each member may be absent; tab stops that are present and empty differ from absent ones.
class DOM_API ParaProps {
public:
    boost::optional<SpacingValue> getBeforeSpacing() const { return _beforeSpacing; }
    void setBeforeSpacing(boost::optional<SpacingValue> spacing) { _beforeSpacing = spacing; }

    boost::optional<SpacingValue> getAfterSpacing() const { return _afterSpacing; }
    void setAfterSpacing(boost::optional<SpacingValue> spacing) { _afterSpacing = spacing; }

    boost::optional<LineSpacing> getLineSpacing() const { return _lineSpacing; }
    void setLineSpacing(boost::optional<LineSpacing> spacing) { _lineSpacing = spacing; }

    const std::shared_ptr<const BordersProps>& getBorders() const { return _borders; }
    void setBorders(std::shared_ptr<const BordersProps> borders) { _borders = std::move(borders); }

    boost::optional<Alignment> getAlignment() const { return _alignment; }
    void setAlignment(boost::optional<Alignment> alignment) { _alignment = alignment; }

    boost::optional<float> getLeftIndent() const { return _leftIndent; }
    void setLeftIndent(boost::optional<float> indent) { _leftIndent = indent; }

    boost::optional<float> getRightIndent() const { return _rightIndent; }
    void setRightIndent(boost::optional<float> indent) { _rightIndent = indent; }

    boost::optional<float> getFirstLineIndent() const { return _firstLineIndent; }
    void setFirstLineIndent(boost::optional<float> indent) { _firstLineIndent = indent; }

    /// Whether the spacing between two paragraphs of one style is left out.
    BoolOpt ignoreInternalParagraphSpacing() const { return _ignoreInternalParagraphSpacing; }
    void setIgnoreInternalParagraphSpacing(BoolOpt ignore) { _ignoreInternalParagraphSpacing = ignore; }

    /// Whether the paragraph stays on one page with the next one.
    BoolOpt keepNext() const { return _keepNext; }
    void setKeepNext(BoolOpt keep) { _keepNext = keep; }

    /// Whether the paragraph's lines stay on one page.
    BoolOpt keepLines() const { return _keepLines; }
    void setKeepLines(BoolOpt keep) { _keepLines = keep; }

    BoolOpt hasPageBreakBefore() const { return _hasPageBreakBefore; }
    void setPageBreakBefore(BoolOpt hasBreak) { _hasPageBreakBefore = hasBreak; }

    /// How many lines at least stay at the bottom of a page.
    boost::optional<unsigned char> getOrphanLines() const { return _orphanLines; }
    void setOrphanLines(boost::optional<unsigned char> count) { _orphanLines = count; }

    /// How many lines at least go to the top of a page.
    boost::optional<unsigned char> getWidowLines() const { return _widowLines; }
    void setWidowLines(boost::optional<unsigned char> count) { _widowLines = count; }

    const boost::optional<TabStops>& getTabStops() const { return _tabStops; }
    boost::optional<TabStops>& getTabStops() { return _tabStops; }
    void setTabStops(boost::optional<TabStops> tabStops) { _tabStops = std::move(tabStops); }

    /// 0 for the top level of the outline.
    boost::optional<unsigned long> getOutlineLevel() const { return _outlineLevel; }
    void setOutlineLevel(boost::optional<unsigned long> level) { _outlineLevel = level; }

    QN_ORDERED_VALUE(ParaProps)

private:
    boost::optional<SpacingValue> _beforeSpacing;
    boost::optional<SpacingValue> _afterSpacing;
    boost::optional<LineSpacing> _lineSpacing;
    std::shared_ptr<const BordersProps> _borders;
    boost::optional<Alignment> _alignment;
    boost::optional<float> _leftIndent;
    boost::optional<float> _rightIndent;
    boost::optional<float> _firstLineIndent;
    BoolOpt _ignoreInternalParagraphSpacing;
    BoolOpt _keepNext;
    BoolOpt _keepLines;
    BoolOpt _hasPageBreakBefore;
    boost::optional<unsigned char> _orphanLines;
    boost::optional<unsigned char> _widowLines;
    boost::optional<TabStops> _tabStops;
    boost::optional<unsigned long> _outlineLevel;

    BOOST_DESCRIBE_CLASS(ParaProps, (), (), (),
                         (_beforeSpacing, _afterSpacing, _lineSpacing, _borders, _alignment, _leftIndent,
                          _rightIndent, _firstLineIndent, _ignoreInternalParagraphSpacing, _keepNext,
                          _keepLines, _hasPageBreakBefore, _orphanLines, _widowLines, _tabStops,
                          _outlineLevel))
};

/// Tab stops combine by position in `override` and `intersect`, and as a whole in the other two.
QN_DECLARE_ALGEBRA(ParaProps)

} // namespace QN::DOM
