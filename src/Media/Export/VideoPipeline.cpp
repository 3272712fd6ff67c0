#include "Media/Export/VideoPipeline.h"

#include "Media/Error.h"
#include "Media/Threading/ThreadPriority.h"

#include <algorithm>

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

} // namespace

VideoPipeline::VideoPipeline(const Composition& composition,
                             const std::optional<VideoComposition>& videoComposition,
                             const EncoderSettings& settings, const std::stop_token& stop)
    : m_stop(stop),
      m_path(composition, videoComposition, settings,
             {.reader = readerOptions(composition.videoTrack->source, videoComposition)}),
      m_schedule(m_path.schedule(composition.videoTrack->range)),
      m_decoded(kDecodedWaiting, stop),
      m_transformed(kTransformedWaiting, stop),
      m_transform(m_path.making(), m_decoded, m_transformed, stop),
      m_output(kPacketsWaiting, stop) {
    m_output.timeBase = m_path.timeBase();
    m_tailStart = m_path.tailStart();
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
        m_path.encoder().send(&frame);
        drainEncoder();
    }
    m_path.encoder().send(nullptr);
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
        if (!m_path.encoder().receive(*packet))
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
