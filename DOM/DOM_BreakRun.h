#pragma once

#include <cstdint>

#include "DOM/DOM_Run.h"

namespace QN::DOM {

/// Where the text goes on after a break. Any other number passes through unchanged.
enum class BreakType : std::int32_t {
    Line = 0,
    Page = 1,
    Column = 2,
};

/// A break within a paragraph. Its text is U+000C, a form feed, whatever the type.
class DOM_API BreakRun final : public Reflectable<Run> {
public:
    BreakRun() = default;
    explicit BreakRun(BreakType type) : _type(type) {}

    BreakType getType() const { return _type; }

    const std::string& getText() const override;

    QN_VALUE(BreakRun)
    QN_CONCRETE(Run)

private:
    BreakType _type{};

    BOOST_DESCRIBE_CLASS(BreakRun, (Run), (), (), (_type))
};

} // namespace QN::DOM
