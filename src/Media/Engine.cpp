#include "Media/Engine.h"

#include <utility>

namespace media {

std::shared_ptr<const Asset> Asset::open(const std::filesystem::path& path, std::stop_token stop) {
    return engine().openAsset(path, std::move(stop));
}

std::shared_ptr<Player> Player::make(Executor executor) {
    return engine().makePlayer(std::move(executor));
}

std::unique_ptr<ImageGenerator> ImageGenerator::make(std::shared_ptr<const Asset> asset) {
    return engine().makeImageGenerator(std::move(asset));
}

std::unique_ptr<ExportSession> ExportSession::make(Composition composition,
                                                   std::filesystem::path outputPath,
                                                   FileType fileType, EncoderSettings settings) {
    return engine().makeExportSession(std::move(composition), std::move(outputPath), fileType,
                                      std::move(settings));
}

std::optional<ExportForecast>
forecastExport(const Composition& composition,
               const std::optional<VideoComposition>& videoComposition,
               const EncoderSettings& settings, const std::stop_token& stop) {
    return engine().forecastExport(composition, videoComposition, settings, stop);
}

} // namespace media
