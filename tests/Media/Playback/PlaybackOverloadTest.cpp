#include "PlaybackRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

/// Playing more than can be decoded, with a decoder whose speed is made up and a clock that goes by
/// hand.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using media::playback::CachedFrame;
using media::playback::DecodeWork;
using media::playback::SteadyTime;
using std::chrono::milliseconds;

/// Every second picture is one that no other refers to.
bool isReference(int frame) {
    return frame % 2 == 0;
}

struct Outcome {
    int shown = 0;
    milliseconds longestStill{0};
    /// Of the picture behind the clock, seconds.
    double longestLag = 0;
    std::vector<int> frames;
};

/// Decodes the frames of an item, each in the given time; those that are not needed on the way to
/// a target, and groups of which it needs none, it leaves out.
class SlowPlayback {
public:
    SlowPlayback(milliseconds perFrame, int groupLength)
        : m_perFrame(perFrame), m_groupLength(groupLength) {}

    Outcome play(std::chrono::seconds time, int frameCount) {
        m_rig.load(frameCount);
        // Nothing is at hand but what the playing itself decodes.
        m_rig.cache.begin(m_rig.item.get());
        m_rig.state.setPlaying(true, m_rig.now);
        m_lastShownAt = m_rig.now;
        m_rig.onDelivery = [this](const auto& delivery) {
            if (delivery.picture)
                note();
        };
        for (auto passed = 0ms; passed < time; passed += 1ms) {
            m_rig.now += 1ms;
            decode();
            m_rig.present();
            m_rig.letSoundWork();
        }
        return m_outcome;
    }

private:
    void note() {
        ++m_outcome.shown;
        m_outcome.frames.push_back(m_rig.shownFrame());
        m_outcome.longestStill =
            std::max(m_outcome.longestStill,
                     std::chrono::duration_cast<milliseconds>(m_rig.now - m_lastShownAt));
        m_outcome.longestLag =
            std::max(m_outcome.longestLag, m_rig.seconds() - (m_rig.shownFrame() + 1) / 30.0);
        m_lastShownAt = m_rig.now;
    }

    void decode() {
        if (m_rig.now < m_busyUntil)
            return;
        if (m_work)
            finish(*std::exchange(m_work, std::nullopt));
        m_rig.decoder.position = m_rig.frameOf(m_next).range.begin;
        DecodeWork work = m_rig.nextWork();
        if (work.kind == DecodeWork::Kind::decodeAhead) {
            moveTo(static_cast<int>(work.target.earliest.count() / kFrameLength.count()));
            m_busyUntil = m_rig.now + m_perFrame;
            m_work = std::move(work);
        } else if (work.kind == DecodeWork::Kind::queue) {
            m_rig.state.nextFrameArrived(work, renderedFrame(*work.frame), m_rig.now);
        }
    }

    void moveTo(int target) {
        const int key = target / m_groupLength * m_groupLength;
        if (key > m_next || target < m_next)
            m_next = key;
        while (m_next < target && !isReference(m_next))
            ++m_next;
    }

    void finish(const DecodeWork& work) {
        const CachedFrame frame = m_rig.frameOf(m_next++);
        if (frame.range.holds(work.target.earliest)) {
            m_rig.cache.insert(work.item.get(), frame);
            m_rig.state.nextFrameArrived(work, renderedFrame(frame), m_rig.now);
        } else if (m_rig.state.wantsLateFrame(work, frame.range.begin, m_rig.now)) {
            m_rig.state.lateFrameArrived(work, renderedFrame(frame), m_rig.now);
        }
    }

    PlaybackRig m_rig;
    milliseconds m_perFrame;
    int m_groupLength;
    int m_next = 0;
    SteadyTime m_busyUntil;
    std::optional<DecodeWork> m_work;
    SteadyTime m_lastShownAt;
    Outcome m_outcome;
};

