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

/// What the decoding thread tells of itself when it asks for work.
struct DecoderStatus {
    /// The item that is open; null for none.
    const PlayerItem* item = nullptr;
    /// It has a picture that decodes.
    bool canDecode = false;
    /// Frames that were decoded on the way to an urgent one wait to be put into the cache.
    bool hasWaitingFrames = false;
    /// The frame that decoding on would give begins there.
    Ticks position = Ticks::beginning();
    /// Other players need the memory that an idle decoder holds.
    bool isOverBudget = false;
    /// Something needs all of the processor: nothing is to be decoded for later.
    bool mustRest = false;
    /// Frames that the decoder gave out since it asked last.
    std::uint64_t decodedCount = 0;
};

/// What the decoding thread is to do next: one frame, or less.
struct DecodeWork {
    enum class Kind {
        /// Nothing until `until`, or until it is woken.
        wait,
        /// Open `item`, which may be none.
        open,
        /// One frame nearer to the frame at `target`, which a seek waits for.
        seek,
        /// The frame within `target` that costs least.
        seekNear,
        /// One frame nearer to the frame at `target`, which a step waits for.
        step,
        /// One frame nearer to the frame on show, in the size that is wanted now.
        redraw,
        /// Render `frame`, which is to follow while playing.
        queue,
        /// One frame nearer to the frame at `target`, which is to follow while playing.
        decodeAhead,
        /// One frame nearer to `target`, where the frames at hand end while playing.
        positionDecoder,
        /// Put one of the waiting frames into the cache.
        keepWaitingFrame,
        /// One frame nearer to the frame at `target`, which nobody has asked for yet.
        readAhead,
        /// Give up the decoder.
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
