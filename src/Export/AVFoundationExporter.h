#pragma once

#include "Export/ExportBackend.h"
#include "Media/Asset.h"
#include "Media/Composition.h"
#include "Media/Error.h"
#include "Media/ExportForecast.h"

namespace brisklet {

/// Writes the trimmed, optionally turned, cropped, scaled and muted copy that a request describes.
/// Keeps no state between calls. Usable on any thread.
class AVFoundationExporter final : public ExportBackend {
public:
    /// A failure to set up the export. Failures of the source file and of the export itself are
    /// plain media::Error. Not final, because std::throw_with_nested derives from it.
    class ExportError : public media::Error {
    public:
        enum class Kind { noVideoTrack, sessionCreationFailed };

        explicit ExportError(Kind kind);

        [[nodiscard]] Kind kind() const { return m_kind; }

    private:
        Kind m_kind;
    };

    /// Runs on a worker thread; resumes the caller on its own.
    QCoro::Task<> exportVideo(ExportRequest request, ExportProgressHandler onProgress,
                              std::stop_token stop) const override;

    /// The same on the calling thread, which it blocks until the file is complete. An older file at
    /// the output is left untouched unless the export succeeds.
    static void run(const ExportRequest& request, const ExportProgressHandler& onProgress,
                    const std::stop_token& stop);

    /// What the export will come to, by trial encodes; see media::forecastExport(). On the calling
    /// thread, which it blocks. The request needs no output.
    static std::optional<media::ExportForecast> forecast(const ExportRequest& request,
                                                         const std::stop_token& stop);

    /// The size of the exported picture, turned upright; pixels. Of a request with its asset, which
    /// has a video track.
    static media::Size outputSize(const ExportRequest& request);

    /// The request's asset; if it has none, its source, opened by name on the calling thread.
    /// Throws media::Error, which names the file; media::Cancelled.
    static std::shared_ptr<const media::Asset> source(const ExportRequest& request,
                                                      const std::stop_token& stop);

    /// The request as the media layer takes it: a composition of the kept range of the first video
    /// track and, unless muted, of all audio tracks. Throws ExportError without a video track.
    static media::Composition composition(std::shared_ptr<const media::Asset> asset,
                                          const ExportRequest& request);

    /// How the pictures are to be rendered; none if they stay as they are.
    static std::optional<media::VideoComposition> videoComposition(const media::AssetTrack& source,
                                                                   const ExportRequest& request);

    /// One transform, render size and frame duration for a turn (clockwise degrees), a crop
    /// (fractions of the turned picture) and a cap of the short edge (pixels). Never enlarges; the
    /// render size is even, rounded down. A frame rate that is not finite ends the program.
    static media::VideoComposition
    transformComposition(const media::AssetTrack& source, int rotation,
                         const std::optional<media::Rect>& normalizedCrop,
                         std::optional<int> maxShortEdge);
};

} // namespace brisklet
