#include "toolkit/resize_tracker.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

void ExpectChange(const ResizeTracker::Change& change, int width, int height) {
    EXPECT_EQ(change.width, width);
    EXPECT_EQ(change.height, height);
}

TEST(ResizeTracker, TellsTheChangeSinceTheRememberedSize) {
    ResizeTracker tracker;
    tracker.Remember(600, 400);
    ExpectChange(tracker.ChangeTo(700, 350), 100, -50);
}

TEST(ResizeTracker, RemembersEachSizeThatItWasToldOf) {
    ResizeTracker tracker;
    tracker.Remember(600, 400);
    ExpectChange(tracker.ChangeTo(610, 405), 10, 5);
    ExpectChange(tracker.ChangeTo(610, 405), 0, 0);
    ExpectChange(tracker.ChangeTo(600, 400), -10, -5);
}

}  // namespace
}  // namespace toolkit
