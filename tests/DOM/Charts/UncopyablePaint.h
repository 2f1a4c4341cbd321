#pragma once

#include <memory>
#include <new>

#include "DOM/Charts/DOM_ChartGraphicProps.h"

/// For tests of what a copy that fails leaves behind.

namespace QN::Test {

/// A fill that cannot be copied.
class UncopyableFill final : public DOM::Fill {
public:
    void cloneTo(std::shared_ptr<DOM::Fill>& /*target*/) const override { throw std::bad_alloc(); }
    void cloneTo(std::unique_ptr<DOM::Fill>& /*target*/) const override { throw std::bad_alloc(); }
    void accept(Visitor& /*visitor*/) override {}
    void accept(ConstVisitor& /*visitor*/) const override {}
};

inline DOM::ChartGraphicProps makeUncopyablePaint()
{
    DOM::ChartGraphicProps paint;
    paint.setFill(std::make_unique<UncopyableFill>());
    return paint;
}

} // namespace QN::Test
