#pragma once

#include "Media/ExportSession.h"

#include <atomic>
#include <memory>
#include <optional>

namespace media {

class ExportRun;
class OutputFile;

/// The export session that the engine makes. Keeps what is to be exported until it is run; what
/// exists only while it runs is an ExportRun.
class StagedExportSession final : public ExportSession {
public:
    /// As ExportSession::make().
    StagedExportSession(Composition composition, std::filesystem::path outputPath,
                        FileType fileType, EncoderSettings settings = {});
    ~StagedExportSession() override;

    void setVideoComposition(std::optional<VideoComposition> videoComposition) override;
    void run(std::stop_token stop = {}) override;

    [[nodiscard]] double progress() const override { return m_progress; }

    [[nodiscard]] State state() const override { return m_state; }

private:
    void exportFile(const std::stop_token& stop);
    void write(std::unique_ptr<OutputFile>& file, const std::stop_token& stop);

    // Of the thread that makes and runs the session.
    Composition m_composition;
    std::filesystem::path m_outputPath;
    FileType m_fileType;
    EncoderSettings m_settings;
    std::optional<VideoComposition> m_videoComposition;

    // Any thread.
    std::atomic<double> m_progress = 0;
    std::atomic<State> m_state = State::waiting;

    // Of a run that was cancelled: its threads end soon, and are waited for in the destructor.
    std::unique_ptr<OutputFile> m_abandonedFile;
    std::unique_ptr<ExportRun> m_abandoned;
};

} // namespace media
