#pragma once

#include "Media/Export/AudioPipeline.h"
#include "Media/Export/ExportProof.h"
#include "Media/Export/OutputFile.h"
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

/// Throws Error if `output` is the source itself: the same device and inode, links followed.
void expectOtherFile(const ffmpeg::SourceFile& source, const std::filesystem::path& output);

/// Everything that exists only while an export runs: the pipelines, the threads of their stages,
/// the muxer and the unfinished file. Used by one thread, which runs the mux stage; the other
/// stages run on threads of their own.
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
    std::shared_ptr<const OpenedAsset> m_source;
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

} // namespace media
