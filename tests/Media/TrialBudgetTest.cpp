#include "Media/Export/TrialBudget.h"

#include <gtest/gtest.h>

#include <ctime>
#include <semaphore>
#include <thread>

namespace media {
namespace {

constexpr double kSeconds = 0.1;

/// Keeps a processor busy until the calling thread has used that many seconds of it.
void useProcessor(double seconds) {
    const auto used = [] {
        timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double end = used() + seconds;
    while (used() < end) {
    }
}

/// The watcher ends the trial at its next look.
void waitForStop(const std::stop_token& token) {
    std::binary_semaphore stopped(0);
    const std::stop_callback wake(token, [&] { stopped.release(); });
    stopped.acquire();
}

TEST(TrialBudget, isNotUsedUpByThreadsThatRanBefore) {
    std::binary_semaphore start(0);
    std::thread other([&] {
        start.acquire();
        useProcessor(5 * kSeconds);
    });
    const TrialBudget budget({}, kSeconds);
    start.release();
    other.join();
    EXPECT_FALSE(budget.token().stop_requested());
    EXPECT_LT(budget.used(), kSeconds);
}

TEST(TrialBudget, countsItsOwnThreadAndThoseThatItStarts) {
    const TrialBudget budget({}, 3 * kSeconds);
    useProcessor(kSeconds);
    EXPECT_GE(budget.used(), kSeconds);
    std::thread([] { useProcessor(kSeconds); }).join();
    EXPECT_GE(budget.used(), 2 * kSeconds);
    useProcessor(kSeconds);
    waitForStop(budget.token());
    EXPECT_NO_THROW(budget.expectWanted());
}

} // namespace
} // namespace media
