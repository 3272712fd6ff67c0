#pragma once

#include "Media/ExportForecast.h"
#include "Media/ExportSession.h"
#include "Media/Process/Client/HelperProcess.h"

#include <atomic>
#include <memory>
#include <optional>

namespace media {
class OutputFile;
}

namespace media::process {

class ForkServer;

/// An export session whose decoding and encoding happen in a helper of its own. The new file is
/// made, and given its name, here.
class RemoteExportSession final : public ExportSession {
public:
    /// As ExportSession::make(); `server` outlives it.
    RemoteExportSession(ForkServer& server, Composition composition,
                        std::filesystem::path outputPath, FileType fileType,
                        EncoderSettings settings);

    void setVideoComposition(std::optional<VideoComposition> videoComposition) override;
    void run(std::stop_token stop = {}) override;

    [[nodiscard]] double progress() const override { return m_progress; }

    [[nodiscard]] State state() const override { return m_state; }

private:
    void exportFile(const std::stop_token& stop);
    void write(const OutputFile& file, const std::stop_token& stop);

    // Of the thread that makes and runs the session.
    ForkServer& m_server;
    Composition m_composition;
    std::filesystem::path m_outputPath;
    FileType m_fileType;
    EncoderSettings m_settings;
    std::optional<VideoComposition> m_videoComposition;

    // Any thread.
    std::atomic<double> m_progress = 0;
    std::atomic<State> m_state = State::waiting;
};

/// As forecastExport(), in a helper of its own; none if that ends by itself.
std::optional<ExportForecast>
forecastRemotely(ForkServer& server, const Composition& composition,
                 const std::optional<VideoComposition>& videoComposition,
                 const EncoderSettings& settings, const std::stop_token& stop);

} // namespace media::process
