#include "Media/Export/VideoPipeline.h"

#include "Media/Error.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Threading/Processors.h"
#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <cmath>

namespace media {

namespace {

/// Capacities of the queues. Each waiting picture costs its full size in memory. None need to wait
/// for the transform, since the decoder holds some finished pictures anyway; the encoder takes
/// pictures unevenly.
constexpr std::size_t kDecodedWaiting = 0;
constexpr std::size_t kTransformedWaiting = 2;
constexpr std::size_t kPacketsWaiting = 32;

/// With an output of at most this share of the source's pixels, decoding is most of the work.
constexpr double kDecodingPrevails = 0.5;

/// Where encoding is most of the work the decoder's threads get a lower priority than the
/// encoder's. The encoder's threads wait for each other now and then, and the time they leave is
/// enough for decoding. A decoder of equal priority fills its queue and stops, and then the encoder
/// by itself cannot keep all processors busy.
VideoReader::Options readerOptions(const AssetTrack& source,
                                   const std::optional<VideoComposition>& composition) {
    const double sourcePixels = static_cast<double>(source.codedWidth) * source.codedHeight;
    const double pixels =
        composition ? static_cast<double>(composition->renderWidth) * composition->renderHeight
                    : sourcePixels;
    VideoReader::Options options;
    options.niceness = pixels > kDecodingPrevails * sourcePixels ? kFeederNiceness : 0;
    return options;
}

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

int evenAtLeastTwo(int side) {
    return std::max(2, side - side % 2);
}

} // namespace

VideoPipeline::VideoPipeline(const Composition& composition,
                             const std::optional<VideoComposition>& videoComposition,
                             const EncoderSettings& settings, const std::stop_token& stop)
    : m_stop(stop),
      m_reader(composition.asset, composition.videoTrack->source,
               readerOptions(composition.videoTrack->source, videoComposition)),
      m_decoded(kDecodedWaiting, stop),
      m_transformed(kTransformedWaiting, stop),
      m_output(kPacketsWaiting, stop) {
    const CompositionTrack& track = *composition.videoTrack;
    const auto asset = OpenedAsset::of(composition.asset);
    const ffmpeg::SourceTrack& source = asset->info().track(track.source.streamIndex);
    if (videoComposition) {
        m_deinterlaces = source.isInterlaced();
        m_schedule = FrameSchedule::constantRate(
            m_reader, track.range, videoComposition->frameDuration,
            m_deinterlaces ? FrameSchedule::Neighbours::decoded : FrameSchedule::Neighbours::none);
    } else {
        m_schedule = FrameSchedule::sourceTiming(m_reader, track, source.timeBase.den);
    }
    openEncoder(source, settings, videoComposition, track.range.duration());
}

void VideoPipeline::openEncoder(const ffmpeg::SourceTrack& track,
                                const EncoderSettings& encoderSettings,
                                const std::optional<VideoComposition>& videoComposition,
                                Time duration) {
    const AssetTrack& facts = track.facts;
    ffmpeg::VideoEncoding encoding;
    encoding.timeBase = m_schedule->timeBase();
    AffineTransform toCanvas;
    Size natural = facts.naturalSize;
    if (videoComposition) {
        encoding.width = videoComposition->renderWidth;
        encoding.height = videoComposition->renderHeight;
        const Time frame = videoComposition->frameDuration;
        encoding.frameRate = {frame.timescale, static_cast<int>(frame.value)};
        toCanvas = videoComposition->transform;
        encoding.isReduced = std::abs(toCanvas.determinant()) < kReducedArea;
    } else {
        encoding.width = evenAtLeastTwo(facts.codedWidth);
        encoding.height = evenAtLeastTwo(facts.codedHeight);
        encoding.sampleAspectRatio = track.sampleAspectRatio;
        if (track.averageFrameRate.num > 0 && track.averageFrameRate.den > 0)
            encoding.frameRate = track.averageFrameRate;
        // Without a video composition the pixel aspect ratio stays what it is.
        natural = {static_cast<double>(facts.codedWidth), static_cast<double>(facts.codedHeight)};
        encoding.fieldOrder = track.fieldOrder;
    }
    m_encoder = ffmpeg::Encoder::forVideo(track, encoding, encoderSettings);
    const AVCodecContext& encoder = m_encoder->context();
    const TransformStage::Settings settings{
        .toCanvas = toCanvas,
        .naturalSize = natural,
        .output = {.width = encoding.width, .height = encoding.height, .format = encoder.pix_fmt},
        .deinterlaces = m_deinterlaces,
        .keepsFields = (encoder.flags & AV_CODEC_FLAG_INTERLACED_DCT) != 0};
    m_transform.emplace(settings, m_decoded, m_transformed, m_stop);
    m_transformThreads = TransformStage::usefulWorkers(
        settings, static_cast<AVPixelFormat>(track.parameters->format), facts.codedWidth,
        facts.codedHeight, processorCount());
    m_output.timeBase = encoding.timeBase;
    const Time tail = Time::fromSeconds(tailSeconds(encoder), encoding.timeBase.den);
    if (duration.seconds() > 2 * tail.seconds())
        m_tailStart = (duration - tail).rescaled(encoding.timeBase.den).value;
}

void VideoPipeline::decodeStage() {
    while (auto frame = m_schedule->next(m_stop)) {
        ++m_scheduledFrames;
        m_decoded.push(std::move(*frame));
    }
    if (m_scheduledFrames == 0)
        throw Error(ErrorKind::noPictureOfRangeDecodable);
    m_decoded.finish();
}

void VideoPipeline::encodeStage() {
    while (auto scheduled = m_transformed.pop()) {
        AVFrame& frame = *scheduled->frame;
        frame.pts = scheduled->pts;
        // The encoder must not take over the source's picture types.
        frame.pict_type = beginsTail(*scheduled) ? AV_PICTURE_TYPE_I : AV_PICTURE_TYPE_NONE;
        m_durations[scheduled->pts] = scheduled->duration;
        m_latestPts = scheduled->pts;
        m_encoder->send(&frame);
        drainEncoder();
    }
    m_encoder->send(nullptr);
    drainEncoder();
    pushLast();
    m_output.packets.finish();
}

bool VideoPipeline::beginsTail(const ScheduledFrame& frame) {
    if (!m_tailStart || frame.pts < *m_tailStart)
        return false;
    m_tailStart.reset();
    return true;
}

void VideoPipeline::drainEncoder() {
    for (;;) {
        ffmpeg::PacketPtr packet = ffmpeg::makePacket();
        if (!m_encoder->receive(*packet))
            return;
        if (const auto entry = m_durations.find(packet->pts); entry != m_durations.end()) {
            packet->duration = entry->second;
            m_durations.erase(entry);
        }
        // x265 leaves the dts undefined in streams that are shorter than its reordering delay. A
        // valid one is at most as far below 0 as the latest pts sent is above it.
        if (packet->dts > packet->pts || packet->dts < -m_latestPts)
            packet->dts = packet->pts;
        if (!m_held)
            m_firstDts = packet->dts;
        m_end = std::max(m_end, packet->pts + packet->duration);
        if (m_held)
            m_output.packets.push(std::move(m_held));
        m_held = std::move(packet);
    }
}

void VideoPipeline::pushLast() {
    if (!m_held)
        return;
    // In MP4 a track's length, and with it its frame rate, is the sum of the distances between its
    // dts. With reordered pictures of unequal length that falls short of how long the track is
    // shown. The last packet makes up the difference, but the track gets no longer than that.
    AVPacket& last = *m_held;
    last.dts = std::max(last.dts, last.pts + m_firstDts);
    const bool isShownLast = last.pts + last.duration == m_end;
    last.duration =
        std::max<std::int64_t>({m_end + m_firstDts - last.dts, 1, isShownLast ? last.duration : 1});
    m_output.packets.push(std::move(m_held));
}

} // namespace media
