#pragma once

#include "Media/Export/AudioPipeline.h"
#include "Media/Export/ExportProof.h"
#include "Media/Export/OutputWriter.h"
#include "Media/Export/Stages.h"
#include "Media/Export/VideoPipeline.h"
#include "Media/ExportSession.h"
#include "Media/FFmpeg/Muxer.h"
#include "Media/Reading/OpenedAsset.h"

#include <atomic>
#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace media {

/// What an export works with while it runs: the pipelines, the threads of their stages and the
/// muxer. The new file’s name is not its business. Used by one thread, which runs the mux stage;
/// the other stages run on threads of their own.
class ExportRun {
public:
    /// Opens decoders and encoders; `file` outlives it. Throws Error; WriteRefusal, as all that
    /// follows.
    ExportRun(const Composition& composition,
              const std::optional<VideoComposition>& videoComposition,
              const EncoderSettings& settings, OutputWriter& file, FileType fileType);

    /// Runs all stages until the media are written, or until one fails or is stopped.
    void writeMedia(const std::stop_token& stop, std::atomic<double>& progress);
    /// Waits for all stages, completes the file and proves it. Throws what went wrong.
    void complete(const std::stop_token& stop);
    /// The stages, told to stop, wind down by themselves.
    void abandon();

private:
    void muxStage(std::atomic<double>& progress);
    [[nodiscard]] ExportPlan plan() const;
    void report(const AVPacket& packet, AVRational timeBase, std::atomic<double>& progress) const;

    Time m_duration;
    std::shared_ptr<const OpenedAsset> m_source;
    OutputWriter& m_file;
    // The stages' stop token goes to all that follows; their threads end before any of it.
    std::stop_source m_stop;
    std::optional<VideoPipeline> m_video;
    std::vector<std::unique_ptr<AudioPipeline>> m_sounds;
    ffmpeg::Muxer m_muxer;
    std::vector<PacketStream*> m_streams;
    Stages m_stages;
};

} // namespace media
