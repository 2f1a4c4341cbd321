#include "DOM/Utils/DOM_TextUtils.h"

#include <utf8.h>

#include <utility>

#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_TabRun.h"
#include "DOM/DOM_TextRun.h"
#include "Utils/Public/UTF8.h"

namespace QN::DOM {

namespace {

bool isNever(char32_t /*codePoint*/)
{
    return false;
}

/// Takes the runs of a text one line at a time.
class LineReader {
public:
    explicit LineReader(boost::string_ref text) : _position(text.data()), _end(text.data() + text.size()) {}

    /// Hands on the runs up to the next line end, which it steps over.
    /// @return false if there was none before the end of the text.
    template <class Sink>
    bool readLine(const Sink& sink, bool (*isLineEnd)(char32_t))
    {
        const char* pieceBegin = _position;
        const auto handOnPiece = [&](const char* pieceEnd) {
            if (pieceBegin != pieceEnd) {
                sink(std::make_unique<TextRun>(std::string(pieceBegin, pieceEnd)));
            }
        };
        while (_position != _end) {
            const char* const before = _position;
            const char32_t codePoint = utf8::next(_position, _end);
            if (codePoint == U'\t') {
                handOnPiece(before);
                sink(std::make_unique<TabRun>());
                pieceBegin = _position;
            } else if (isLineEnd(codePoint)) {
                handOnPiece(before);
                if (codePoint == U'\r' && _position != _end && *_position == '\n') {
                    ++_position;
                }
                return true;
            }
        }
        handOnPiece(_end);
        return false;
    }

private:
    const char* _position;
    const char* _end;
};

} // namespace

void splitTextIntoRuns(boost::string_ref text, CallableRef<void(std::unique_ptr<Run>)> sink)
{
    LineReader(text).readLine(sink, isNever);
}

void splitTextLineIntoRunsWithProperties(boost::string_ref text, Paragraph& paragraph,
                                         const SharedStylePtr<RunStyle>& style)
{
    const auto append = [&](std::unique_ptr<Run> run) {
        run->getSharedStyle() = style;
        paragraph.getRuns().push_back(std::move(run));
    };
    LineReader(text).readLine(append, isNever);
}

void splitTextIntoParagraphs(boost::string_ref text, CallableRef<void(std::unique_ptr<Paragraph>)> sink)
{
    if (text.empty()) {
        return;
    }
    LineReader reader(text);
    bool isLineEnded = true;
    while (isLineEnded) {
        auto paragraph = std::make_unique<Paragraph>();
        const auto append = [&](std::unique_ptr<Run> run) { paragraph->getRuns().push_back(std::move(run)); };
        isLineEnded = reader.readLine(append, isEOL);
        sink(std::move(paragraph));
    }
}

std::string getTextFromParagraphs(const ReadonlyPtrVector<Block>& blocks)
{
    std::string text;
    for (const Block& block : blocks) {
        visit<void>(block, [&](const Paragraph& paragraph) {
            if (!text.empty()) {
                text += '\n';
            }
            for (const Run& run : paragraph.getRuns()) {
                text += run.getText();
            }
        });
    }
    return text;
}

} // namespace QN::DOM
