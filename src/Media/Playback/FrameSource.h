#pragma once

#include "Media/Pictures/PictureRenderer.h"
#include "Media/Playback/DecoderBudget.h"
#include "Media/Playback/DecodingPace.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PreviewSize.h"
#include "Media/Player.h"
#include "Media/Reading/VideoReader.h"

#include <deque>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

namespace media::playback {

/// Decodes the frames of one item, one at a time, and puts them into the cache at preview size.
/// Use from one thread.
class FrameSource {
public:
    /// Where decoding is to arrive.
    struct Goal {
        /// The frame at this tick.
        Ticks ticks;
        /// Frames from this tick on are wanted too; others on the way may be left out.
        Ticks completeFrom;
        /// The frames on the way can wait until there is time for them: the goal is urgent.
        bool isUrgent = false;
        /// More will be asked for backward from here: some frames before it are worth having even
        /// where a key frame stands nearer.
        bool isBackward = false;
        /// A key frame that lies no further than this beyond where decoding stands is no reason to
        /// begin anew there.
        Ticks shortestLeap;
        /// Frames that end at or before this tick are decoded but not rendered: it is too late for
        /// them.
        Ticks skipRenderingUntil = Ticks::beginning();
    };

    enum class Outcome {
        /// One frame nearer.
        onTheWay,
        /// The frame is in the cache.
        arrived,
        /// Its time has passed; it is not in the cache.
        late,
        /// There is nothing there that decodes.
        nothing,
    };

    /// Throws Error if the item has a picture that cannot be decoded. Cache and budget outlive
    /// the source.
    FrameSource(FrameCache& cache, DecoderBudget& budget, std::shared_ptr<const PlayerItem> item);
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;
    ~FrameSource();

    [[nodiscard]] const std::shared_ptr<const PlayerItem>& item() const { return m_item; }

    /// Whether the item has a picture at all.
    [[nodiscard]] bool hasPicture() const { return m_renderer != nullptr; }

    /// The way that advance() would take to the frame at `ticks`, without moving.
    [[nodiscard]] DecodingPace::Way wayTo(Ticks ticks) const;
    /// The goal to begin with where the frames of `range` are wanted, those at its end first: the
    /// frames from the last key frame on, as far as the container tells where that is.
    [[nodiscard]] Goal goalNearEnd(TickRange range);
    /// Decodes one frame on the way to the goal. A goal that lies ahead in the run of decoding that
    /// is under way goes on with it, any other begins anew at a key frame. Throws Cancelled when
    /// stopped (call it again to go on), Error when reading fails.
    Outcome advance(const Goal& goal, PreviewSize size, const std::stop_token& stop);
    /// Decodes the frame from `earliest` to `latest` (both included) that costs least and puts it
    /// into the cache; gives its place there.
    std::optional<Ticks> advanceNear(Ticks earliest, Ticks latest, PreviewSize size,
                                     const std::stop_token& stop);

    /// After `arrived` or `late`: where the frame after that one begins.
    [[nodiscard]] Ticks arrivedEnd() const { return m_arrivedEnd; }

    /// Where the next frame begins that advance() decodes without moving; beginning() where that is
    /// not known.
    [[nodiscard]] Ticks position() const { return m_position; }

    /// After `onTheWay`: where the frame decoded last begins.
    [[nodiscard]] Ticks passingTicks() const { return m_passing->frame->ticks; }

    /// The frame decoded last, even if it is not known where it ends; null without one.
    [[nodiscard]] std::shared_ptr<const CachedFrame> passing(PreviewSize size);

    /// Puts one of the frames that were passed on the way to an urgent goal into the cache; false
    /// where none is left.
    bool keepOnePassed(PreviewSize size);

    /// Whether frames that were passed wait to be put into the cache.
    [[nodiscard]] bool hasPassed() const { return !m_passed.empty(); }

    /// Gives up the decoder and where it stands, until the next advance. The frame that was arrived
    /// at last can still be had in other sizes.
    void releaseDecoder();

    /// How many frames were decoded since this was last asked.
    std::uint64_t takeDecodedCount() { return std::exchange(m_decodedCount, 0); }

private:
    /// A decoded frame with its place.
    struct Decoded {
        std::shared_ptr<const DecodedFrame> frame;
        TickRange range;
        bool isComplete = false;
    };

    VideoReader& reader();
    bool arriveAtKept(Ticks ticks, PreviewSize size);
    bool readOn(const std::stop_token& stop);
    std::optional<Decoded> decode(const Goal& goal, const std::stop_token& stop);
    Ticks endOf(const DecodedFrame& frame, Ticks goal, const std::stop_token& stop);
    void pass(Decoded decoded, const Goal& goal, PreviewSize size);
    void keep(const Decoded& decoded, PreviewSize size);
    [[nodiscard]] CachedFrame rendered(const Decoded& decoded, PreviewSize size);

    FrameCache& m_cache;
    DecoderBudget& m_budget;
    std::shared_ptr<const PlayerItem> m_item;
    Ticks m_firstTicks;
    /// null after releaseDecoder(), and until more is wanted than the asset's first frame.
    std::unique_ptr<VideoReader> m_reader;
    std::unique_ptr<PictureRenderer> m_renderer;

    /// What the reader is on its way to.
    std::optional<Ticks> m_goal;
    /// The next frame decoded is the first since the reader moved.
    bool m_hasMoved = false;
    /// Decoded, but its end was not found out yet.
    std::shared_ptr<const DecodedFrame> m_unfinished;
    Ticks m_position = Ticks::beginning();
    Ticks m_arrivedEnd;

    /// The frame that was arrived at last, in case that it is wanted in another size.
    std::optional<Decoded> m_arrived;
    std::optional<Decoded> m_passing;
    /// Not rendered yet, in order.
    std::deque<Decoded> m_passed;
    std::size_t m_passedBytes = 0;
    std::uint64_t m_decodedCount = 0;
};

} // namespace media::playback
