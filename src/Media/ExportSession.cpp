#include "Media/ExportSession.h"

#include "Media/Error.h"
#include "Media/Export/AudioPipeline.h"
#include "Media/Export/ExportProof.h"
#include "Media/Export/OutputFile.h"
#include "Media/Export/VideoPipeline.h"
#include "Media/FFmpeg/Muxer.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/Threading/ProcessorDemand.h"
#include "Media/Threading/ThreadPriority.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <pthread.h>
#include <thread>
#include <vector>

namespace media {

namespace {

void expectOtherFile(const ffmpeg::SourceFile& source, const std::filesystem::path& output) {
    if (source.isSameFileAs(output))
        throw Error("The video can’t be exported over itself.");
}

/// Runs stages on threads of their own. The first failure stops all of them.
class Stages {
public:
    explicit Stages(std::stop_source stop) : m_stop(std::move(stop)) {}

    Stages(const Stages&) = delete;
    Stages& operator=(const Stages&) = delete;

    ~Stages() { m_stop.request_stop(); }

    void start(const char* name, std::function<void()> stage, int niceness = 0) {
        m_threads.emplace_back([this, name, stage = std::move(stage), niceness] {
            pthread_setname_np(pthread_self(), name);
            if (niceness > 0)
                standBack(niceness);
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

/// Everything that exists only while an export runs.
class ExportRun {
public:
    /// Opens decoders, encoders and the temporary file. Throws Error.
    ExportRun(const Composition& composition,
              const std::optional<VideoComposition>& videoComposition,
              const EncoderSettings& settings, const std::filesystem::path& outputPath,
              FileType fileType);

    /// Runs all stages until the media are written, or until one fails or is stopped.
    void writeMedia(const std::stop_token& stop, std::atomic<double>& progress);
    /// Waits for all stages, completes the file, proves it and gives it its name. Throws what went
    /// wrong.
    void complete(const std::stop_token& stop);
    /// Removes the temporary file; the stages, told to stop, wind down by themselves.
    void abandon();

private:
    void muxStage(std::atomic<double>& progress);
    [[nodiscard]] ExportPlan plan() const;
    void report(const AVPacket& packet, AVRational timeBase, std::atomic<double>& progress) const;

    Time m_duration;
    std::shared_ptr<const ffmpeg::SourceFile> m_source;
    std::filesystem::path m_outputPath;
    // The stages' stop token goes to all that follows; their threads end before any of it.
    std::stop_source m_stop;
    std::optional<VideoPipeline> m_video;
    std::vector<std::unique_ptr<AudioPipeline>> m_sounds;
    OutputFile m_file;
    ffmpeg::Muxer m_muxer;
    std::vector<PacketStream*> m_streams;
    Stages m_stages;
};

ExportRun::ExportRun(const Composition& composition,
                     const std::optional<VideoComposition>& videoComposition,
                     const EncoderSettings& settings, const std::filesystem::path& outputPath,
                     FileType fileType)
    : m_duration(composition.videoTrack->range.duration()),
      m_source(composition.asset->file()),
      m_outputPath(outputPath),
      m_video(std::in_place, composition, videoComposition, settings, m_stop.get_token()),
      m_file(outputPath),
      m_muxer(m_file, fileType, composition.asset->info(), composition.videoTrack->range),
      m_stages(m_stop) {
    const ffmpeg::SourceInfo& info = composition.asset->info();
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
    // Much may have happened meanwhile, to the source and to its name.
    m_source->expectUnchanged();
    expectOtherFile(*m_source, m_outputPath);
    if (stop.stop_requested())
        throw Cancelled();
    m_file.commit();
}

ExportPlan ExportRun::plan() const {
    ExportPlan plan{{{MediaType::video, m_video->scheduledFrames()}}, m_duration};
    for (const auto& sound : m_sounds)
        plan.tracks.push_back({MediaType::audio, sound->packets()});
    return plan;
}

void ExportRun::abandon() {
    m_stop.request_stop();
    m_file.discard();
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
    /// Of a run that was cancelled: its threads end soon, and are waited for in the destructor.
    std::unique_ptr<ExportRun> abandoned;

    void exportFile(const std::stop_token& stop);
};

void ExportSession::Private::exportFile(const std::stop_token& stop) {
    composition.asset->file()->expectUnchanged();
    auto run =
        std::make_unique<ExportRun>(composition, videoComposition, settings, outputPath, fileType);
    run->writeMedia(stop, progress);
    if (stop.stop_requested()) {
        run->abandon();
        abandoned = std::move(run);
        throw Cancelled();
    }
    run->complete(stop);
}

ExportSession::ExportSession(Composition composition, std::filesystem::path outputPath,
                             FileType fileType, EncoderSettings settings)
    : d(std::make_unique<Private>()) {
    if (!composition.asset || !composition.videoTrack)
        throw Error("There is no video to export.");
    expectOtherFile(*composition.asset->file(), outputPath);
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
    const ProcessorDemand demand;
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
