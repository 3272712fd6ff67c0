#pragma once

#include "Media/Export/FileExportSession.h"

#include <memory>

namespace media {

class ExportRun;

/// The export session that the engine makes: decodes and encodes in this process. What exists only
/// while it runs is an ExportRun.
class StagedExportSession final : public FileExportSession {
public:
    /// As ExportSession::make().
    StagedExportSession(Composition composition, std::filesystem::path outputPath,
                        FileType fileType, EncoderSettings settings = {});
    ~StagedExportSession() override;

private:
    [[nodiscard]] std::shared_ptr<const ffmpeg::SourceFile> source() const override;
    void write(const Job& job, std::unique_ptr<OutputFile>& file, std::atomic<double>& progress,
               const std::stop_token& stop) override;

    std::shared_ptr<const ffmpeg::SourceFile> m_source;

    // Of a run that was cancelled: its threads end soon, and are waited for in the destructor.
    std::unique_ptr<OutputFile> m_abandonedFile;
    std::unique_ptr<ExportRun> m_abandoned;
};

} // namespace media
