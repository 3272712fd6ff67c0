#include "Support/MainThread.h"

#include "QtSupport/EventPump.h"

#include <QThread>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <thread>
#include <vector>

namespace brisklet {

namespace {

TEST(MainThread, isTheOneOfTheApplicationObject) {
    EXPECT_TRUE(isMainThread());
    verifyMainThread();
    bool isMainElsewhere = true;
    std::jthread([&] { isMainElsewhere = isMainThread(); }).join();
    EXPECT_FALSE(isMainElsewhere);
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

TEST(MainThreadDeathTest, isVerifiedWithThePlaceOfTheCall) {
    EXPECT_DEATH(std::jthread([] { verifyMainThread(); }).join(),
                 "MainThreadTest\\.cpp:[0-9]+: .*: called on another thread than the main thread");
}

} // namespace

} // namespace brisklet
