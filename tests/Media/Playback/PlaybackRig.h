#pragma once

#include "CachedFrames.h"
#include "Media/Playback/PlaybackState.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// An item of frames of kFrameLength, whose last one is shown up to the end.
std::shared_ptr<const media::PlayerItem> makeItem(int frameCount);

/// A picture as a sink gets it.
media::playback::RenderedFrame renderedFrame(const media::playback::CachedFrame& frame);

/// Works a PlaybackState without a thread: what its threads would do happens when the test says so,
/// at the time that it says.
class PlaybackRig {
public:
    using SteadyTime = media::playback::SteadyTime;

    explicit PlaybackRig(std::size_t cacheBytes = media::playback::FrameCache::kDefaultBytes);

    /// Makes an item of so many frames the current one, and comes to rest with its first on show.
    void load(int frameCount);

    /// Lets the three threads do all that there is to do at this moment.
    void settle();
    /// The time goes on in steps of a millisecond, and all is done that comes up.
    void pass(std::chrono::milliseconds time);

    /// What the decoding thread would be given now.
    media::playback::DecodeWork nextWork() { return state.nextDecodeWork(decoder, now); }

    /// One piece of the decoding thread's work; false where there is none.
    bool decode();
    /// The same as far as there is any.
    void decodeAll();
    /// All that the presenting thread has to do.
    void present();
    /// What the sound thread has to do: where there is no sound, the clock runs without.
    void letSoundWork();
    /// Answers what was reported, as the owner does.
    void answer();

    /// Seeks exactly to the frame of this number; the generation.
    std::uint64_t seek(int frame);

    [[nodiscard]] media::playback::CachedFrame frameOf(int number) const {
        return frameAt(media::Ticks(number * kFrameLength.count()), kFrameSize);
    }

    [[nodiscard]] int shownFrame() const { return numberOf(state.shown()); }

    [[nodiscard]] double seconds() { return state.time(now).seconds(); }

    /// The frames shown since this was last asked, by their numbers; -1 for none.
    std::vector<int> takeShown();

    static int numberOf(const media::playback::RenderedFrame& frame);

    media::playback::FrameCache cache;
    media::playback::PlaybackState state{cache};
    SteadyTime now = SteadyTime{} + std::chrono::hours(1);
    media::playback::DecoderStatus decoder;
    /// The clock is driven by the device of this item's sound; else it runs without sound.
    bool hasSound = false;
    /// Frames that do not decode, by their numbers.
    std::set<int> damaged;
    std::shared_ptr<const media::PlayerItem> item;
    int frameCount = 0;

    /// What was reported and answered, in order: "tick", "jump", "end".
    std::vector<std::string> events;
    std::vector<std::uint64_t> arrivedGenerations;
    int endCount = 0;

    /// Done by the next decode(), or while the next picture is made, before that is reported.
    std::function<void()> duringDecode;
    std::function<void()> duringRender;
    /// Sees whatever goes out.
    std::function<void(const media::playback::Delivery&)> onDelivery;

private:
    class Sink final : public media::VideoSink {
    public:
        void present(const media::TimedImage& /*frame*/) override {}
    };

    [[nodiscard]] media::playback::CachedFrame frameAt(media::Ticks ticks,
                                                       media::ImageSize size) const;
    void perform(const media::playback::DecodeWork& work);
    void decodeFrame(const media::playback::DecodeWork& work);

    Sink m_sink;
    std::vector<int> m_shown;
    std::vector<media::playback::PlaybackEvent> m_reported;
    std::uint64_t m_run = 0;
};
