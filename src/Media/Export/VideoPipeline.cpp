#include "Media/Export/VideoPipeline.h"

#include "Media/Error.h"
#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <thread>

namespace media {

namespace {

/// Enough to keep a stage busy while its neighbour is held up for a moment; each picture more
/// costs its full size in memory.
constexpr std::size_t kPicturesWaiting = 2;
constexpr std::size_t kPacketsWaiting = 32;

/// One decoder thread a processor. libav's own choice is one more, which holds another picture and
/// gains nothing beside an encoder.
VideoReader::Options readerOptions() {
    VideoReader::Options options;
    options.threads = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    return options;
}

int evenAtLeastTwo(int side) {
    return std::max(2, side - side % 2);
}

} // namespace

VideoPipeline::VideoPipeline(const Composition& composition,
                             const std::optional<VideoComposition>& videoComposition,
                             const EncoderSettings& settings, const std::stop_token& stop)
    : m_stop(stop),
      m_reader(composition.asset, composition.videoTrack->source, readerOptions()),
      m_decoded(kPicturesWaiting, stop),
      m_transformed(kPicturesWaiting, stop),
      m_output(kPacketsWaiting, stop) {
    const CompositionTrack& track = *composition.videoTrack;
    const ffmpeg::SourceTrack& source = composition.asset->info().track(track.source.streamIndex);
    m_schedule =
        videoComposition
            ? FrameSchedule::constantRate(m_reader, track.range, videoComposition->frameDuration)
            : FrameSchedule::sourceTiming(m_reader, track, source.timeBase.den);
    openEncoder(source, settings, videoComposition);
}

void VideoPipeline::openEncoder(const ffmpeg::SourceTrack& track, const EncoderSettings& settings,
                                const std::optional<VideoComposition>& videoComposition) {
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
    } else {
        encoding.width = evenAtLeastTwo(facts.codedWidth);
        encoding.height = evenAtLeastTwo(facts.codedHeight);
        encoding.sampleAspectRatio = track.sampleAspectRatio;
        if (track.averageFrameRate.num > 0 && track.averageFrameRate.den > 0)
            encoding.frameRate = track.averageFrameRate;
        // Without a video composition pixels stay what they are, whatever their shape.
        natural = {static_cast<double>(facts.codedWidth), static_cast<double>(facts.codedHeight)};
    }
    m_encoder = ffmpeg::Encoder::forVideo(track, encoding, settings);
    PictureTransform::Output output;
    output.width = encoding.width;
    output.height = encoding.height;
    output.format = m_encoder->context().pix_fmt;
    m_transform.emplace(toCanvas, natural, output);
    m_output.timeBase = encoding.timeBase;
}

void VideoPipeline::decodeStage() {
    bool isEmpty = true;
    while (auto frame = m_schedule->next(m_stop)) {
        isEmpty = false;
        m_decoded.push(std::move(*frame));
    }
    if (isEmpty)
        throw Error("Not one picture of this range can be decoded.");
    m_decoded.finish();
}

void VideoPipeline::transformStage() {
    ffmpeg::FramePtr last;
    while (auto scheduled = m_decoded.pop()) {
        if (!scheduled->isRepeat || !last)
            last = m_transform->apply(*scheduled->frame);
        scheduled->frame = ffmpeg::referenced(*last);
        m_transformed.push(std::move(*scheduled));
    }
    m_transformed.finish();
}

void VideoPipeline::encodeStage() {
    while (auto scheduled = m_transformed.pop()) {
        AVFrame& frame = *scheduled->frame;
        frame.pts = scheduled->pts;
        // The source's choice of picture types is not the encoder's.
        frame.pict_type = AV_PICTURE_TYPE_NONE;
        m_durations[scheduled->pts] = scheduled->duration;
        m_latestPts = scheduled->pts;
        m_encoder->send(&frame);
        drainEncoder();
    }
    m_encoder->send(nullptr);
    drainEncoder();
    m_output.packets.finish();
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
        m_output.packets.push(std::move(packet));
    }
}

} // namespace media
