#pragma once

#include "Media/Engine.h"
#include "Media/Process/Client/ForkServer.h"

namespace media::process {

/// The engine whose decoders and encoders work in helper processes: one for each opened file, each
/// export and each forecast. What plays, and what opens and writes files, is in this process.
class ProcessEngine final : public Engine {
public:
    /// Throws Error if no process can be started.
    ProcessEngine();

    [[nodiscard]] std::shared_ptr<const Asset> openAsset(const std::filesystem::path& path,
                                                         std::stop_token stop) const override;
    [[nodiscard]] std::shared_ptr<Player> makePlayer(Executor executor) const override;
    [[nodiscard]] std::unique_ptr<ImageGenerator>
    makeImageGenerator(std::shared_ptr<const Asset> asset) const override;
    [[nodiscard]] std::unique_ptr<ExportSession>
    makeExportSession(Composition composition, std::filesystem::path outputPath, FileType fileType,
                      EncoderSettings settings) const override;
    [[nodiscard]] std::optional<ExportForecast>
    forecastExport(const Composition& composition,
                   const std::optional<VideoComposition>& videoComposition,
                   const EncoderSettings& settings, const std::stop_token& stop) const override;
    void removeLeftovers(const std::filesystem::path& output) const override;

private:
    mutable ForkServer m_server;
};

} // namespace media::process
