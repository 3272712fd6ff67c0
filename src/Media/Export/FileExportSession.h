#pragma once

#include "Media/ExportSession.h"

#include <atomic>
#include <memory>
#include <optional>

namespace media {

class OutputFile;

namespace ffmpeg {
class SourceFile;
}

/// What all export sessions have in common: the states, the new file and its name, and what is
/// looked at before and after it is written. Who writes its content is a subclass’s business.
class FileExportSession : public ExportSession {
public:
    void setVideoComposition(std::optional<VideoComposition> videoComposition) final;
    void run(std::stop_token stop = {}) final;

    [[nodiscard]] double progress() const final { return m_progress; }

    [[nodiscard]] State state() const final { return m_state; }

protected:
    /// What is to be exported.
    struct Job {
        Composition composition;
        std::optional<VideoComposition> videoComposition;
        FileType fileType = FileType::mpeg4;
        EncoderSettings settings;
    };

    /// As ExportSession::make().
    FileExportSession(Job job, std::filesystem::path outputPath);

    /// The file that the asset was opened from.
    [[nodiscard]] virtual std::shared_ptr<const ffmpeg::SourceFile> source() const = 0;
    /// Writes the content of the new file, complete and proven, and says how far it is; may keep
    /// the file if stopped. Throws Error; WriteRefusal; Cancelled.
    virtual void write(const Job& job, std::unique_ptr<OutputFile>& file,
                       std::atomic<double>& progress, const std::stop_token& stop) = 0;

    /// To be called by the constructors of subclasses: throws Error if the output is the source.
    void expectOtherFile() const;

private:
    void exportFile(const std::stop_token& stop);

    // Of the thread that makes and runs the session.
    Job m_job;
    std::filesystem::path m_outputPath;

    // Any thread.
    std::atomic<double> m_progress = 0;
    std::atomic<State> m_state = State::waiting;
};

} // namespace media
