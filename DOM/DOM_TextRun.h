#pragma once

#include <string>
#include <utility>

#include "DOM/DOM_Run.h"

namespace QN::DOM {

/// A stretch of text in UTF-8, which may be empty.
class DOM_API TextRun final : public Reflectable<Run> {
public:
    enum class CopyStrategy : unsigned char {
        Everything = 0,
        WithoutText = 1,
    };

    TextRun() = default;
    explicit TextRun(std::string text) : _text(std::move(text)) {}
    TextRun(const TextRun& other) = default;
    TextRun(TextRun&&) noexcept = default;
    TextRun(const TextRun& other, CopyStrategy strategy);
    TextRun& operator=(const TextRun& other);
    TextRun& operator=(TextRun&&) noexcept = default;
    ~TextRun() override = default;

    const std::string& getText() const override { return _text; }
    void setText(std::string text) { _text = std::move(text); }
    /// Moves the text out and leaves the run's empty.
    std::string takeText() { return std::exchange(_text, std::string()); }

    QN_VALUE(TextRun)
    QN_CONCRETE(Run)

private:
    std::string _text;

    BOOST_DESCRIBE_CLASS(TextRun, (Run), (), (), (_text))
};

} // namespace QN::DOM
