#pragma once

#include "Media/Export/FileExportSession.h"
#include "Media/ExportForecast.h"

#include <memory>
#include <optional>

namespace media::process {

class ForkServer;

/// An export session whose decoding and encoding happen in a helper of its own, which writes into
/// the descriptor of the new file.
class RemoteExportSession final : public FileExportSession {
public:
    /// As ExportSession::make(); `server` outlives it.
    RemoteExportSession(ForkServer& server, Composition composition,
                        std::filesystem::path outputPath, FileType fileType,
                        EncoderSettings settings);

private:
    [[nodiscard]] std::shared_ptr<const ffmpeg::SourceFile> source() const override;
    void write(const Job& job, std::unique_ptr<OutputFile>& file, std::atomic<double>& progress,
               const std::stop_token& stop) override;

    ForkServer& m_server;
    std::shared_ptr<const ffmpeg::SourceFile> m_source;
};

/// As forecastExport(), in a helper of its own; none if that ends by itself.
std::optional<ExportForecast>
forecastRemotely(ForkServer& server, const Composition& composition,
                 const std::optional<VideoComposition>& videoComposition,
                 const EncoderSettings& settings, const std::stop_token& stop);

} // namespace media::process
