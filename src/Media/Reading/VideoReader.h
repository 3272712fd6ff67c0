#pragma once

#include "Media/Asset.h"
#include "Media/FFmpeg/Handles.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace media {

/// A decoded source picture and where it stands on the asset's time line.
struct DecodedFrame {
    ffmpeg::FramePtr frame;
    /// Presentation time; never before that of the frame before it.
    Time time;
    /// `time` in 1/600 s: the frame is "the frame at t" from this tick up to the next frame's.
    Ticks ticks;
    /// The next frame's ticks, where the packets tell it for certain and it was not decoded yet. It
    /// may yet turn out not to decode; then the frame stands for later ticks too.
    std::optional<Ticks> knownEnd = std::nullopt;
};

/// Decodes one video track in presentation order, from any position, by the frame rule: the frame
/// at t is the one whose interval [ticks, next frame's ticks) holds t; before the first frame
/// that is the first, after the last the last.
///
/// Has its own demuxer and decoder on the asset's file. Use from one thread at a time.
class VideoReader {
public:
    enum class Detail {
        full,
        /// Leaves out what a picture of about a hundred lines cannot show (deblocking). Decoded
        /// frames are approximate.
        thumbnail,
    };

    struct Options {
        Detail detail = Detail::full;
        /// Decoder threads; 0 for as many as there are processors, up to 16.
        int threads = 0;
        /// How far those stand back behind other threads; see standBack().
        int niceness = 0;
    };

    /// Throws Error if no decoder can be opened.
    VideoReader(std::shared_ptr<const Asset> asset, const AssetTrack& track, Options options);

    VideoReader(std::shared_ptr<const Asset> asset, const AssetTrack& track)
        : VideoReader(std::move(asset), track, Options{}) {}

    VideoReader(const VideoReader&) = delete;
    VideoReader& operator=(const VideoReader&) = delete;
    ~VideoReader();

    /// Moves so that next() returns the frame at `ticks` and then those after it. Costs nothing
    /// when that frame is the one that next() would return or lies a little ahead; otherwise
    /// decodes from the key frame before it. Throws Cancelled as soon as `stop` is requested (the
    /// reader stays usable; its position is then unspecified until the next seek).
    void seek(Ticks ticks, const std::stop_token& stop = {});

    /// What an approach() is to come to.
    struct Approach {
        /// The frame at this tick.
        Ticks target;
        /// Frames before this tick may be left out on the way; those from there on are all given
        /// out as long as isCompleteFrom() says so.
        Ticks completeFrom;
        /// Where key frames stand close to one another, it begins at the one before this tick if
        /// that costs little, so that there are such frames.
        Ticks beginAt;
        /// A key frame is worth beginning anew at only if it lies further than this beyond where
        /// decoding stands: the decoder gives nothing out for some pictures then.
        Ticks shortestLeap;
    };

    /// Where an approach() to a target would begin.
    struct Start {
        /// The first frame given out begins there, or a little later; none where the container
        /// does not tell.
        std::optional<Ticks> ticks;
        /// The reader is there.
        bool isHere = false;
    };

    /// Looks it up without moving.
    [[nodiscard]] Start startOfWayTo(Ticks target) const;

    /// When the last key frame is decoded that the container's index knows at or before `ticks`: it
    /// is shown then, or a little later. Looks it up without moving.
    [[nodiscard]] std::optional<Ticks> keyFrameBefore(Ticks ticks) const;

    /// Begins a seek() that the caller completes by reading on: moves so that next() returns the
    /// frame at the target or one before it, from which the others follow.
    void approach(const Approach& way, const std::stop_token& stop = {});

    /// Whether no frame between one given out at `ticks` and the next frame was left out.
    [[nodiscard]] bool isCompleteFrom(Ticks ticks) const;

    /// Moves to a frame that stands for the window from `earliest` to `latest` (both included) and
    /// is cheap to decode: the last key frame up to its middle, or else one behind it, or else the
    /// first frame in it; where no frame begins in it, the one that is on show throughout. False
    /// if the pictures there do not decode: next() then returns one from elsewhere.
    bool seekNear(Ticks earliest, Ticks latest, const std::stop_token& stop = {});

    /// The next frame in presentation order; none after the last. Packets that do not decode are
    /// passed over. A new reader starts at the first frame. Throws Error when reading fails.
    std::optional<DecodedFrame> next(const std::stop_token& stop = {});

    /// The frame that next() will return, without moving; null after the last. Where nothing
    /// decodes, not much is read beyond `until`: null if no frame begins at or before that tick.
    const DecodedFrame* peek(const std::stop_token& stop = {}, Ticks until = Ticks::forever());

    /// Whether the last frame has been returned.
    [[nodiscard]] bool hasEnded() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace media