TEST(PlaybackOverload, showsAlmostAllWhereDecodingIsALittleTooSlow) {
    const Outcome outcome = SlowPlayback(37ms, 60).play(20s, 900);
    EXPECT_GE(outcome.shown, 20'000 / 37 * 9 / 10) << "nearly all that can be decoded";
    EXPECT_LE(outcome.longestStill, 150ms);
    EXPECT_LE(outcome.longestLag, 0.25);
}

TEST(PlaybackOverload, leavesOutPicturesThatNoOtherNeedsWhereThatIsEnough) {
    const Outcome outcome = SlowPlayback(55ms, 1000).play(20s, 900);
    EXPECT_GE(outcome.shown, 20'000 / 55 * 7 / 10);
    EXPECT_LE(outcome.longestStill, 200ms);
    EXPECT_LE(outcome.longestLag, 0.3);
}

TEST(PlaybackOverload, leavesOutWholeGroupsWhereItIsNot) {
    const Outcome outcome = SlowPlayback(110ms, 30).play(20s, 900);
    EXPECT_LE(outcome.longestStill, 500ms);
    EXPECT_LE(outcome.longestLag, 1.5) << "it comes back to the clock with each group";
}

/// Frames that all stand alone, for a decoder that takes long for the first one after a jump and
/// keeps up from then on, as one with many threads does.
int shownByPipeline(milliseconds latency, milliseconds perFrame) {
    PlaybackRig rig;
    rig.load(900);
    rig.cache.begin(rig.item.get());
    rig.state.setPlaying(true, rig.now);
    int shown = 0;
    rig.onDelivery = [&](const auto& delivery) { shown += delivery.picture ? 1 : 0; };
    SteadyTime busyUntil = rig.now;
    std::optional<DecodeWork> work;
    rig.decoder.position = kFrameLength;
    bool isWarm = false;
    for (auto passed = 0ms; passed < 10s; passed += 1ms) {
        rig.now += 1ms;
        if (rig.now >= busyUntil) {
            if (work) {
                const CachedFrame frame = rig.frameOf(
                    static_cast<int>(work->target.earliest.count() / kFrameLength.count()));
                rig.decoder.position = frame.range.end;
                rig.cache.insert(work->item.get(), frame);
                rig.state.nextFrameArrived(*work, renderedFrame(frame), rig.now);
            }
            work = rig.nextWork();
            if (work->kind == DecodeWork::Kind::queue)
                rig.state.nextFrameArrived(*work, renderedFrame(*work->frame), rig.now);
            if (work->kind == DecodeWork::Kind::decodeAhead) {
                const bool goesOn = work->target.earliest == rig.decoder.position;
                busyUntil = rig.now + (goesOn && isWarm ? perFrame : latency);
                isWarm = goesOn;
            } else {
                work.reset();
            }
        }
        rig.present();
        rig.letSoundWork();
    }
    return shown;
}

TEST(PlaybackOverload, waitsForADecoderThatOnlyBeginsSlowly) {
    for (const milliseconds latency : {60ms, 150ms, 300ms, 500ms})
        EXPECT_GE(shownByPipeline(latency, 15ms), 250) << latency.count() << " ms";
}

TEST(PlaybackOverload, neverShowsAnEarlierFrameAfterALaterOne) {
    for (const milliseconds perFrame : {20ms, 40ms, 70ms, 150ms}) {
        const Outcome outcome = SlowPlayback(perFrame, 45).play(10s, 900);
        EXPECT_TRUE(std::ranges::is_sorted(outcome.frames));
        EXPECT_GT(outcome.frames.back(), 250);
    }
}

TEST(PlaybackOverload, showsEveryFrameInTimeWhereDecodingKeepsUp) {
    const Outcome outcome = SlowPlayback(30ms, 60).play(20s, 900);
    EXPECT_GE(outcome.shown, 595);
    EXPECT_LE(outcome.longestStill, 100ms);
}

} // namespace
