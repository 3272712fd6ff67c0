#include "Media/Export/PicturePath.h"

#include "Media/Export/TransformStage.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Threading/Processors.h"

#include <algorithm>
#include <cmath>

namespace media {

namespace {

/// Below this ratio of areas, output to source, pictures count as scaled down. Above it lies what
/// comes of making a side even.
constexpr double kReducedArea = 0.9;

/// How much the check of the finished file may have to decode from the last key frame on; pixels of
/// all these pictures together.
constexpr double kTailPixels = 4 * 1920.0 * 1080;

/// The same in seconds, for one stream.
double tailSeconds(const AVCodecContext& encoder) {
    const double pixels = static_cast<double>(encoder.width) * encoder.height;
    return std::max(kTailPixels / pixels, 2.0) / std::max(av_q2d(encoder.framerate), 1.0);
}

} // namespace

PicturePath::PicturePath(const Composition& composition,
                         const std::optional<VideoComposition>& videoComposition,
                         const EncoderSettings& settings, const Options& options)
    : m_track(*composition.videoTrack),
      m_reader(composition.asset, m_track.source, options.reader) {
    const auto asset = OpenedAsset::of(composition.asset);
    const ffmpeg::SourceTrack& source = asset->info().track(m_track.source.streamIndex);
    m_sourceTimescale = source.timeBase.den;
    if (videoComposition) {
        m_making.deinterlaces = source.isInterlaced();
        m_frameDuration = videoComposition->frameDuration;
    }
    m_timeBase = schedule(m_track.range)->timeBase();
    openEncoder(source, settings, videoComposition, options.encoderThreads);
}

std::unique_ptr<FrameSchedule> PicturePath::schedule(const TimeRange& range) {
    if (m_frameDuration) {
        return FrameSchedule::constantRate(m_reader, range, *m_frameDuration,
                                           m_making.deinterlaces
                                               ? FrameSchedule::Neighbours::decoded
                                               : FrameSchedule::Neighbours::none);
    }
    CompositionTrack track = m_track;
    track.range = range;
    return FrameSchedule::sourceTiming(m_reader, track, m_sourceTimescale);
}

void PicturePath::openEncoder(const ffmpeg::SourceTrack& track, const EncoderSettings& settings,
                              const std::optional<VideoComposition>& videoComposition,
                              int threads) {
    const AssetTrack& facts = track.facts;
    ffmpeg::VideoEncoding encoding;
    encoding.timeBase = m_timeBase;
    encoding.threads = threads;
    m_making.naturalSize = facts.naturalSize;
    if (videoComposition) {
        encoding.width = videoComposition->renderWidth;
        encoding.height = videoComposition->renderHeight;
        const Time frame = videoComposition->frameDuration;
        encoding.frameRate = {frame.timescale, static_cast<int>(frame.value)};
        m_making.toCanvas = videoComposition->transform;
        encoding.isReduced = std::abs(m_making.toCanvas.determinant()) < kReducedArea;
    } else {
        encoding.width = evenAtLeastTwo(facts.codedWidth);
        encoding.height = evenAtLeastTwo(facts.codedHeight);
        encoding.sampleAspectRatio = track.sampleAspectRatio;
        if (track.averageFrameRate.num > 0 && track.averageFrameRate.den > 0)
            encoding.frameRate = track.averageFrameRate;
        // Without a video composition the pixel aspect ratio stays what it is.
        m_making.naturalSize = {static_cast<double>(facts.codedWidth),
                                static_cast<double>(facts.codedHeight)};
        encoding.fieldOrder = track.fieldOrder;
    }
    m_encoder = ffmpeg::Encoder::forVideo(track, encoding, settings);
    const AVCodecContext& encoder = m_encoder->context();
    m_making.output = {
        .width = encoding.width, .height = encoding.height, .format = encoder.pix_fmt};
    m_making.keepsFields = (encoder.flags & AV_CODEC_FLAG_INTERLACED_DCT) != 0;
    m_sourceFormat = static_cast<AVPixelFormat>(track.parameters->format);
}

int PicturePath::usefulMakers() const {
    const AssetTrack& facts = m_track.source;
    return TransformStage::usefulWorkers(m_making, m_sourceFormat, facts.codedWidth,
                                         facts.codedHeight, processorCount());
}

std::optional<std::int64_t> PicturePath::tailStart() {
    const Time duration = m_track.range.duration();
    const Time tail = Time::fromSeconds(tailSeconds(m_encoder->context()), m_timeBase.den);
    if (duration.seconds() <= 2 * tail.seconds())
        return std::nullopt;
    return (duration - tail).rescaled(m_timeBase.den).value;
}

} // namespace media
