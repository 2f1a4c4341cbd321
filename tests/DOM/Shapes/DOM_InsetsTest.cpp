#include "DOM/Shapes/DOM_Insets.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/Shapes/SidesTest.h"

namespace QN::DOM::InsetsTest {

using namespace Test;

static_assert(std::is_same_v<decltype(Insets().getLeft()), boost::optional<float>>);

INSTANTIATE_TYPED_TEST_SUITE_P(Insets, SidesTest, Insets);

} // namespace QN::DOM::InsetsTest
