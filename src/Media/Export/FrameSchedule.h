#pragma once

#include "Media/Composition.h"
#include "Media/Reading/VideoReader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>

namespace media {

/// A source picture and when the exported file shows it, in FrameSchedule::timeBase() from the
/// start of the file.
struct ScheduledFrame {
    ffmpeg::FramePtr frame;
    std::int64_t pts = 0;
    std::int64_t duration = 0;
    /// The same source picture as the one before.
    bool isRepeat = false;
    /// The source's pictures before and after this one, if they were asked for; null at the ends of
    /// the source.
    ffmpeg::FramePtr previous;
    ffmpeg::FramePtr following;
};

/// Decides which source pictures an export has, and when each is shown. Use from one thread
/// at a time.
class FrameSchedule {
public:
    /// Every source frame whose display interval meets the range, with its own timing: the first
    /// shows from 0, the last until the end of the range.
    static std::unique_ptr<FrameSchedule>
    sourceTiming(VideoReader& reader, const CompositionTrack& track, std::int32_t sourceTimescale);
    enum class Neighbours { none, decoded };

    /// A frame every `frameDuration` from 0, each the source's frame at that time of the range. If
    /// its neighbours are asked for, every picture has to be decoded.
    static std::unique_ptr<FrameSchedule> constantRate(VideoReader& reader, const TimeRange& range,
                                                       Time frameDuration, Neighbours neighbours);

    virtual ~FrameSchedule() = default;

    [[nodiscard]] virtual AVRational timeBase() const = 0;
    /// How many frames there will be; an estimate where the source's timing is kept.
    [[nodiscard]] virtual std::int64_t expectedFrames() const = 0;
    virtual std::optional<ScheduledFrame> next(const std::stop_token& stop) = 0;
};

} // namespace media
