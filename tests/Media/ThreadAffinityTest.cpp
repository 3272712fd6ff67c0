#include "Media/Threading/ThreadAffinity.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using media::ThreadAffinity;

bool isCurrentElsewhere(const ThreadAffinity& affinity) {
    bool isCurrent = false;
    std::jthread([&] { isCurrent = affinity.isCurrent(); }).join();
    return isCurrent;
}

TEST(Verify, letsPassWhatHolds) {
    media::verify(1 < 2, "one is less than two");
}

TEST(VerifyDeathTest, abortsWithThePlaceOfTheCallAndWhatShouldHaveHeld) {
    EXPECT_DEATH(media::verify(2 < 1, "two is less than one"),
                 "ThreadAffinityTest\\.cpp:[0-9]+: .*: two is less than one");
}

TEST(ThreadAffinity, isOwnedByTheThreadThatMadeIt) {
    const ThreadAffinity affinity;
    EXPECT_TRUE(affinity.isCurrent());
    EXPECT_FALSE(isCurrentElsewhere(affinity));
    affinity.check();
}

TEST(ThreadAffinity, isOwnedByTheNextThreadAfterItWasHandedOver) {
    ThreadAffinity affinity;
    affinity.handOver();
    EXPECT_TRUE(isCurrentElsewhere(affinity));
    EXPECT_FALSE(affinity.isCurrent());
}

TEST(ThreadAffinityDeathTest, abortsOnAnotherThreadWithThePlaceOfTheCheck) {
    const ThreadAffinity affinity;
    EXPECT_DEATH(std::jthread([&] { affinity.check(); }).join(),
                 "ThreadAffinityTest\\.cpp:[0-9]+: .*: called on another thread");
}

} // namespace
