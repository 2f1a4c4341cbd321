#pragma once

#include "DOM/DOM_Run.h"

namespace QN::DOM {

/// A tab. Its text is U+0009.
class DOM_API TabRun final : public Reflectable<Run> {
public:
    const std::string& getText() const override;

    QN_VALUE(TabRun)
    QN_CONCRETE(Run)

private:
    BOOST_DESCRIBE_CLASS(TabRun, (Run), (), (), ())
};

} // namespace QN::DOM
