#include "Support/Turns.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

using brisklet::Turns;
using testing::ElementsAre;

namespace {

constexpr std::chrono::hours kPatience(1);

/// Turns whose time goes on by hand.
class TurnsTest : public testing::Test {
protected:
    void letPass(Turns::Duration duration) { m_now = m_now.load() + duration; }

    /// Whether another thread gets a turn at once.
    bool isFree() {
        std::atomic<bool> hasReturned = false;
        bool hadTurn = false;
        std::jthread thread([&](const std::stop_token& stop) {
            hadTurn = m_turns.take(stop).has_value();
            hasReturned = true;
        });
        while (!hasReturned && m_turns.waitingCount() == 0)
            std::this_thread::yield();
        thread.request_stop();
        thread.join();
        return hadTurn;
    }

    void waitForWaiting(std::size_t count) {
        while (m_turns.waitingCount() < count)
            std::this_thread::yield();
    }

    std::atomic<Turns::SteadyTime> m_now = std::chrono::steady_clock::now();
    Turns m_turns{kPatience, [this] { return m_now.load(); }};
};

TEST_F(TurnsTest, areTakenByOneAtATime) {
    auto turn = m_turns.take({});
    EXPECT_FALSE(isFree());
    turn.reset();
    EXPECT_TRUE(isFree());
}

TEST_F(TurnsTest, goToTheOneThatCameLast) {
    std::mutex mutex;
    std::vector<int> order;
    auto first = m_turns.take({});
    std::vector<std::jthread> threads;
    for (int number = 1; number <= 3; ++number) {
        threads.emplace_back([&, number](const std::stop_token& stop) {
            const auto turn = m_turns.take(stop);
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

TEST_F(TurnsTest, goOnToTheNextWhereTheLastOneStopped) {
    auto first = m_turns.take({});
    bool hadTurn = false;
    std::jthread patient([&] { hadTurn = m_turns.take({}).has_value(); });
    waitForWaiting(1);
    std::jthread hasty([&](const std::stop_token& stop) { m_turns.take(stop); });
    waitForWaiting(2);
    hasty.request_stop();
    hasty.join();
    first.reset();
    patient.join();
    EXPECT_TRUE(hadTurn);
    EXPECT_EQ(m_turns.waitingCount(), 0U);
}

TEST_F(TurnsTest, lastAsLongAsThereIsProgress) {
    auto turn = m_turns.take({});
    letPass(kPatience - std::chrono::seconds(1));
    turn->renew();
    letPass(kPatience - std::chrono::seconds(1));
    EXPECT_FALSE(isFree());
}

TEST_F(TurnsTest, endWherePatienceDoes) {
    auto stuck = m_turns.take({});
    letPass(kPatience);
    auto next = m_turns.take({});
    ASSERT_TRUE(next.has_value());

    letPass(kPatience - std::chrono::seconds(1));
    stuck->renew();
    letPass(std::chrono::seconds(1));
    EXPECT_TRUE(isFree()) << "the progress of one is none of another";
}

TEST_F(TurnsTest, doNotEndWithOneThatLostItsTurn) {
    auto stuck = m_turns.take({});
    letPass(kPatience);
    auto next = m_turns.take({});
    stuck.reset();
    EXPECT_FALSE(isFree());
}

} // namespace
