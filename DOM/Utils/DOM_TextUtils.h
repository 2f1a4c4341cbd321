#pragma once

#include <boost/utility/string_ref.hpp>

#include <memory>
#include <string>

#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/CallableRef.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/ReadonlyVector.h"

/// From plain text to paragraphs and runs, and back. All are linear in the text.
///
/// Text is UTF-8. Where a walk comes to a malformed place it throws an exception of utf8-cpp: "Invalid UTF-8" for a byte that
/// cannot stand there and for an overlong form, "Invalid code point" for a surrogate or a number past U+10FFFF, and
/// "Not enough space" for a sequence that the end of the text cuts short. What was handed on or appended before stays so;
/// the piece of text, or the paragraph, that holds the malformed place does not come.
namespace QN::DOM {

class Block;
class Paragraph;
class Run;
class RunStyle;

/// Hands on the runs of one line: a `TabRun` for each U+0009, and a `TextRun` for each piece of text between them that is
/// not empty. Line ends are text like any other.
DOM_API void splitTextIntoRuns(boost::string_ref text, CallableRef<void(std::unique_ptr<Run>)> sink);

/// Appends the runs of one line to those of the paragraph, all with the given style, the tabs included.
DOM_API void splitTextLineIntoRunsWithProperties(boost::string_ref text, Paragraph& paragraph,
                                                 const SharedStylePtr<RunStyle>& style);

/// Hands on a paragraph for each line, with its runs as by `splitTextIntoRuns`. Code points for which `isEOL` holds end a
/// line, and U+000D with U+000A behind it is one line end. So there is one paragraph more than line ends, and the last one
/// is empty where the text ends in a line end; but an empty text has no paragraph at all.
DOM_API void splitTextIntoParagraphs(boost::string_ref text,
                                     CallableRef<void(std::unique_ptr<Paragraph>)> sink);

/// The text of those blocks that are paragraphs, with a line feed before each that has text somewhere before it. Blocks of
/// other kinds, and the paragraphs inside them, add nothing. Empty paragraphs at the front leave no trace. A null block or
/// run fails the contract "plainPtr".
DOM_API std::string getTextFromParagraphs(const ReadonlyPtrVector<Block>& blocks);

} // namespace QN::DOM
