#include "Media/Export/StagedExportSession.h"

#include "Media/Error.h"
#include "Media/Export/ExportRun.h"
#include "Media/Export/OutputFile.h"

#include <utility>

namespace media {

StagedExportSession::StagedExportSession(Composition composition, std::filesystem::path outputPath,
                                         FileType fileType, EncoderSettings settings)
    : FileExportSession({composition, std::nullopt, fileType, std::move(settings)},
                        std::move(outputPath)),
      m_source(OpenedAsset::of(composition.asset)->file()) {
    expectOtherFile();
}

StagedExportSession::~StagedExportSession() = default;

std::shared_ptr<const ffmpeg::SourceFile> StagedExportSession::source() const {
    return m_source;
}

void StagedExportSession::write(const Job& job, std::unique_ptr<OutputFile>& file,
                                std::atomic<double>& progress, const std::stop_token& stop) {
    auto run = std::make_unique<ExportRun>(job.composition, job.videoComposition, job.settings,
                                           file->writer(), job.fileType);
    run->writeMedia(stop, progress);
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
