#pragma once

#include "Media/Composition.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace media {

enum class FileType { mpeg4, quickTimeMovie };

/// What the encoders are asked for. The defaults are the program's "highest quality"; the table
/// of measurements behind them stands in docs/architecture.md.
struct EncoderSettings {
    /// H.264 for 8-bit standard-range sources (libx264).
    std::string h264Preset = "superfast";
    /// Further parameters of x264, as "name=value:…". Predicting motion a little better saves what
    /// it costs; more for complex pictures is where this preset falls behind slower ones; weighing
    /// how many B pictures to use is not worth its price; bits go to flat areas by how uneven the
    /// picture is as a whole; blocks of 4 × 4 cost more than they save; edges of blocks are
    /// smoothed a little more.
    std::string h264Parameters = "subme=2:qcomp=0.85:b-adapt=0:aq-mode=2:aq-strength=0.9:"
                                 "partitions=i8x8:deblock=1,1";
    double h264Crf = 17.1;
    /// For pictures that are scaled down: what grain they had is averaged away, and without it
    /// this preset falls further behind.
    double h264ReducedCrf = 16.1;
    /// HEVC Main 10 for deeper or HDR sources (libx265).
    std::string hevcPreset = "ultrafast";
    /// Further parameters of x265: what is judged is likeness to the source, not its look of
    /// detail; edges of blocks are smoothed more, which is nearer to the source.
    std::string hevcParameters = "psy-rd=0:deblock=2,2";
    double hevcCrf = 11;
};

/// Turns a composition into a file: demux → decode → transform → encode → mux, each stage on its
/// own thread with bounded queues between them.
///
///     waiting ──run()──▶ exporting ──▶ completed | failed | cancelled
///
/// The file is written under a hidden temporary name beside the destination, flushed to disk and
/// renamed onto it when it is complete; an older file at the destination is replaced in that same
/// step. On failure and on cancellation the temporary file is removed.
class ExportSession {
public:
    enum class State { waiting, exporting, completed, failed, cancelled };

    /// Throws Error if the composition has no video track, or if `outputPath` is the asset's own
    /// file (same device and inode, links followed), or if the engine can't be loaded. Touches
    /// nothing on disk.
    static std::unique_ptr<ExportSession> make(Composition composition,
                                               std::filesystem::path outputPath, FileType fileType,
                                               EncoderSettings settings = {});

    /// For the engine and its tests.
    ExportSession(Composition composition, std::filesystem::path outputPath, FileType fileType,
                  EncoderSettings settings = {});
    ExportSession(const ExportSession&) = delete;
    ExportSession& operator=(const ExportSession&) = delete;
    virtual ~ExportSession();

    /// Call before run(). None: every source frame is kept with its own timing and size.
    virtual void setVideoComposition(std::optional<VideoComposition> videoComposition);

    /// Runs the export on the calling thread until the file is complete. At most once.
    /// Throws Error on failure; Cancelled within 100 ms of a stop request. By then nothing is left
    /// on disk; encoders that are in the middle of a picture are waited for in the destructor.
    virtual void run(std::stop_token stop = {});

    /// The fraction done, 0 to 1, by presentation time; never decreases. Any thread.
    [[nodiscard]] virtual double progress() const;
    /// Any thread.
    [[nodiscard]] virtual State state() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace media
