#pragma once

#include "Media/Playback/DecodingPace.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PreviewSize.h"
#include "Media/Ticks.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace media::playback {

/// Decodes the frames of one asset's first video track, one at a time, at preview size. Each call
/// throws Error when reading or decoding fails. Use from one thread.
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

    /// Takes the frames that are decoded, to keep them. Called within the calls below.
    using Keep = std::function<void(CachedFrame)>;

    FrameSource() = default;
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;
    virtual ~FrameSource() = default;

    /// The way that advance() would take to the frame at `ticks`, without moving.
    [[nodiscard]] virtual DecodingPace::Way wayTo(Ticks ticks) = 0;
    /// The goal to begin with where the frames of `range` are wanted, those at its end first: the
    /// frames from the last key frame on, as far as the container tells where that is.
    [[nodiscard]] virtual Goal goalNearEnd(TickRange range) = 0;
    /// Decodes one frame on the way to the goal. A goal that lies ahead in the run of decoding that
    /// is under way goes on with it, any other begins anew at a key frame. Throws Cancelled when
    /// stopped (call it again to go on).
    virtual Outcome advance(const Goal& goal, PreviewSize size, const std::stop_token& stop) = 0;
    /// Decodes the frame from `earliest` to `latest` (both included) that costs least, and has it
    /// kept; gives its place.
    virtual std::optional<Ticks> advanceNear(Ticks earliest, Ticks latest, PreviewSize size,
                                             const std::stop_token& stop) = 0;

    /// After `arrived` or `late`: where the frame after that one begins.
    [[nodiscard]] virtual Ticks arrivedEnd() const = 0;

    /// Where the next frame begins that advance() decodes without moving; beginning() where that is
    /// not known.
    [[nodiscard]] virtual Ticks position() const = 0;

    /// After `onTheWay`: where the frame decoded last begins.
    [[nodiscard]] virtual Ticks passingTicks() const = 0;

    /// The frame decoded last, even if it is not known where it ends; null without one.
    [[nodiscard]] virtual std::shared_ptr<const CachedFrame> passing(PreviewSize size) = 0;

    /// Has one of the frames kept that were passed on the way to an urgent goal, if there are any.
    virtual void keepOnePassed(PreviewSize size) = 0;

    /// Whether frames that were passed wait to be kept.
    [[nodiscard]] virtual bool hasPassed() const = 0;

    /// Gives up the decoder and where it stands, until the next advance. The frame that was arrived
    /// at last can still be had in other sizes.
    virtual void releaseDecoder() = 0;

    /// How many frames were decoded since this was last asked.
    [[nodiscard]] virtual std::uint64_t takeDecodedCount() = 0;

    /// About what the decoder holds, as of the frame decoded last, in bytes.
    [[nodiscard]] virtual std::size_t decoderBytes() const = 0;
};

} // namespace media::playback
