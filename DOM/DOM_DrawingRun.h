#pragma once

#include <utility>

#include "DOM/DOM_Run.h"
#include "DOM/Shapes/DOM_Frame.h"

namespace QN::DOM {

/// A picture or a chart in the text. Its text is `SpecialCharacter::Drawing`.
class DOM_API DrawingRun final : public Reflectable<Run> {
public:
    DrawingRun() = default;
    explicit DrawingRun(Frame frame) : _frame(std::move(frame)) {}

    const Frame& getFrame() const { return _frame; }
    Frame& getFrame() { return _frame; }

    const std::string& getText() const override;

    QN_VALUE(DrawingRun)
    QN_CONCRETE(Run)

private:
    Frame _frame;

    BOOST_DESCRIBE_CLASS(DrawingRun, (Run), (), (), (_frame))
};

} // namespace QN::DOM
