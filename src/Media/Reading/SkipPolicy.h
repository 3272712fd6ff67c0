#pragma once

#include "Media/FFmpeg/NonReferenceDetector.h"
#include "Media/Reading/TrackClock.h"
#include "Media/Reading/VideoReader.h"

#include <optional>

namespace media {

/// Decides what need not be decoded: on the way to a target the non-reference pictures that are
/// shown before it, and deblocking where only thumbnails are wanted. Use from one thread.
class SkipPolicy final {
public:
    enum class Decision {
        decode,
        /// The decoder is to have the packet, but to skip its picture (AVDISCARD_NONREF).
        skipInDecoder,
        /// The decoder is not to have the packet.
        drop,
    };

    /// `track` outlives it.
    SkipPolicy(const ffmpeg::SourceTrack& track, const TrackClock& clock);

    /// What a decoder leaves out of each picture.
    static void setDetail(AVCodecContext& decoder, VideoReader::Detail detail);

    /// The way to the picture at `target` begins; those from `completeFrom` on are all wanted.
    void aimAt(Ticks target, Ticks completeFrom);

    /// From now on every picture is wanted.
    void endAim() { m_target.reset(); }

    [[nodiscard]] std::optional<Ticks> target() const { return m_target; }

    /// The demuxer has moved. What was aimed at stays.
    void restart();

    /// The decoder is another one.
    void forgetNewParameters() { m_hasNewParameters = false; }

    /// The stream changed the decoder's parameters on its way.
    [[nodiscard]] bool hasNewParameters() const { return m_hasNewParameters; }

    /// Every packet that is meant for the decoder has to be shown to it, in decoding order.
    [[nodiscard]] Decision decide(const AVPacket& packet);

    /// Among the pictures seen since the way began, the latest tick at or before the target.
    [[nodiscard]] Ticks latestUpToTarget() const { return m_latestUpToTarget; }

    /// Whether no picture from this tick on was left out since the restart.
    [[nodiscard]] bool isCompleteFrom(Ticks ticks) const { return ticks >= m_completeSince; }

private:
    [[nodiscard]] bool isPassed(const AVPacket& packet);

    const ffmpeg::SourceTrack& m_track;
    TrackClock m_clock;
    ffmpeg::NonReferenceDetector m_detector;
    bool m_hasNewParameters = false;

    std::optional<Ticks> m_target;
    /// No picture from this tick on is left out on the way.
    Ticks m_completeFrom = Ticks::beginning();
    Ticks m_latestUpToTarget = Ticks::beginning();
    /// Pictures before this tick may have been left out; a later target before it, after a way that
    /// was given up, needs a new run of decoding.
    Ticks m_completeSince = Ticks::beginning();
};

} // namespace media
