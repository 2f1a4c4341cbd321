#include <gtest/gtest.h>

#include <utf8.h>

#include <memory>
#include <string>

#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_Run.h"
#include "DOM/Utils/DOM_TextUtils.h"

/// The exceptions of utf8-cpp come out of the library with their types, although it shows none of their symbols.

namespace QN::DOM::TextUtilsExceptionTest {

namespace {

/// In each of the ways to split a text.
template <class Exception>
void expectThrown(const std::string& text)
{
    SCOPED_TRACE(testing::PrintToString(text));
    EXPECT_THROW(splitTextIntoRuns(text, [](std::unique_ptr<DOM::Run>) {}), Exception);
    EXPECT_THROW(splitTextIntoParagraphs(text, [](std::unique_ptr<Paragraph>) {}), Exception);
    Paragraph paragraph;
    EXPECT_THROW(splitTextLineIntoRunsWithProperties(text, paragraph, {}), Exception);
    EXPECT_THROW(splitTextIntoRuns(text, [](std::unique_ptr<DOM::Run>) {}), utf8::exception);
}

TEST(TextUtilsExceptionTest, MalformedTextRaisesTheExceptionsOfUtf8Cpp)
{
    expectThrown<utf8::invalid_utf8>("a\x80");
    expectThrown<utf8::invalid_code_point>("a\xED\xA0\x80");
    expectThrown<utf8::not_enough_room>("a\xE2\x82");
}

} // namespace

} // namespace QN::DOM::TextUtilsExceptionTest
