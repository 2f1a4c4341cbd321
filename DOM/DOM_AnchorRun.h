#pragma once

#include "DOM/DOM_Run.h"

namespace QN::DOM {

/// The place in the text that an object outside it belongs to. Its text is `SpecialCharacter::Anchor`.
class DOM_API AnchorRun final : public Reflectable<Run> {
public:
    const std::string& getText() const override;

    QN_VALUE(AnchorRun)
    QN_CONCRETE(Run)

private:
    BOOST_DESCRIBE_CLASS(AnchorRun, (Run), (), (), ())
};

} // namespace QN::DOM
