#include "Media/Export/ExportRun.h"

#include "Media/Error.h"
#include "Media/FFmpeg/SourceFile.h"

#include <algorithm>
#include <tuple>

namespace media {

ExportRun::ExportRun(const Composition& composition,
                     const std::optional<VideoComposition>& videoComposition,
                     const EncoderSettings& settings, OutputWriter& file, FileType fileType)
    : m_duration(composition.videoTrack->range.duration()),
      m_source(OpenedAsset::of(composition.asset)),
      m_file(file),
      m_video(std::in_place, composition, videoComposition, settings, m_stop.get_token()),
      m_muxer(m_file, fileType, m_source->info(), composition.videoTrack->range),
      m_stages(m_stop) {
    // Nobody shows it.
    std::ignore = m_source->takeFirstFrame();
    const ffmpeg::SourceInfo& info = m_source->info();
    const CompositionTrack& picture = *composition.videoTrack;
    m_streams.push_back(&m_video->output());
    m_video->output().muxerStream =
        m_muxer.addStream(m_video->encoderContext(), info.track(picture.source.streamIndex),
                          videoComposition ? AffineTransform{} : picture.preferredTransform);
    std::int64_t expectedPackets = m_video->expectedPackets();
    for (const CompositionTrack& track : composition.audioTracks) {
        auto sound = std::make_unique<AudioPipeline>(composition, track, m_stop.get_token());
        sound->output().muxerStream =
            m_muxer.addStream(sound->encoderContext(), info.track(track.source.streamIndex));
        expectedPackets += sound->expectedPackets();
        m_streams.push_back(&sound->output());
        m_sounds.push_back(std::move(sound));
    }
    m_muxer.writeHeader(expectedPackets);
}

void ExportRun::writeMedia(const std::stop_token& stop, std::atomic<double>& progress) {
    const std::stop_callback stopStages(stop, [this] { m_stop.request_stop(); });
    m_stages.start(
        "decode", [this] { m_video->decodeStage(); }, kFeederNiceness);
    for (int thread = 0; thread < m_video->transformThreads(); ++thread)
        m_stages.start("transform", [this] { m_video->transformStage(); });
    m_stages.start("encode", [this] { m_video->encodeStage(); });
    for (const auto& sound : m_sounds)
        m_stages.start(
            "sound", [&sound] { sound->run(); }, kFeederNiceness);
    m_stages.guard([&] { muxStage(progress); });
}

void ExportRun::complete(const std::stop_token& stop) {
    m_stages.join();
    m_muxer.finish();
    m_file.startFlush();
    const ExportPlan planned = plan();
    // The proof needs memory for pictures of its own.
    m_streams.clear();
    m_sounds.clear();
    m_video.reset();
    proveExport(m_file.reader(), planned, stop);
}

ExportPlan ExportRun::plan() const {
    ExportPlan plan{{{MediaType::video, m_video->scheduledFrames()}}, m_duration};
    for (const auto& sound : m_sounds)
        plan.tracks.push_back({MediaType::audio, sound->packets()});
    return plan;
}

void ExportRun::abandon() {
    m_stop.request_stop();
}

void ExportRun::muxStage(std::atomic<double>& progress) {
    struct Head {
        PacketStream* stream;
        ffmpeg::PacketPtr packet;
    };

    std::vector<Head> heads;
    for (PacketStream* stream : m_streams) {
        if (auto packet = stream->packets.pop())
            heads.push_back({stream, std::move(*packet)});
    }
    // Always the packet that decodes first: each stream's next one has to be there before any can
    // be written, and each producer works by itself, so the wait ends.
    while (!heads.empty()) {
        const auto first = std::ranges::min_element(heads, [](const Head& a, const Head& b) {
            return av_compare_ts(a.packet->dts, a.stream->timeBase, b.packet->dts,
                                 b.stream->timeBase) < 0;
        });
        if (first->stream == m_streams.front())
            report(*first->packet, first->stream->timeBase, progress);
        m_muxer.write(*first->packet, first->stream->muxerStream, first->stream->timeBase);
        if (auto packet = first->stream->packets.pop())
            first->packet = std::move(*packet);
        else
            heads.erase(first);
    }
}

void ExportRun::report(const AVPacket& packet, AVRational timeBase,
                       std::atomic<double>& progress) const {
    const double duration = m_duration.seconds();
    if (duration <= 0)
        return;
    const double end = static_cast<double>(packet.pts + packet.duration) * av_q2d(timeBase);
    const double fraction = std::clamp(end / duration, 0.0, 1.0);
    // Only this thread writes; packets come in decoding order, so the pts goes back and forth.
    if (fraction > progress.load(std::memory_order_relaxed))
        progress.store(fraction, std::memory_order_relaxed);
}

} // namespace media
