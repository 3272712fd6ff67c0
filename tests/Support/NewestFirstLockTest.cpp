#include "Support/NewestFirstLock.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

using brisklet::NewestFirstLock;
using testing::ElementsAre;

namespace {

constexpr std::chrono::hours kLease(1);

/// A lock whose clock is moved by hand.
class NewestFirstLockTest : public testing::Test {
protected:
    void advance(NewestFirstLock::Duration duration) { m_now = m_now.load() + duration; }

    /// Whether another thread gets the lock at once.
    bool isFree() {
        std::atomic<bool> hasReturned = false;
        bool hadLock = false;
        std::jthread thread([&](const std::stop_token& stop) {
            hadLock = m_lock.acquire(stop).has_value();
            hasReturned = true;
        });
        while (!hasReturned && m_lock.waitingCount() == 0)
            std::this_thread::yield();
        thread.request_stop();
        thread.join();
        return hadLock;
    }

    void waitForWaiting(std::size_t count) {
        while (m_lock.waitingCount() < count)
            std::this_thread::yield();
    }

    std::atomic<NewestFirstLock::SteadyTime> m_now = std::chrono::steady_clock::now();
    NewestFirstLock m_lock{kLease, [this] { return m_now.load(); }};
};

TEST_F(NewestFirstLockTest, isHeldByOneThreadAtATime) {
    auto lease = m_lock.acquire({});
    EXPECT_FALSE(isFree());
    lease.reset();
    EXPECT_TRUE(isFree());
}

TEST_F(NewestFirstLockTest, goesToTheNewestOfThoseThatWait) {
    std::mutex mutex;
    std::vector<int> order;
    auto first = m_lock.acquire({});
    std::vector<std::jthread> threads;
    for (int number = 1; number <= 3; ++number) {
        threads.emplace_back([&, number](const std::stop_token& stop) {
            const auto lease = m_lock.acquire(stop);
            const std::lock_guard lock(mutex);
            order.push_back(number);
        });
        waitForWaiting(static_cast<std::size_t>(number));
    }
    first.reset();
    for (std::jthread& thread : threads)
        thread.join();
    EXPECT_THAT(order, ElementsAre(3, 2, 1));
}

TEST_F(NewestFirstLockTest, goesToTheNextNewestWhereTheNewestIsStopped) {
    auto first = m_lock.acquire({});
    bool hadLock = false;
    std::jthread patient([&] { hadLock = m_lock.acquire({}).has_value(); });
    waitForWaiting(1);
    std::jthread hasty([&](const std::stop_token& stop) { m_lock.acquire(stop); });
    waitForWaiting(2);
    hasty.request_stop();
    hasty.join();
    first.reset();
    patient.join();
    EXPECT_TRUE(hadLock);
    EXPECT_EQ(m_lock.waitingCount(), 0U);
}

TEST_F(NewestFirstLockTest, isHeldForAsLongAsTheLeaseIsRenewed) {
    auto lease = m_lock.acquire({});
    advance(kLease - std::chrono::seconds(1));
    lease->renew();
    advance(kLease - std::chrono::seconds(1));
    EXPECT_FALSE(isFree());
}

TEST_F(NewestFirstLockTest, isFreeWhenTheLeaseHasRunOut) {
    auto stuck = m_lock.acquire({});
    advance(kLease);
    auto next = m_lock.acquire({});
    ASSERT_TRUE(next.has_value());

    advance(kLease - std::chrono::seconds(1));
    stuck->renew();
    advance(std::chrono::seconds(1));
    EXPECT_TRUE(isFree()) << "a lease that has run out renews no other";
}

TEST_F(NewestFirstLockTest, isNotReleasedByAHolderWhoseLeaseHasRunOut) {
    auto stuck = m_lock.acquire({});
    advance(kLease);
    auto next = m_lock.acquire({});
    stuck.reset();
    EXPECT_FALSE(isFree());
}

} // namespace
