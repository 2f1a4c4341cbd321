#pragma once

#include "DOM/DOM_Block.h"
#include "DOM/Properties/DOM_SectionProps.h"

namespace QN::DOM {

/// Ends a section among the top-level blocks of a document.
class DOM_API SectionTag final : public Reflectable<Block> {
public:
    const SectionProps& getSectionProps() const { return _sectionProps; }
    SectionProps& getSectionProps() { return _sectionProps; }

    QN_VALUE(SectionTag)
    QN_CONCRETE(Block)

private:
    SectionProps _sectionProps;

    BOOST_DESCRIBE_CLASS(SectionTag, (Block), (), (), (_sectionProps))
};

} // namespace QN::DOM
