#include "Media/Playback/SoundQueue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <thread>

namespace media::playback {
namespace {

/// Longer than any sound takes to set in or to die away.
constexpr std::size_t kSettled = 400;

/// `count` frames of which each holds its own number, from `first`, on both channels.
std::vector<float> numbered(int first, std::size_t count) {
    std::vector<float> samples;
    for (std::size_t i = 0; i < count; ++i)
        samples.insert(samples.end(), kOutputChannels,
                       static_cast<float>(first) + static_cast<float>(i));
    return samples;
}

/// The left channel of the next `count` frames.
std::vector<float> pull(SoundQueue& queue, std::size_t count) {
    std::vector<float> samples(count * kOutputChannels, NAN);
    queue.pull(samples.data(), count);
    std::vector<float> left;
    for (std::size_t i = 0; i < samples.size(); i += kOutputChannels) {
        EXPECT_EQ(samples[i], samples[i + 1]);
        left.push_back(samples[i]);
    }
    return left;
}

bool isSilent(const std::vector<float>& samples) {
    return std::all_of(samples.begin(), samples.end(), [](float s) { return std::abs(s) < 1e-3F; });
}

TEST(SoundQueue, isSilentUntilItMayPlay) {
    SoundQueue queue;
    queue.begin();
    EXPECT_EQ(queue.write(numbered(1, 1000)), 1000U);
    EXPECT_TRUE(isSilent(pull(queue, 500)));
    EXPECT_EQ(queue.queuedFrames(), 1000U);
    EXPECT_FALSE(queue.firstDeviceFrame());
}

TEST(SoundQueue, playsWhatIsQueuedInOrderFromTheNextFrameOn) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(0, 2000));
    EXPECT_TRUE(isSilent(pull(queue, 300)));
    queue.play();
    const std::vector<float> heard = pull(queue, 1000);
    EXPECT_EQ(queue.firstDeviceFrame(), 300);
    for (std::size_t i = kSettled; i < heard.size(); ++i)
        EXPECT_EQ(heard[i], static_cast<float>(i));
    EXPECT_EQ(queue.queuedFrames(), 1000U);
}

TEST(SoundQueue, leavesOutWhatComesTooLate) {
    SoundQueue queue;
    queue.begin();
    queue.play();
    pull(queue, 1000); // Nothing was there in time.
    queue.write(numbered(0, 5000));
    const std::vector<float> heard = pull(queue, 1000);
    EXPECT_EQ(queue.firstDeviceFrame(), 0);
    EXPECT_EQ(heard.back(), 1999.0F);
    EXPECT_EQ(queue.queuedFrames(), 3000U);
}

TEST(SoundQueue, isSilentWhereNothingIsLeft) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(1, 600));
    queue.play();
    std::vector<float> heard = pull(queue, 2000);
    heard.erase(heard.begin(), heard.begin() + 600 + kSettled);
    EXPECT_TRUE(isSilent(heard));
}

TEST(SoundQueue, dropsAnOlderRunAtOnce) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(1, 3000));
    queue.play();
    pull(queue, 1000);
    queue.begin();
    EXPECT_EQ(queue.queuedFrames(), 0U);
    queue.write(numbered(100'000, 1000));
    pull(queue, kSettled);
    EXPECT_TRUE(isSilent(pull(queue, 100)));
    queue.play();
    const std::vector<float> heard = pull(queue, 1000);
    EXPECT_EQ(queue.firstDeviceFrame(), static_cast<std::int64_t>(1000 + kSettled + 100));
    EXPECT_EQ(heard.back(), 100'999.0F);
}

TEST(SoundQueue, beginsARunAtTheFrameAskedFor) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(1000, 4000));
    pull(queue, 200);
    queue.play(700);
    EXPECT_TRUE(isSilent(pull(queue, 500)));
    const std::vector<float> heard = pull(queue, 1000);
    EXPECT_EQ(queue.firstDeviceFrame(), 700);
    EXPECT_EQ(heard.back(), 1999.0F);
}

TEST(SoundQueue, leavesOutTheBeginningOfARunWhosePlaceHasPassed) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(0, 4000));
    pull(queue, 1000);
    queue.play(400);
    EXPECT_EQ(pull(queue, 1000).back(), 1599.0F);
}

