#pragma once

#include "Media/Image.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PlaybackClock.h"
#include "Media/Playback/PreviewSize.h"
#include "Media/Playback/SeekTarget.h"
#include "Media/Player.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>

namespace media::playback {

/// The decoding thread's state when it asks for work.
struct DecoderStatus {
    /// The item that is open; null for none.
    const PlayerItem* item = nullptr;
    /// It has a picture that decodes.
    bool canDecode = false;
    /// Frames that were decoded on the way to an urgent one are still to be rendered and cached.
    bool hasWaitingFrames = false;
    /// The start of the frame that the decoder gives next without seeking.
    Ticks position = Ticks::beginning();
    /// Other players need the memory that an idle decoder holds.
    bool isOverBudget = false;
    /// Other work needs the whole processor: nothing is to be read ahead.
    bool mustRest = false;
    /// Frames that the decoder gave out since it asked last.
    std::uint64_t decodedCount = 0;
};

/// What the decoding thread is to do next. "Approach" is one frame decoded on the way to a target:
/// after each the thread asks again, so that something more urgent never waits for long.
struct DecodeWork {
    enum class Kind {
        /// Nothing until `until`, or until it is woken.
        wait,
        /// Open `item`, which may be none.
        open,
        /// Approach the frame at `target`, which a seek waits for.
        seek,
        /// Decode the frame within `target` that costs least, for a seek with a tolerance.
        seekNear,
        /// Approach the frame at `target`, which a step waits for.
        step,
        /// Approach the frame on show, in the size that is wanted now.
        redraw,
        /// Render the cached `frame`, the next one of playback.
        queue,
        /// Approach the frame at `target`, the next one of playback.
        decodeAhead,
        /// Approach `target`, the end of the cached frames that playback goes through.
        positionDecoder,
        /// Render one of the waiting frames into the cache.
        keepWaitingFrame,
        /// Approach the frame at `target`, which nobody has asked for yet.
        readAhead,
        /// Release the decoder, whose memory others need.
        releaseDecoder,
    };

    Kind kind = Kind::wait;
    /// wait.
    SteadyTime until;
    std::uint64_t generation = 0;
    /// Stops the work that is void once the item changes.
    std::stop_token stop;
    std::shared_ptr<const PlayerItem> item;
    PreviewSize previewSize;
    /// The size that frames have with it.
    ImageSize imageSize;
    SeekTarget target;
    /// seek, step: frames from this tick on are wanted too.
    Ticks completeFrom;
    /// seek, step: what lies before the target will likely be asked for next.
    bool isBackward = false;
    /// readAhead: where the frames from the target on end, if those at the end are wanted first.
    std::optional<Ticks> endBehind;
    /// queue.
    std::optional<CachedFrame> frame;
};

} // namespace media::playback
