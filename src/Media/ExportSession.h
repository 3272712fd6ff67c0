#pragma once

#include "Media/Composition.h"
#include "Media/EncoderSettings.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>

namespace media {

enum class FileType { mpeg4, quickTimeMovie };

/// Turns a composition into a file: demux → decode → transform → encode → mux. Each stage has a
/// thread of its own, transforming several, with bounded queues between them.
///
///     waiting ──run()──▶ exporting ──▶ completed | failed | cancelled
///
/// The file is written in the destination's folder, without a name where the file system can do
/// that, else under a hidden one; when it is complete it is flushed to disk and given its name,
/// which replaces an older file in the same step. On failure and on cancellation nothing of it
/// stays behind.
class ExportSession {
public:
    enum class State { waiting, exporting, completed, failed, cancelled };

    /// Throws Error if the composition has no video track, or if `outputPath` is the asset's own
    /// file (same device and inode, links followed), or if the engine can't be loaded. Touches
    /// nothing on disk.
    static std::unique_ptr<ExportSession> make(Composition composition,
                                               std::filesystem::path outputPath, FileType fileType,
                                               EncoderSettings settings = {});

    ExportSession(const ExportSession&) = delete;
    ExportSession& operator=(const ExportSession&) = delete;
    virtual ~ExportSession() = default;

    /// Call before run(). None: every source frame is kept with its own timing and size.
    virtual void setVideoComposition(std::optional<VideoComposition> videoComposition) = 0;

    /// Runs the export on the calling thread until the file is complete. At most once.
    /// Throws Error on failure; Cancelled within 100 ms of a stop request. By then nothing is left
    /// on disk; encoders that are in the middle of a picture are waited for in the destructor.
    virtual void run(std::stop_token stop = {}) = 0;

    /// The fraction done, 0 to 1, by presentation time; never decreases. Any thread.
    [[nodiscard]] virtual double progress() const = 0;
    /// Any thread.
    [[nodiscard]] virtual State state() const = 0;

protected:
    ExportSession() = default;
};

} // namespace media
