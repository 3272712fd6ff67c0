#include "Support/Workers.h"

#include "FaultySystem/FaultySystem.h"
#include "Media/Error.h"
#include "QtSupport/EventPump.h"
#include "Support/MainThread.h"

#include <QCoroTask>

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <latch>
#include <stdexcept>

using brisklet::isMainThread;
using brisklet::runOnWorker;

namespace {

struct OddFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

TEST(Workers, runOffTheMainThreadAndResumeOnIt) {
    bool resumedOnMainThread = false;
    const auto task = [&resumedOnMainThread]() -> QCoro::Task<bool> {
        auto work = runOnWorker([] { return isMainThread(); });
        const bool wasMainThread = co_await work;
        resumedOnMainThread = isMainThread();
        co_return wasMainThread;
    };
    EXPECT_FALSE(testsupport::await(task()));
    EXPECT_TRUE(resumedOnMainThread);
}

TEST(Workers, carryExceptionsWithTheirType) {
    EXPECT_THROW(testsupport::await(runOnWorker([] { throw OddFailure("odd"); })), OddFailure);
    EXPECT_THROW(testsupport::await(runOnWorker([]() -> int { throw OddFailure("odd"); })),
                 OddFailure);
}

// g++ 12 once destroyed what the work had captured twice.
TEST(Workers, keepWhatTheWorkHoldsExactlyAsLongAsItRuns) {
    auto held = std::make_shared<QString>(QStringLiteral("held"));
    const std::weak_ptr<QString> weak = held;
    const auto length = testsupport::await(runOnWorker([held] { return held->size(); }));
    EXPECT_EQ(length, 4);
    EXPECT_EQ(held.use_count(), 1);
    held.reset();
    EXPECT_TRUE(weak.expired());
}

// Two exports on a machine with two processors once kept every other window waiting.
TEST(Workers, neverWaitBehindLongOnes) {
    constexpr int kCount = 40;
    std::latch all(kCount);
    std::atomic<int> done = 0;
    for (int index = 0; index < kCount; ++index) {
        brisklet::startWorker([&all, &done] {
            all.arrive_and_wait();
            ++done;
        });
    }
    brisklet::waitForWorkers();
    EXPECT_EQ(done, kCount);
}

// Work whose thread the system did not start was never heard of again.
TEST(Workers, areRefusedWithASentenceWhereThereIsNoThread) {
    testsupport::setSystemJudge([](const testsupport::SystemCall& call) {
        const bool isThread = call.kind == testsupport::SystemCall::Kind::startThread;
        return testsupport::SystemAnswer{.error = isThread ? EAGAIN : 0};
    });
    bool hasRun = false;
    EXPECT_THROW(brisklet::startWorker([&hasRun] { hasRun = true; }), media::Error);
    EXPECT_THROW(testsupport::await(runOnWorker([&hasRun] { hasRun = true; })), media::Error);
    testsupport::setSystemJudge({});
    EXPECT_FALSE(hasRun);
    EXPECT_TRUE(brisklet::waitForWorkers(std::chrono::milliseconds(0)));
    testsupport::await(runOnWorker([&hasRun] { hasRun = true; }));
    EXPECT_TRUE(hasRun);
}

TEST(Workers, areNotWaitedForWithoutEndWhereThereIsALimit) {
    std::latch disk(1);
    brisklet::startWorker([&disk] { disk.wait(); });
    EXPECT_FALSE(brisklet::waitForWorkers(std::chrono::milliseconds(1)));
    disk.count_down();
    EXPECT_TRUE(brisklet::waitForWorkers());
}

TEST(WorkersDeathTest, thatNeverEndDoNotKeepTheProcess) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            brisklet::startWorker([] { std::latch(1).wait(); });
            std::exit(brisklet::exitStatusAfterWorkers(7) + 1);
        },
        testing::ExitedWithCode(7), "");
}

} // namespace