TEST(SoundQueue, isSilentWhileMutedAndGoesOnMeanwhile) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(0, 6000));
    queue.play();
    pull(queue, 1000);
    queue.setMuted(true);
    pull(queue, kSettled);
    EXPECT_TRUE(isSilent(pull(queue, 1000)));
    queue.setMuted(false);
    EXPECT_EQ(pull(queue, 1000).back(), static_cast<float>(1000 + kSettled + 1000 + 999));
}

TEST(SoundQueue, takesNoMoreThanItHasRoomFor) {
    SoundQueue queue;
    queue.begin();
    const std::size_t tooMany = SoundQueue::kCapacityFrames + 100;
    EXPECT_EQ(queue.write(numbered(0, tooMany)), SoundQueue::kCapacityFrames);
    EXPECT_EQ(queue.write(numbered(0, 1)), 0U);
    queue.play();
    pull(queue, 100);
    EXPECT_EQ(queue.write(numbered(0, tooMany)), 100U);
}

TEST(SoundQueue, neverJumpsWhereSoundSetsInOrBreaksOff) {
    SoundQueue queue;
    const std::vector<float> loud(std::size_t{10'000} * kOutputChannels, 1.0F);
    std::vector<float> heard;
    const auto listen = [&](std::size_t count) {
        const std::vector<float> more = pull(queue, count);
        heard.insert(heard.end(), more.begin(), more.end());
    };
    queue.begin();
    queue.write(loud);
    queue.play();
    listen(1000);
    queue.begin(); // Another position, from which there is sound at once.
    queue.write(loud);
    queue.play();
    listen(1000);
    queue.setMuted(true);
    listen(500);
    queue.setMuted(false);
    listen(9500); // The queue runs dry.
    queue.begin();
    listen(500);
    for (std::size_t i = 1; i < heard.size(); ++i)
        ASSERT_LT(std::abs(heard[i] - heard[i - 1]), 0.06F) << i;
    EXPECT_LT(std::abs(heard.back()), 1e-3F);
}

TEST(SoundQueue, beginsItsCountAnewForANewDevice) {
    SoundQueue queue;
    queue.begin();
    queue.write(numbered(0, 2000));
    queue.play();
    pull(queue, 1000);
    queue.reset();
    EXPECT_EQ(queue.queuedFrames(), 0U);
    queue.write(numbered(500, 1000));
    queue.play();
    EXPECT_EQ(pull(queue, 1000).back(), 1499.0F);
    EXPECT_EQ(queue.firstDeviceFrame(), 0);
}

/// Whether numbers that are heard at full volume never become less, over all that is given to it.
class RisingNumbers {
public:
    void hear(float sample) {
        m_equalCount = sample == m_previous ? m_equalCount + 1 : 0;
        m_previous = sample;
        if (m_equalCount <= 8 || sample < 0.5F)
            return;
        m_isRising = m_isRising && std::round(sample) >= m_newest;
        m_newest = std::round(sample);
    }

    [[nodiscard]] bool isRising() const { return m_isRising; }

private:
    float m_previous = 0;
    float m_newest = 0;
    int m_equalCount = 0;
    bool m_isRising = true;
};

TEST(SoundQueue, keepsRunsApartWhileTheDevicePulls) {
    // Each run holds one number only: a number that is heard again after a greater one would be of
    // a run that was dropped.
    SoundQueue queue;
    std::atomic<bool> isDone = false;
    RisingNumbers numbers;
    std::thread device([&] {
        while (!isDone) {
            for (const float sample : pull(queue, 256))
                numbers.hear(sample);
        }
    });
    for (int run = 1; run <= 300; ++run) {
        queue.begin();
        const std::vector<float> samples(std::size_t{5000} * kOutputChannels,
                                         static_cast<float>(run));
        std::size_t written = queue.write(samples);
        queue.play();
        while (written < 5000 || !queue.firstDeviceFrame()) {
            written += queue.write(std::span(samples).subspan(written * kOutputChannels));
            std::this_thread::yield();
        }
    }
    isDone = true;
    device.join();
    EXPECT_TRUE(numbers.isRising());
}

} // namespace
} // namespace media::playback
