#include "Media/Export/FileExportSession.h"

#include "Media/Error.h"
#include "Media/Export/OutputFile.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/SystemRefusal.h"
#include "Media/Threading/ProcessorDemand.h"

#include <utility>

namespace media {

FileExportSession::FileExportSession(Job job, std::filesystem::path outputPath)
    : m_job(std::move(job)), m_outputPath(std::move(outputPath)) {
    if (!m_job.composition.asset || !m_job.composition.videoTrack)
        throw Error(ErrorKind::nothingToExport);
}

void FileExportSession::expectOtherFile() const {
    source()->expectOtherFile(m_outputPath);
}

void FileExportSession::setVideoComposition(std::optional<VideoComposition> videoComposition) {
    m_job.videoComposition = videoComposition;
}

void FileExportSession::run(std::stop_token stop) {
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

void FileExportSession::exportFile(const std::stop_token& stop) {
    source()->expectUnchanged();
    auto file = std::make_unique<OutputFile>(m_outputPath);
    try {
        write(m_job, file, m_progress, stop);
    } catch (const WriteRefusal& refusal) {
        file->throwError(refusal.code());
    }
    // Much may have happened meanwhile, to the source and to its name.
    source()->expectUnchanged();
    expectOtherFile();
    if (stop.stop_requested())
        throw Cancelled();
    file->commit();
}

} // namespace media
