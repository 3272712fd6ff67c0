#pragma once

#include "Media/Composition.h"
#include "Media/Export/FrameSchedule.h"
#include "Media/Export/PictureMaker.h"
#include "Media/FFmpeg/Encoder.h"
#include "Media/Reading/VideoReader.h"

#include <memory>
#include <optional>

namespace media {

/// What the pictures of an export pass through: reader, schedule and encoder, and how pictures are
/// made for it. Each of them is used from one thread at a time, but they may be used on different
/// threads.
class PicturePath {
public:
    struct Options {
        VideoReader::Options reader;
        /// 0 for as many as the encoder finds useful.
        int encoderThreads = 0;
    };

    /// Opens decoder and encoder. Throws Error.
    PicturePath(const Composition& composition,
                const std::optional<VideoComposition>& videoComposition,
                const EncoderSettings& settings, const Options& options);

    [[nodiscard]] VideoReader& reader() { return m_reader; }

    /// The pictures of a range of the source, whose times count from the start of that range. One
    /// schedule at a time reads.
    [[nodiscard]] std::unique_ptr<FrameSchedule> schedule(const TimeRange& range);

    /// How a source picture becomes the encoder’s.
    [[nodiscard]] const PictureMaking& making() const { return m_making; }

    /// On how many threads it pays to make pictures at the same time; see TransformStage.
    [[nodiscard]] int usefulMakers() const;

    [[nodiscard]] ffmpeg::Encoder& encoder() { return *m_encoder; }

    /// When the last key frame is due: the check of the finished file decodes from there on. From
    /// the start of the file, in timeBase(); none if the first key frame is near enough.
    [[nodiscard]] std::optional<std::int64_t> tailStart();

    /// In which schedules count and the encoder is fed.
    [[nodiscard]] AVRational timeBase() const { return m_timeBase; }

private:
    void openEncoder(const ffmpeg::SourceTrack& track, const EncoderSettings& settings,
                     const std::optional<VideoComposition>& videoComposition, int threads);

    CompositionTrack m_track;
    VideoReader m_reader;
    /// Of the video composition, if there is one.
    std::optional<Time> m_frameDuration;
    std::int32_t m_sourceTimescale = 1;
    AVRational m_timeBase{1, 1};
    PictureMaking m_making;
    AVPixelFormat m_sourceFormat = AV_PIX_FMT_NONE;
    std::optional<ffmpeg::Encoder> m_encoder;
};

} // namespace media
