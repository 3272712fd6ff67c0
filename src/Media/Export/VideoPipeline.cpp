#include "Media/Export/VideoPipeline.h"

#include "Media/Error.h"
#include "Media/Export/Deinterlacer.h"
#include "Media/FFmpeg/LibavReleases.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <cmath>

namespace media {

namespace {

/// Each picture that waits costs its full size in memory. The decoder has some in hand by itself,
/// so that one comes as soon as it is asked for; the encoder takes them unevenly.
constexpr std::size_t kDecodedWaiting = 0;
constexpr std::size_t kTransformedWaiting = 2;
constexpr std::size_t kPacketsWaiting = 32;

/// From how much smaller than the source an output is decoding the greater part of the work.
constexpr double kDecodingPrevails = 0.5;

/// Where encoding is the greater part the decoder's threads stand back behind the encoder's: those
/// wait for each other now and then, and what they leave is enough for decoding, whereas a decoder
/// that runs first fills its queue, stops, and leaves the encoder alone with processors that it
/// cannot fill.
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

/// From which ratio of areas on pictures count as scaled down: not where a side is made even.
constexpr double kReducedArea = 0.9;

/// How long a run of pictures the proof of a finished file may have to decode: those after the
/// last key frame. Pixels.
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

void VideoPipeline::openEncoder(const ffmpeg::SourceTrack& track, const EncoderSettings& settings,
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
        // Without a video composition pixels stay what they are, whatever their shape.
        natural = {static_cast<double>(facts.codedWidth), static_cast<double>(facts.codedHeight)};
        encoding.fieldOrder = track.fieldOrder;
    }
    m_encoder = ffmpeg::Encoder::forVideo(track, encoding, settings);
    PictureTransform::Output output;
    output.width = encoding.width;
    output.height = encoding.height;
    output.format = m_encoder->context().pix_fmt;
    m_transform.emplace(toCanvas, natural, output);
    if (m_encoder->context().flags & AV_CODEC_FLAG_INTERLACED_DCT)
        m_fieldTransform.emplace(natural, output);
    m_output.timeBase = encoding.timeBase;
    const Time tail = Time::fromSeconds(tailSeconds(m_encoder->context()), encoding.timeBase.den);
    if (duration.seconds() > 2 * tail.seconds())
        m_tailStart = (duration - tail).rescaled(encoding.timeBase.den).value;
}

void VideoPipeline::decodeStage() {
    while (auto frame = m_schedule->next(m_stop)) {
        ++m_scheduledFrames;
        m_decoded.push(std::move(*frame));
    }
    if (m_scheduledFrames == 0)
        throw Error("Not one picture of this range can be decoded.");
    m_decoded.finish();
}

void VideoPipeline::transformStage() {
    ffmpeg::FramePtr last;
    while (auto scheduled = m_decoded.pop()) {
        if (!scheduled->isRepeat || !last)
            last = transformed(*scheduled);
        scheduled->frame = ffmpeg::referenced(*last);
        scheduled->previous.reset();
        scheduled->following.reset();
        m_transformed.push(std::move(*scheduled));
    }
    m_transformed.finish();
}

ffmpeg::FramePtr VideoPipeline::transformed(const ScheduledFrame& scheduled) {
    const AVFrame& frame = *scheduled.frame;
    if (m_deinterlaces) {
        return m_transform->apply(
            *Deinterlacer::apply(frame, scheduled.previous.get(), scheduled.following.get()));
    }
    if (m_fieldTransform && ffmpeg::isInterlaced(frame) &&
        frame.format != m_encoder->context().pix_fmt)
        return m_fieldTransform->apply(frame);
    return m_transform->apply(frame);
}

void VideoPipeline::encodeStage() {
    while (auto scheduled = m_transformed.pop()) {
        AVFrame& frame = *scheduled->frame;
        frame.pts = scheduled->pts;
        // The source's choice of picture types is not the encoder's.
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
        // x265 leaves the decoding times of a stream shorter than its reordering undefined. True
        // ones go before the first picture by no more than what has been handed in.
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
    // A track's length in the file, and with it its frame rate, is a sum of distances between
    // decoding times: pictures of unequal length that are reordered do not fill it. The last
    // picture to be decoded takes the difference, but none longer than the track is shown.
    AVPacket& last = *m_held;
    last.dts = std::max(last.dts, last.pts + m_firstDts);
    const bool isShownLast = last.pts + last.duration == m_end;
    last.duration =
        std::max<std::int64_t>({m_end + m_firstDts - last.dts, 1, isShownLast ? last.duration : 1});
    m_output.packets.push(std::move(m_held));
}

} // namespace media
