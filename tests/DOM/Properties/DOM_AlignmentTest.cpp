#include "DOM/Properties/DOM_Alignment.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "Support/RoundTrip.h"

namespace QN::DOM::AlignmentTest {

using namespace Test;

static_assert(std::is_same_v<std::underlying_type_t<Alignment>, unsigned char>);

TEST(AlignmentTest, PersistsAsItsNumberNamedOrNot)
{
    EXPECT_EQ(toJson(Alignment::Justify), R"({"object":3})");
    expectRoundTrip(Alignment::Left);
    expectRoundTrip(static_cast<Alignment>(255));
    EXPECT_NE(loadError<Alignment>(R"({"object":256})"), "<loaded>");
}

} // namespace QN::DOM::AlignmentTest
