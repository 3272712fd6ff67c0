#include "Media/ExportSession.h"

#include "Media/Error.h"
#include "Media/Export/AudioPipeline.h"
#include "Media/Export/OutputFile.h"
#include "Media/Export/VideoPipeline.h"
#include "Media/FFmpeg/Muxer.h"
#include "Media/FFmpeg/SourceFile.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <functional>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <vector>

namespace media {

namespace {

/// Runs stages on threads of their own. The first failure stops all of them.
class Stages {
public:
    [[nodiscard]] std::stop_token stopToken() const { return m_stop.get_token(); }

    void requestStop() { m_stop.request_stop(); }

    void start(const char* name, std::function<void()> stage) {
        m_threads.emplace_back([this, name, stage = std::move(stage)] {
            pthread_setname_np(pthread_self(), name);
            guard(stage);
        });
    }

    /// Runs a stage on the calling thread, under the same rule.
    void guard(const std::function<void()>& stage) {
        try {
            stage();
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            if (!m_failure)
                m_failure = std::current_exception();
            m_stop.request_stop();
        }
    }

    /// Waits for all stages; throws the first failure.
    void join() {
        m_threads.clear();
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    std::stop_source m_stop;
    std::mutex m_mutex;
    std::exception_ptr m_failure;
    std::vector<std::jthread> m_threads;
};

} // namespace

class ExportSession::Private {
public:
    Composition composition;
    std::filesystem::path outputPath;
    FileType fileType;
    EncoderSettings settings;
    std::optional<VideoComposition> videoComposition;
    std::atomic<double> progress = 0;
    std::atomic<State> state = State::waiting;

    void exportFile(const std::stop_token& stop);

private:
    void muxStage(ffmpeg::Muxer& muxer, std::vector<PacketStream*> streams);
    void report(const AVPacket& packet, AVRational timeBase);
};

void ExportSession::Private::exportFile(const std::stop_token& stop) {
    Stages stages;
    const std::stop_callback stopStages(stop, [&stages] { stages.requestStop(); });
    VideoPipeline video(composition, videoComposition, settings, stages.stopToken());
    std::vector<std::unique_ptr<AudioPipeline>> sounds;
    for (const CompositionTrack& track : composition.audioTracks)
        sounds.push_back(std::make_unique<AudioPipeline>(composition, track, stages.stopToken()));

    OutputFile file(outputPath);
    const ffmpeg::SourceInfo& info = composition.asset->info();
    const CompositionTrack& picture = *composition.videoTrack;
    ffmpeg::Muxer muxer(file, fileType, info, picture.range);
    std::vector<PacketStream*> streams = {&video.output()};
    video.output().muxerStream =
        muxer.addStream(video.encoderContext(), info.track(picture.source.streamIndex),
                        videoComposition ? AffineTransform{} : picture.preferredTransform);
    std::int64_t expectedPackets = video.expectedPackets();
    for (const auto& sound : sounds) {
        sound->output().muxerStream =
            muxer.addStream(sound->encoderContext(), info.track(sound->track().source.streamIndex));
        expectedPackets += sound->expectedPackets();
        streams.push_back(&sound->output());
    }
    muxer.writeHeader(expectedPackets);

    stages.start("decode", [&video] { video.decodeStage(); });
    stages.start("transform", [&video] { video.transformStage(); });
    stages.start("encode", [&video] { video.encodeStage(); });
    for (const auto& sound : sounds)
        stages.start("sound", [&sound] { sound->run(); });
    stages.guard([&] { muxStage(muxer, streams); });
    stages.join();
    muxer.finish();
    if (stop.stop_requested())
        throw Cancelled();
    file.commit();
}

void ExportSession::Private::muxStage(ffmpeg::Muxer& muxer, std::vector<PacketStream*> streams) {
    struct Head {
        PacketStream* stream;
        ffmpeg::PacketPtr packet;
    };

    std::vector<Head> heads;
    for (PacketStream* stream : streams) {
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
        if (first->stream == streams.front())
            report(*first->packet, first->stream->timeBase);
        muxer.write(*first->packet, first->stream->muxerStream, first->stream->timeBase);
        if (auto packet = first->stream->packets.pop())
            first->packet = std::move(*packet);
        else
            heads.erase(first);
    }
}

void ExportSession::Private::report(const AVPacket& packet, AVRational timeBase) {
    const double duration = composition.videoTrack->range.duration().seconds();
    if (duration <= 0)
        return;
    const double end = static_cast<double>(packet.pts + packet.duration) * av_q2d(timeBase);
    const double fraction = std::clamp(end / duration, 0.0, 1.0);
    // Only this thread writes; packets come in decoding order, so the pts goes back and forth.
    if (fraction > progress.load(std::memory_order_relaxed))
        progress.store(fraction, std::memory_order_relaxed);
}

ExportSession::ExportSession(Composition composition, std::filesystem::path outputPath,
                             FileType fileType, EncoderSettings settings)
    : d(std::make_unique<Private>()) {
    if (!composition.asset || !composition.videoTrack)
        throw Error("There is no video to export.");
    if (composition.asset->file()->isSameFileAs(outputPath))
        throw Error("The video can’t be exported over itself.");
    d->composition = std::move(composition);
    d->outputPath = std::move(outputPath);
    d->fileType = fileType;
    d->settings = std::move(settings);
}

ExportSession::~ExportSession() = default;

void ExportSession::setVideoComposition(std::optional<VideoComposition> videoComposition) {
    d->videoComposition = std::move(videoComposition);
}

void ExportSession::run(std::stop_token stop) {
    d->state = State::exporting;
    try {
        if (stop.stop_requested())
            throw Cancelled();
        d->exportFile(stop);
    } catch (const Cancelled&) {
        d->state = State::cancelled;
        throw;
    } catch (const std::bad_alloc&) {
        d->state = State::failed;
        throw Error("There is not enough memory.");
    } catch (...) {
        d->state = State::failed;
        throw;
    }
    d->progress = 1;
    d->state = State::completed;
}

double ExportSession::progress() const {
    return d->progress;
}

ExportSession::State ExportSession::state() const {
    return d->state;
}

} // namespace media
