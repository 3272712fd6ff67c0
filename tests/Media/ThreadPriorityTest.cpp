#include "Media/ThreadPriority.h"

#include <gtest/gtest.h>

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
