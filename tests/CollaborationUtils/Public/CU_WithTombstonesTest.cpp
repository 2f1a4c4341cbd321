#include "CollaborationUtils/Public/CU_WithTombstones.h"

#include <gtest/gtest.h>

namespace QN::CollaborationUtils::CU_WithTombstonesTest {
namespace {

TEST(CU_WithTombstones, IgnoresTombstonesWithTheValueZero)
{
    EXPECT_EQ(static_cast<int>(WithTombstones::No), 0);
    EXPECT_NE(static_cast<int>(WithTombstones::Yes), 0);
}

} // namespace
} // namespace QN::CollaborationUtils::CU_WithTombstonesTest
