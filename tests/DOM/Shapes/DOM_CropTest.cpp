#include "DOM/Shapes/DOM_Crop.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/Shapes/SidesTest.h"

namespace QN::DOM::CropTest {

using namespace Test;

static_assert(std::is_same_v<decltype(Crop().getLeft()), boost::optional<double>>);

INSTANTIATE_TYPED_TEST_SUITE_P(Crop, SidesTest, Crop);

} // namespace QN::DOM::CropTest
