#include "DOM/Properties/DOM_TrackChangesViewMode.h"

#include <gtest/gtest.h>

namespace QN::DOM::TrackChangesViewModeTest {

TEST(TrackChangesViewModeTest, IsASetOfFlags)
{
    EXPECT_EQ(static_cast<unsigned>(TrackChangesViewMode::TrackedProps), 4U);
    EXPECT_EQ(
        static_cast<unsigned>(static_cast<TrackChangesViewMode>(3U) | TrackChangesViewMode::TrackedProps),
        7U);
    EXPECT_EQ(static_cast<TrackChangesViewMode>(6U) & TrackChangesViewMode::TrackedProps,
              TrackChangesViewMode::TrackedProps);
    EXPECT_EQ(static_cast<TrackChangesViewMode>(~4U) & TrackChangesViewMode::TrackedProps,
              TrackChangesViewMode::None);
}

} // namespace QN::DOM::TrackChangesViewModeTest
