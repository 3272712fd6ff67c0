#pragma once

#include "Media/ExportForecast.h"
#include "Media/ExportSession.h"
#include "Media/ImageGenerator.h"
#include "Media/Player.h"

#include <filesystem>
#include <memory>
#include <stop_token>

namespace media {

/// Makes the objects of the media layer that decode, play and encode. An empty window needs none of
/// them, nor the hundred libraries behind them, so the program is not linked to the engine: it is a
/// module beside the program, loaded once, when it is first asked for, and kept. What it makes is
/// known to the program as pure interfaces. Immutable; any thread.
///
/// Other layers come here through Asset::open() and the make() functions of Player, ImageGenerator
/// and ExportSession and through forecastExport(), whose comments say what these throw.
class Engine {
public:
    Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    virtual ~Engine() = default;

    [[nodiscard]] virtual std::shared_ptr<const Asset> openAsset(const std::filesystem::path& path,
                                                                 std::stop_token stop) const = 0;
    [[nodiscard]] virtual std::shared_ptr<Player> makePlayer(Executor executor) const = 0;
    [[nodiscard]] virtual std::unique_ptr<ImageGenerator>
    makeImageGenerator(std::shared_ptr<const Asset> asset) const = 0;
    [[nodiscard]] virtual std::unique_ptr<ExportSession>
    makeExportSession(Composition composition, std::filesystem::path outputPath, FileType fileType,
                      EncoderSettings settings) const = 0;
    [[nodiscard]] virtual std::optional<ExportForecast>
    forecastExport(const Composition& composition,
                   const std::optional<VideoComposition>& videoComposition,
                   const EncoderSettings& settings, const std::stop_token& stop) const = 0;
    /// Frees the space that killed exports into the output's folder hold. Blocks.
    virtual void removeLeftovers(const std::filesystem::path& output) const = 0;
};

/// Where decoders and encoders work.
enum class EnginePlace {
    /// In this process.
    program,
    /// In processes of their own: what crashes one of them harms nothing else.
    helpers,
};

/// Which engine is to be loaded, before the first call of engine(); without it, that of this
/// process. The environment variable BRISKLET_ENGINE (“program” or “helpers”) has the last word.
/// Where no helpers can be started, this process stands in for them.
void chooseEngine(EnginePlace place);

/// The engine. The first call loads it, which takes some tens of milliseconds; calls meanwhile wait
/// for that. Throws Error if it can't be loaded, or has other classes than this program knows.
const Engine& engine();

} // namespace media
