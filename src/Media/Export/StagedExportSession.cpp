#include "Media/Export/StagedExportSession.h"

#include "Media/Error.h"
#include "Media/Export/ExportRun.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/SystemRefusal.h"
#include "Media/Threading/ProcessorDemand.h"

#include <utility>

namespace media {

StagedExportSession::StagedExportSession(Composition composition, std::filesystem::path outputPath,
                                         FileType fileType, EncoderSettings settings)
    : m_composition(std::move(composition)),
      m_outputPath(std::move(outputPath)),
      m_fileType(fileType),
      m_settings(std::move(settings)) {
    if (!m_composition.asset || !m_composition.videoTrack)
        throw Error(ErrorKind::nothingToExport);
    expectOtherFile(*OpenedAsset::of(m_composition.asset)->file(), m_outputPath);
}

StagedExportSession::~StagedExportSession() = default;

void StagedExportSession::setVideoComposition(std::optional<VideoComposition> videoComposition) {
    m_videoComposition = std::move(videoComposition);
}

void StagedExportSession::run(std::stop_token stop) {
    const ProcessorDemand demand;
    m_state = State::exporting;
    try {
        if (stop.stop_requested())
            throw Cancelled();
        withRefusalsAsErrors([&] { exportFile(stop); });
    } catch (const Cancelled&) {
        m_state = State::cancelled;
        throw;
    } catch (...) {
        m_state = State::failed;
        throw;
    }
    m_progress = 1;
    m_state = State::completed;
}

void StagedExportSession::exportFile(const std::stop_token& stop) {
    OpenedAsset::of(m_composition.asset)->file()->expectUnchanged();
    auto run = std::make_unique<ExportRun>(m_composition, m_videoComposition, m_settings,
                                           m_outputPath, m_fileType);
    run->writeMedia(stop, m_progress);
    if (stop.stop_requested()) {
        run->abandon();
        m_abandoned = std::move(run);
        throw Cancelled();
    }
    run->complete(stop);
}

} // namespace media
