#include "Support/Workers.h"

#include "QtSupport/EventPump.h"
#include "Support/MainThread.h"

#include <QCoroTask>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <latch>
#include <memory>
#include <stdexcept>
#include <vector>

using brisklet::isMainThread;
using brisklet::postToMainThread;
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
            std::exit(brisklet::leaveWith(7) + 1);
        },
        testing::ExitedWithCode(7), "");
}

TEST(MainThread, runsWhatIsPostedInOrderAndLater) {
    std::vector<int> order;
    const std::unique_ptr<QThread> thread(QThread::create([&order] {
        for (int index = 0; index < 100; ++index)
            postToMainThread([&order, index] { order.push_back(isMainThread() ? index : -1); });
    }));
    thread->start();
    thread->wait();
    EXPECT_TRUE(order.empty());
    ASSERT_TRUE(testsupport::pumpUntil([&order] { return order.size() == 100; }));
    for (std::size_t index = 0; index < order.size(); ++index)
        EXPECT_EQ(order[index], static_cast<int>(index));
}

} // namespace
