#include "Media/Threading/ThreadPriority.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

/// Of the calling thread.
int niceness() {
    return ::getpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()));
}

/// The least favourable there is; one that already stands back so far cannot stand back further.
constexpr int kMost = 19;

TEST(ThreadPriority, aThreadThatStandsBackLeavesTheOthersAsTheyAre) {
    const int before = niceness();
    int inside = -1;
    std::jthread([&] {
        media::standBack(kMost);
        inside = niceness();
    }).join();
    EXPECT_EQ(inside, kMost);
    EXPECT_EQ(niceness(), before);
}

TEST(ThreadPriority, standsBackBehindThoseOfItsOwnRank) {
    const int before = niceness();
    int once = -1;
    int twice = -1;
    std::jthread([&] {
        media::standBack(3);
        once = niceness();
        media::standBack(4);
        twice = niceness();
    }).join();
    EXPECT_EQ(once, std::min(before + 3, kMost));
    EXPECT_EQ(twice, std::min(before + 7, kMost));
}

TEST(ThreadPriority, threadsStartedByWorkThatStandsBackDoSoToo) {
    const int before = niceness();
    int inherited = -1;
    std::jthread left;
    media::runStandingBack(kMost, [&] { left = std::jthread([&] { inherited = niceness(); }); });
    left.join();
    EXPECT_EQ(inherited, kMost);
    EXPECT_EQ(niceness(), before);
}

TEST(ThreadPriority, whatTheWorkThrowsReachesTheCaller) {
    EXPECT_THROW(media::runStandingBack(kMost, [] { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

} // namespace
