#include "PlayerStage.h"

#include "TestSupport/MediaCache.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

/// Playing that is sent back from the end of a range to its start, as a loop does it: at the tick
/// that reaches the end.
namespace {

using media::Time;
using testsupport::Fixture;
using testsupport::makeFixture;

constexpr int kRate = media::playback::kOutputSampleRate;
constexpr double kPitch = 440;
/// ffmpeg's sine has 1/8, in one channel that is shared out to two.
constexpr double kLoudness = 1.0 / 8 / std::numbers::sqrt2;

/// Numbered pictures in long groups, so that the start of a range lies far from its key frame, with
/// a steady tone.
struct Toned {
    explicit Toned(int width, int height)
        : fixture(makeFixture({.duration = 12,
                               .groupOfPictures = 250,
                               .bFrames = 3,
                               .width = width,
                               .height = height,
                               .audioTracks = 0})),
          path(testsupport::cachedMedia("toned-" + fixture.path.stem().string() + ".mov",
                                        {"-i", fixture.path.string(), "-f", "lavfi", "-i",
                                         "sine=frequency=440:sample_rate=48000:duration=12", "-map",
                                         "0:v", "-map", "1:a", "-c:v", "copy", "-c:a",
                                         "pcm_s16le"})) {}

    Fixture fixture;
    std::filesystem::path path;
};

/// Plays a range round and round.
class Looping {
public:
    Looping(PlayerStage& stage, const Fixture& fixture, Time start, Time end)
        : m_stage(stage), m_fixture(fixture), m_start(start), m_end(end) {
        stage.player->setPointsOfInterest({start, end});
        stage.player->addPeriodicTimeObserver(Time{1, 30}, [this](Time time) { tick(time); });
    }

    [[nodiscard]] int wraps() const { return m_wraps; }

    /// The last frame that may have been shown when the player was sent back.
    [[nodiscard]] int lastNumber() const { return m_lastNumber; }

    /// How many frames were shown in the first sixth of a second after wraps, and how many of
    /// them came from the cache.
    [[nodiscard]] std::uint64_t shownAfterWraps() const { return m_shown; }

    [[nodiscard]] std::uint64_t cachedAfterWraps() const { return m_cached; }

private:
    void tick(Time time) {
        if (time >= m_end)
            return wrap();
        if (!m_before || time < m_start + Time{100, 600})
            return;
        // On a busy machine this may come so late that it tells of more than the first frames.
        if (time < m_start + Time{200, 600}) {
            const auto after = m_stage.player->statistics();
            m_shown += after.shown - m_before->shown;
            m_cached += after.fromCache - m_before->fromCache;
        }
        m_before.reset();
    }

    void wrap() {
        m_before.reset();
        seekExactly(*m_stage.player, m_start, [this](bool finished) {
            if (!finished)
                return;
            ++m_wraps;
            m_before = m_stage.player->statistics();
        });
        // Until the seek was made the player was free to show this much.
        m_lastNumber = std::max(m_lastNumber, frameAt(m_fixture, m_stage.sink.last().time));
    }

    PlayerStage& m_stage;
    const Fixture& m_fixture;
    const Time m_start;
    const Time m_end;
    int m_wraps = 0;
    int m_lastNumber = 0;
    std::optional<media::Player::Statistics> m_before;
    std::uint64_t m_shown = 0;
    std::uint64_t m_cached = 0;
};

/// A player that goes round in a range, at full size.
class LoopStage {
public:
    LoopStage(const Toned& toned, Time start, Time end) : m_toned(toned), m_start(start) {
        stage.player->setPreviewSize(0, 0);
        stage.load(toned.path);
        loop.emplace(stage, toned.fixture, start, end);
        EXPECT_TRUE(stage.seekAndWait(start));
        // What lies ahead is made ready, as it is in an open window.
        const std::uint64_t before = stage.player->statistics().decoded;
        EXPECT_TRUE(stage.pumpUntil(
            [&] { return stage.player->statistics().decoded >= before + kReadAhead; }));
        stage.sink.clear();
        device.takeHeard();
        stage.player->play();
    }

    void play(int wraps) {
        ASSERT_TRUE(stage.pumpUntil([&] { return loop->wraps() == wraps; }));
        const Time next = m_start + Time{200, 600};
        ASSERT_TRUE(stage.pumpUntil([&] { return stage.player->currentTime() >= next; }));
        stage.player->pause();
    }

    [[nodiscard]] int firstNumber() const { return frameAt(m_toned.fixture, m_start); }

    PlayerStage stage;
    RunningDevice device{stage.device};
    std::optional<Looping> loop;

private:
    static constexpr std::uint64_t kReadAhead = 40;

    const Toned& m_toned;
    Time m_start;
};

/// In the middle of a group.
constexpr Time kStart{3000, 600};
/// No whole number of periods of the tone later, so that a break would be heard.
constexpr Time kEnd{3620, 600};

TEST(PlayerLoop, showsTheFramesOfTheRangeInOrderAndNothingElse) {
    const Toned toned(320, 240);
    LoopStage loop(toned, kStart, kEnd);
    ASSERT_NO_FATAL_FAILURE(loop.play(4));
    const int first = loop.firstNumber();
    int previous = first;
    int wraps = 0;
    for (const int number : loop.stage.sink.numbers()) {
        ASSERT_GE(number, first) << "black, unreadable or from before the range";
        ASSERT_LE(number, loop.loop->lastNumber());
        if (number < previous) {
            ASSERT_EQ(number, first) << "after " << previous;
            ++wraps;
        }
        previous = number;
    }
    EXPECT_EQ(wraps, 4);
}

TEST(PlayerLoop, takesTheFirstFramesOfEachRoundFromTheCache) {
    // Six seconds of these are more than the cache holds.
    const Toned toned(1280, 720);
    LoopStage loop(toned, kStart, Time{6600, 600});
    ASSERT_NO_FATAL_FAILURE(loop.play(2));
    if (loop.loop->shownAfterWraps() == 0)
        GTEST_SKIP() << "too slow a machine to tell the first frames from those after them";
    EXPECT_EQ(loop.loop->cachedAfterWraps(), loop.loop->shownAfterWraps());
}

TEST(PlayerLoop, doesNotClick) {
    const Toned toned(320, 240);
    LoopStage loop(toned, kStart, kEnd);
    ASSERT_NO_FATAL_FAILURE(loop.play(4));
    EXPECT_EQ(loop.stage.device.openCount(), 1) << "one stream, heard without a break";
    const std::vector<float> heard = loop.device.takeHeard();
    // The tone's own steepest slope, and on top of it a fade over a millisecond from one peak to
    // the other.
    const double slope = 2 * std::numbers::pi * kPitch / kRate * kLoudness;
    const double fade = 2 * kLoudness / (kRate / 1000.0);
    double steepest = 0;
    double loudest = 0;
    for (std::size_t i = 1; i < heard.size(); ++i) {
        const auto sample = static_cast<double>(heard[i]);
        steepest = std::max(steepest, std::abs(sample - static_cast<double>(heard[i - 1])));
        loudest = std::max(loudest, std::abs(sample));
    }
    EXPECT_GT(loudest, 0.9 * kLoudness) << "there is something to hear";
    EXPECT_LT(steepest, slope + fade);
}

} // namespace
