#include "Media/Export/StagedExportSession.h"

#include "Media/Error.h"
#include "Media/Export/ExportRun.h"
#include "Media/Export/OutputFile.h"
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
    OpenedAsset::of(m_composition.asset)->file()->expectOtherFile(m_outputPath);
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
    const auto source = OpenedAsset::of(m_composition.asset)->file();
    source->expectUnchanged();
    auto file = std::make_unique<OutputFile>(m_outputPath);
    try {
        write(file, stop);
    } catch (const WriteRefusal& refusal) {
        file->throwError(refusal.code());
    }
    // Much may have happened meanwhile, to the source and to its name.
    source->expectUnchanged();
    source->expectOtherFile(m_outputPath);
    if (stop.stop_requested())
        throw Cancelled();
    file->commit();
}

void StagedExportSession::write(std::unique_ptr<OutputFile>& file, const std::stop_token& stop) {
    auto run = std::make_unique<ExportRun>(m_composition, m_videoComposition, m_settings,
                                           file->writer(), m_fileType);
    run->writeMedia(stop, m_progress);
    if (stop.stop_requested()) {
        run->abandon();
        file->discard();
        m_abandonedFile = std::move(file);
        m_abandoned = std::move(run);
        throw Cancelled();
    }
    run->complete(stop);
}

} // namespace media
