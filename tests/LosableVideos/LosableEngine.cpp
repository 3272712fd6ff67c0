#include "LosableVideos/LosableAsset.h"
#include "LosableVideos/LosablePlayer.h"
#include "LosableVideos/LosableVideos.h"
#include "Media/Engine.h"

#include <algorithm>
#include <thread>
#include <utility>
#include <vector>

/// The linker's names for the engine that is called and for the one that would be.
const media::Engine& engineOfTheTests() asm("__wrap__ZN5media6engineEv");
const media::Engine& engineOfTheProgram() asm("__real__ZN5media6engineEv");

namespace testsupport {

namespace {

enum class Mode { real, losable, lostAtOnce };

/// The videos of the one LosableVideos there is.
struct Videos {
    std::mutex mutex;
    Mode mode = Mode::real;
    std::vector<std::weak_ptr<const LosableAsset>> opened;
};

Videos& videos() {
    static Videos all;
    return all;
}

void setMode(Mode mode) {
    const std::lock_guard lock(videos().mutex);
    videos().mode = mode;
}

media::Composition ofReal(media::Composition composition) {
    composition.asset = LosableAsset::real(composition.asset);
    return composition;
}

/// The real engine for losable assets. An export needs none of the processes that show a video, so
/// it can be made of a lost one.
class LosableEngine final : public media::Engine {
public:
    [[nodiscard]] std::shared_ptr<const media::Asset>
    openAsset(const std::filesystem::path& path, std::stop_token stop) const override {
        auto real = engineOfTheProgram().openAsset(path, std::move(stop));
        const std::lock_guard lock(videos().mutex);
        if (videos().mode == Mode::real)
            return real;
        auto asset = std::make_shared<const LosableAsset>(std::move(real));
        videos().opened.push_back(asset);
        if (videos().mode == Mode::lostAtOnce)
            asset->lose();
        return asset;
    }

    [[nodiscard]] std::shared_ptr<media::Player>
    makePlayer(media::Executor executor) const override {
        return std::make_shared<LosablePlayer>(
            engineOfTheProgram().makePlayer(std::move(executor)));
    }

    [[nodiscard]] std::unique_ptr<media::ImageGenerator>
    makeImageGenerator(std::shared_ptr<const media::Asset> asset) const override {
        return engineOfTheProgram().makeImageGenerator(LosableAsset::present(asset));
    }

    [[nodiscard]] std::unique_ptr<media::ExportSession>
    makeExportSession(media::Composition composition, std::filesystem::path outputPath,
                      media::FileType fileType, media::EncoderSettings settings) const override {
        return engineOfTheProgram().makeExportSession(
            ofReal(std::move(composition)), std::move(outputPath), fileType, std::move(settings));
    }

    [[nodiscard]] std::optional<media::ExportForecast>
    forecastExport(const media::Composition& composition,
                   const std::optional<media::VideoComposition>& videoComposition,
                   const media::EncoderSettings& settings,
                   const std::stop_token& stop) const override {
        return engineOfTheProgram().forecastExport(ofReal(composition), videoComposition, settings,
                                                   stop);
    }

    void removeLeftovers(const std::filesystem::path& output) const override {
        engineOfTheProgram().removeLeftovers(output);
    }
};

} // namespace

LosableVideos::LosableVideos() {
    setMode(Mode::losable);
}

LosableVideos::~LosableVideos() {
    const std::lock_guard lock(videos().mutex);
    videos().mode = Mode::real;
    videos().opened.clear();
}

void LosableVideos::lose(const std::filesystem::path& path) {
    std::jthread([&path] {
        const std::lock_guard lock(videos().mutex);
        for (const auto& each : videos().opened) {
            if (const auto asset = each.lock(); asset && asset->path() == path)
                asset->lose();
        }
    }).join();
}

std::size_t LosableVideos::openedCount() {
    const std::lock_guard lock(videos().mutex);
    return videos().opened.size();
}

void LosableVideos::loseWhenOpened() {
    setMode(Mode::lostAtOnce);
}

} // namespace testsupport

const media::Engine& engineOfTheTests() {
    static const testsupport::LosableEngine engine;
    // Loads the real one, or says why that can't be done.
    static_cast<void>(engineOfTheProgram());
    return engine;
}
