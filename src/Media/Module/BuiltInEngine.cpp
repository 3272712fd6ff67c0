#include "Media/Module/BuiltInEngine.h"

#include "Media/Export/DeadFiles.h"
#include "Media/Export/ExportTrial.h"
#include "Media/Export/StagedExportSession.h"
#include "Media/Export/WriteError.h"
#include "Media/FFmpeg/Bounds.h"
#include "Media/MemoryReturn.h"
#include "Media/Pictures/DecodingImageGenerator.h"
#include "Media/Playback/CubebOutput.h"
#include "Media/Playback/ThreadedPlayer.h"
#include "Media/Reading/OpenedAsset.h"
#include "Media/SystemRefusal.h"

#include <utility>

extern "C" {
#include <libavutil/mem.h>
}

namespace media {

namespace {

/// The largest block that libav may ask for: a picture of most pixels in 32 bits. A file of a few
/// bytes can claim an index for which libav would fill gigabytes.
constexpr std::size_t kMostBlockBytes = std::size_t{4} * ffmpeg::kMostPixels;

class BuiltInEngine final : public Engine {
public:
    BuiltInEngine() {
        mapLargeBlocks();
        ::av_max_alloc(kMostBlockBytes);
    }

    [[nodiscard]] std::shared_ptr<const Asset> openAsset(const std::filesystem::path& path,
                                                         std::stop_token stop) const override {
        return withRefusalsAsErrors([&] { return OpenedAsset::open(path, stop); });
    }

    [[nodiscard]] std::shared_ptr<Player> makePlayer(Executor executor) const override {
        return withRefusalsAsErrors([&] {
            return std::make_shared<ThreadedPlayer>(std::move(executor),
                                                    std::make_unique<playback::CubebOutput>());
        });
    }

    [[nodiscard]] std::unique_ptr<ImageGenerator>
    makeImageGenerator(std::shared_ptr<const Asset> asset) const override {
        return std::make_unique<DecodingImageGenerator>(std::move(asset));
    }

    [[nodiscard]] std::unique_ptr<ExportSession>
    makeExportSession(Composition composition, std::filesystem::path outputPath, FileType fileType,
                      EncoderSettings settings) const override {
        return withRefusalsAsErrors([&] {
            return std::make_unique<StagedExportSession>(
                std::move(composition), std::move(outputPath), fileType, std::move(settings));
        });
    }

    [[nodiscard]] std::optional<ExportForecast>
    forecastExport(const Composition& composition,
                   const std::optional<VideoComposition>& videoComposition,
                   const EncoderSettings& settings, const std::stop_token& stop) const override {
        auto forecast = withRefusalsAsErrors(
            [&] { return runTrial(composition, videoComposition, settings, stop); });
        // Encoders need much for a moment; the window is at rest afterwards, for hours perhaps.
        returnFreedMemory();
        return forecast;
    }

    void removeLeftovers(const std::filesystem::path& output) const override {
        removeDeadFiles(folderOf(output));
    }
};

} // namespace

const Engine& builtInEngine() {
    static const BuiltInEngine engine;
    return engine;
}

} // namespace media
