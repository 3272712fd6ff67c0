#include "Media/Export/BoundedQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

namespace media {
namespace {

TEST(BoundedQueue, handsValuesOnInOrder) {
    BoundedQueue<std::unique_ptr<int>> queue(3, {});
    for (const int value : {1, 2, 3})
        queue.push(std::make_unique<int>(value));
    for (const int value : {1, 2, 3})
        EXPECT_EQ(**queue.pop(), value);
}

TEST(BoundedQueue, givesOutWhatWaitsAfterItIsFinishedAndThenNothing) {
    BoundedQueue<int> queue(3, {});
    queue.push(1);
    queue.push(2);
    queue.finish();
    EXPECT_EQ(queue.pop(), 1);
    EXPECT_EQ(queue.pop(), 2);
    EXPECT_EQ(queue.pop(), std::nullopt);
    EXPECT_EQ(queue.pop(), std::nullopt);
}

TEST(BoundedQueue, neverHoldsMoreThanItsCapacity) {
    constexpr int kCount = 10'000;
    constexpr int kCapacity = 4;
    BoundedQueue<int> queue(kCapacity, {});
    std::atomic<int> pushed = 0;
    std::jthread writer([&] {
        for (int i = 0; i < kCount; ++i) {
            queue.push(i);
            ++pushed;
        }
        queue.finish();
    });
    int popped = 0;
    while (auto value = queue.pop()) {
        ASSERT_EQ(*value, popped);
        ++popped;
        ASSERT_LE(pushed, popped + kCapacity);
    }
    EXPECT_EQ(popped, kCount);
}

TEST(BoundedQueue, holdsNothingWithoutCapacityUnlessAReaderIsThere) {
    constexpr int kCount = 1'000;
    BoundedQueue<int> queue(0, {});
    std::atomic<int> pushed = 0;
    std::atomic<int> asked = 0;
    std::jthread writer([&] {
        for (int i = 0; i < kCount; ++i) {
            queue.push(i);
            EXPECT_GE(asked, i + 1);
            ++pushed;
        }
        queue.finish();
    });
    for (int i = 0; i < kCount; ++i) {
        ++asked;
        EXPECT_EQ(queue.pop(), i);
        EXPECT_LE(pushed, i + 1);
    }
    EXPECT_EQ(queue.pop(), std::nullopt);
}

TEST(BoundedQueue, rousesAReaderThatWaitsWhenItIsStopped) {
    std::stop_source stop;
    BoundedQueue<int> queue(1, stop.get_token());
    std::jthread stopper([&] { stop.request_stop(); });
    EXPECT_THROW(queue.pop(), Cancelled);
}

TEST(BoundedQueue, rousesAWriterThatWaitsWhenItIsStopped) {
    std::stop_source stop;
    BoundedQueue<int> queue(1, stop.get_token());
    queue.push(1);
    std::jthread stopper([&] { stop.request_stop(); });
    EXPECT_THROW(queue.push(2), Cancelled);
    EXPECT_THROW(queue.pop(), Cancelled);
}

} // namespace
} // namespace media
