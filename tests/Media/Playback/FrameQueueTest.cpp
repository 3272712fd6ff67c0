#include "Media/Playback/FrameQueue.h"

#include "CachedFrames.h"
#include "PlaybackRig.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using media::Ticks;
using media::playback::FrameQueue;
using media::playback::nanoseconds;
using media::playback::RenderedFrame;

namespace {

/// Frame `number` of those of kFrameLength, with a picture of so many bytes.
RenderedFrame frame(int number, int kilobytes = 1) {
    const Ticks begin(number * kFrameLength.count());
    RenderedFrame rendered = renderedFrame(cachedFrame(begin, begin + kFrameLength));
    media::Image image = *rendered.image;
    image.pixels.resize(static_cast<std::size_t>(kilobytes) << 10);
    rendered.image = std::make_shared<const media::Image>(std::move(image));
    return rendered;
}

TEST(FrameQueue, takesTheLastFrameThatIsDueAndCountsThoseBeforeIt) {
    FrameQueue queue;
    for (int number = 3; number < 8; ++number)
        queue.push(frame(number));
    EXPECT_EQ(queue.next(), 160_ticks);
    EXPECT_FALSE(queue.takeDue(90ms));
    const auto due = queue.takeDue(180ms);
    ASSERT_TRUE(due);
    EXPECT_EQ(due->frame.time.ticks(), 100_ticks);
    EXPECT_EQ(due->overtaken, 2U);
    EXPECT_NEAR(static_cast<double>(due->lateness.count()) / 1e6, 13.3 + 0.8, 0.1);
    EXPECT_FALSE(queue.isEmpty());
}

TEST(FrameQueue, takesAFrameForDueHalfATickBeforeItsTime) {
    FrameQueue queue;
    queue.push(frame(3));
    const nanoseconds due = 100ms - nanoseconds(1'000'000'000 / 1200);
    EXPECT_NEAR(static_cast<double>(queue.firstDueTime()->count()),
                static_cast<double>(due.count()), 2);
    EXPECT_FALSE(queue.takeDue(*queue.firstDueTime() - 1ns));
    EXPECT_TRUE(queue.takeDue(*queue.firstDueTime()));
}

TEST(FrameQueue, hasRoomForEightSmallFrames) {
    FrameQueue queue;
    for (int number = 0; number < 8; ++number) {
        EXPECT_TRUE(queue.hasRoom());
        queue.push(frame(number));
    }
    EXPECT_FALSE(queue.hasRoom());
}

TEST(FrameQueue, hasRoomForThreeFramesOfWhateverSizeAndFewOfLargeOnes) {
    FrameQueue queue;
    for (int number = 0; number < 3; ++number) {
        EXPECT_TRUE(queue.hasRoom());
        queue.push(frame(number, 20 << 10));
    }
    EXPECT_FALSE(queue.hasRoom());
}

} // namespace
