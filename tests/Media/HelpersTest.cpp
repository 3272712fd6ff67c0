#include "Media/Error.h"
#include "Media/Threading/Helpers.h"

#include <gmock/gmock.h>

#include <atomic>
#include <latch>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

namespace media {
namespace {

using testing::Each;
using testing::Ge;
using testing::Lt;
using testing::SizeIs;

TEST(Helpers, doEachPieceOnce) {
    for (const int count : {0, 1, 6}) {
        Helpers helpers(count);
        for (const int pieces : {0, 1, 3, 100}) {
            std::vector<std::atomic<int>> done(static_cast<std::size_t>(pieces));
            helpers.run(pieces, [&](int piece, int) { ++done[static_cast<std::size_t>(piece)]; });
            EXPECT_THAT(std::vector<int>(done.begin(), done.end()), Each(1))
                << count << " helpers, " << pieces << " pieces";
        }
    }
}

/// Each piece waits for another one that has begun: this ends only if two work at the same time.
TEST(Helpers, workAtTheSameTimeUnderDifferentNumbers) {
    Helpers helpers(3);
    std::latch bothBegun(2);
    std::mutex mutex;
    std::set<int> workers;
    helpers.run(2, [&](int, int worker) {
        bothBegun.arrive_and_wait();
        const std::lock_guard lock(mutex);
        workers.insert(worker);
    });
    EXPECT_THAT(workers, SizeIs(2));
    EXPECT_THAT(workers, Each(Ge(0)));
    EXPECT_THAT(workers, Each(Lt(helpers.workers())));
}

TEST(Helpers, reportAFailureAndWorkOn) {
    Helpers helpers(3);
    EXPECT_THROW(helpers.run(50,
                             [](int piece, int) {
                                 if (piece == 20)
                                     throw Error(ErrorKind::notEnoughMemory);
                             }),
                 Error);
    std::atomic<int> done = 0;
    helpers.run(50, [&](int, int) { ++done; });
    EXPECT_EQ(done, 50);
}

/// As several windows do.
TEST(Helpers, helpSeveralAtATime) {
    Helpers helpers(2);
    std::atomic<int> done = 0;
    std::vector<std::jthread> callers;
    for (int i = 0; i < 4; ++i) {
        callers.emplace_back([&] {
            for (int round = 0; round < 50; ++round)
                helpers.run(10, [&](int, int) { ++done; });
        });
    }
    callers.clear();
    EXPECT_EQ(done, 4 * 50 * 10);
}

TEST(Helpers, areSharedForAsLongAsAnybodyKeepsThem) {
    const auto helpers = Helpers::shared();
    EXPECT_EQ(Helpers::shared(), helpers);
    EXPECT_GE(helpers->workers(), 1);
}

} // namespace
} // namespace media
