#include "Media/Process/Client/ProcessEngine.h"

#include "Media/Error.h"
#include "Media/Export/DeadFiles.h"
#include "Media/Export/WriteError.h"
#include "Media/MemoryReturn.h"
#include "Media/Playback/CubebOutput.h"
#include "Media/Playback/ThreadedPlayer.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "Media/Process/Client/RemoteExportSession.h"
#include "Media/Process/Client/RemoteImageGenerator.h"
#include "Media/SystemRefusal.h"

#include <utility>

namespace media::process {

namespace {

/// The program stands beside the module, at the same place seen from every program.
std::filesystem::path enginePath() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        throw Error(becauseOf(ErrorKind::engineNotFound, reasonOf(error.value())));
    return program.parent_path() / BRISKLET_ENGINE_PROGRAM;
}

} // namespace

ProcessEngine::ProcessEngine() : m_server(enginePath()) {
    mapLargeBlocks();
}

std::shared_ptr<const Asset> ProcessEngine::openAsset(const std::filesystem::path& path,
                                                      std::stop_token stop) const {
    return withRefusalsAsErrors([&] { return RemoteAsset::open(m_server, path, stop); });
}

std::shared_ptr<Player> ProcessEngine::makePlayer(Executor executor) const {
    return withRefusalsAsErrors([&] {
        return std::make_shared<ThreadedPlayer>(std::move(executor),
                                                std::make_unique<playback::CubebOutput>());
    });
}

std::unique_ptr<ImageGenerator>
ProcessEngine::makeImageGenerator(std::shared_ptr<const Asset> asset) const {
    return withRefusalsAsErrors(
        [&] { return std::make_unique<RemoteImageGenerator>(std::move(asset)); });
}

std::unique_ptr<ExportSession> ProcessEngine::makeExportSession(Composition composition,
                                                                std::filesystem::path outputPath,
                                                                FileType fileType,
                                                                EncoderSettings settings) const {
    return withRefusalsAsErrors([&] {
        return std::make_unique<RemoteExportSession>(
            m_server, std::move(composition), std::move(outputPath), fileType, std::move(settings));
    });
}

std::optional<ExportForecast>
ProcessEngine::forecastExport(const Composition& composition,
                              const std::optional<VideoComposition>& videoComposition,
                              const EncoderSettings& settings, const std::stop_token& stop) const {
    return withRefusalsAsErrors(
        [&] { return forecastRemotely(m_server, composition, videoComposition, settings, stop); });
}

void ProcessEngine::removeLeftovers(const std::filesystem::path& output) const {
    removeDeadFiles(folderOf(output));
}

} // namespace media::process
