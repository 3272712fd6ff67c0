#include "PlaybackRig.h"

#include <gtest/gtest.h>

#include <random>

/// The rules of playback under whatever may happen, in whatever order, with what is done without
/// the lock overtaken by it.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using media::Time;
using media::playback::Delivery;
using media::playback::PlaybackEvent;

constexpr int kTransitions = 100'000;
constexpr int kFrames = 240;

class RandomPlayback {
public:
    explicit RandomPlayback(unsigned seed) : m_random(seed) {
        m_rig.onDelivery = [this](const Delivery& delivery) { check(delivery); };
        m_rig.state.addObserver(1, Time{60, 600}, m_rig.now);
        m_rig.load(kFrames);
    }

    void transition() {
        const std::uint64_t before = m_rig.state.generation();
        act();
        if (upTo(3) == 0)
            m_rig.duringDecode = [this] { act(); };
        if (upTo(3) == 0)
            m_rig.duringRender = [this] { act(); };
        for (int i = upTo(3); i > 0; --i)
            m_rig.decode();
        if (upTo(2) != 0)
            m_rig.present();
        if (upTo(2) != 0)
            m_rig.answer();
        EXPECT_GE(m_rig.state.generation(), before);
        checkTime();
        m_rig.now += std::chrono::milliseconds(upTo(40));
    }

    /// Everything comes to rest, and the last seek has been answered.
    void rest() {
        m_rig.duringDecode = nullptr;
        m_rig.duringRender = nullptr;
        m_rig.state.setPlaying(false, m_rig.now);
        m_rig.pass(50ms);
        ASSERT_FALSE(m_rig.arrivedGenerations.empty());
        EXPECT_EQ(m_rig.arrivedGenerations.back(), m_rig.state.generation());
        EXPECT_FALSE(m_rig.state.isDelivering());
    }

private:
    int upTo(int last) { return std::uniform_int_distribution(0, last)(m_random); }

    Time anyTime() { return {upTo(kFrames * 20 + 40) - 20, 600}; }

    void act() {
        auto& state = m_rig.state;
        switch (upTo(15)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return seekExactly(anyTime());
        case 4:
            state.beginSeek(anyTime(), Time{upTo(300), 600}, Time{upTo(300), 600}, m_rig.now);
            return;
        case 5:
            state.beginSeek(Time::invalid(), Time{}, Time{}, m_rig.now);
            return;
        case 6:
        case 7:
            return state.beginStep(upTo(20) - 10, m_rig.now);
        case 8:
        case 9:
            return state.setPlaying(true, m_rig.now);
        case 10:
            return state.setPlaying(false, m_rig.now);
        case 11:
            return state.setPreviewSize(upTo(1) != 0 ? kSmall : kLarge);
        case 12:
            m_rig.damaged = {upTo(kFrames), upTo(kFrames), upTo(kFrames)};
            m_exact.damaged.insert(m_rig.damaged.begin(), m_rig.damaged.end());
            m_rig.decoder.mustRest = upTo(3) == 0;
            m_rig.decoder.isOverBudget = upTo(3) == 0;
            return;
        case 13:
            m_rig.hasSound = upTo(1) != 0;
            return hear();
        case 14:
            if (upTo(20) == 0)
                m_rig.state.replaceItem(m_rig.item = makeItem(kFrames), m_rig.now);
            return;
        default:
            return hear();
        }
    }

    void seekExactly(Time time) {
        if (const auto generation = m_rig.state.beginSeek(time, Time{}, Time{}, m_rig.now))
            m_exact = {*generation, std::clamp(time.ticks(), Ticks(0), Ticks(kFrames * 20)),
                       m_rig.damaged};
    }

    /// What the sound thread reports, of this run or of one that is over.
    void hear() {
        if (const auto run = m_rig.state.nextSoundRun(m_run, m_rig.now))
            m_run = upTo(3) == 0 ? m_run : run->number;
        if (!m_rig.hasSound)
            m_rig.state.runWithoutSound(m_run, m_rig.now);
        else
            m_rig.state.soundHeard(m_run, upTo(1) != 0, anyTime(), m_rig.now);
    }

    /// A stale generation never shows, and an exact seek ends exact.
    void check(const Delivery& delivery) {
        for (const PlaybackEvent& event : delivery.events) {
            EXPECT_EQ(event.generation, m_rig.state.generation());
            if (event.kind != PlaybackEvent::Kind::jump ||
                event.generation != std::exchange(m_exact.generation, 0))
                continue;
            const auto number = std::min<std::int64_t>(m_exact.target.count() / 20, kFrames - 1);
            const bool isThere = m_rig.state.shown().range.holds(m_exact.target);
            EXPECT_TRUE(isThere || m_exact.damaged.contains(static_cast<int>(number)));
        }
    }

    /// The time never runs back but where the clock was moved.
    void checkTime() {
        const Time time = m_rig.state.time(m_rig.now);
        if (m_rig.state.nextSoundRun(m_timedRun, m_rig.now)) {
            m_timedRun = m_rig.state.nextSoundRun(m_timedRun, m_rig.now)->number;
        } else if (m_lastTime.isNumeric() && time.isNumeric()) {
            // A clock that runs counts in nanoseconds, one that stands as it was told.
            EXPECT_GE(media::playback::toNanoseconds(time),
                      media::playback::toNanoseconds(m_lastTime));
        }
        m_lastTime = time;
    }

    static constexpr media::playback::PreviewSize kSmall{kFrameSize.width, kFrameSize.height};
    static constexpr media::playback::PreviewSize kLarge{kOtherFrameSize.width,
                                                         kOtherFrameSize.height};

    struct Exact {
        std::uint64_t generation = 0;
        Ticks target;
        /// Frames that have not decoded since, by their numbers.
        std::set<int> damaged;
    };

    std::mt19937 m_random;
    PlaybackRig m_rig;
    Exact m_exact;
    std::uint64_t m_run = 0;
    std::uint64_t m_timedRun = 0;
    Time m_lastTime = Time::invalid();
};

TEST(PlaybackStateRandom, holdsItsRulesWhateverHappens) {
    RandomPlayback playback(20);
    for (int i = 1; i <= kTransitions; ++i) {
        playback.transition();
        if (i % 500 == 0)
            playback.rest();
        if (testing::Test::HasFailure())
            FAIL() << "at transition " << i;
    }
}

} // namespace
