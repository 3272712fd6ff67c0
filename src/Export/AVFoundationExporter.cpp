#include "Export/AVFoundationExporter.h"

#include "Export/FreeSpace.h"
#include "Export/ProgressWatcher.h"
#include "Media/Engine.h"
#include "Media/Error.h"
#include "Media/ExportSession.h"
#include "Media/SystemRefusal.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"

#include <exception>
#include <memory>
#include <string>
#include <utility>

namespace brisklet {

namespace {

media::ErrorKind mediaKind(AVFoundationExporter::ExportError::Kind kind) {
    using Kind = AVFoundationExporter::ExportError::Kind;
    return kind == Kind::noVideoTrack ? media::ErrorKind::noVideoTrackInSource
                                      : media::ErrorKind::noExportSession;
}

/// The request's range, limited to the source: some videos are shorter than the shortest range that
/// the window can set.
media::TimeRange rangeOf(const ExportRequest& request, media::Time duration) {
    media::TimeRange range{media::Time::fromSeconds(request.startTime, media::kComparisonTimescale),
                           media::Time::fromSeconds(request.endTime, media::kComparisonTimescale)};
    const media::Time zero{0, media::kComparisonTimescale};
    const media::Time last = duration.rescaled(media::kComparisonTimescale);
    if (range.start < zero)
        range.start = zero;
    if (last < range.end)
        range.end = last;
    if (!range.start.isNumeric() || !range.end.isNumeric() || !(range.start < range.end))
        throw media::Error(media::ErrorKind::emptyRange);
    return range;
}

std::unique_ptr<media::ExportSession> makeSession(media::Composition composition,
                                                  const ExportRequest& request) {
    try {
        return media::ExportSession::make(std::move(composition), pathOf(request.outputURL),
                                          traits(request.format).fileType, request.encoders);
    } catch (const media::Error&) {
        // Every failure to set up the export has this one message; the cause is nested for a log.
        std::throw_with_nested(AVFoundationExporter::ExportError(
            AVFoundationExporter::ExportError::Kind::sessionCreationFailed));
    }
}

/// Lets go of a session on a thread of its own, or here where there is none.
void leave(std::shared_ptr<media::ExportSession> session) {
    try {
        startWorker([session = std::move(session)] {});
    } catch (const media::Error&) {
        return;
    }
}

} // namespace

AVFoundationExporter::ExportError::ExportError(Kind kind)
    : media::Error(mediaKind(kind)), m_kind(kind) {}

QCoro::Task<> AVFoundationExporter::exportVideo(ExportRequest request,
                                                ExportProgressHandler onProgress,
                                                std::stop_token stop) const {
    return runOnWorker([request, onProgress, stop] {
        media::withRefusalsAsErrors([&] { run(request, onProgress, stop); });
    });
}

void AVFoundationExporter::run(const ExportRequest& request,
                               const ExportProgressHandler& onProgress,
                               const std::stop_token& stop) {
    media::Composition toExport = composition(source(request, stop), request);
    const auto rendering = videoComposition(toExport.videoTrack->source, request);
    if (request.expectedBytes) {
        media::engine().removeLeftovers(pathOf(request.outputURL));
        expectSpaceFor(*request.expectedBytes, pathOf(request.outputURL));
    }
    std::shared_ptr<media::ExportSession> session = makeSession(std::move(toExport), request);
    session->setVideoComposition(rendering);

    // An older file at the output is not removed here: the session replaces it when the new one is
    // complete, so nothing is lost if the export fails or is cancelled.
    try {
        const ProgressWatcher watcher(*session, onProgress);
        session->run(stop);
    } catch (const media::Cancelled&) {
        // Its encoders may be in the middle of a large picture; the caller need not wait for them.
        leave(std::move(session));
        throw;
    }
}

std::optional<media::ExportForecast> AVFoundationExporter::forecast(const ExportRequest& request,
                                                                    const std::stop_token& stop) {
    const media::Composition toExport = composition(source(request, stop), request);
    return media::forecastExport(toExport, videoComposition(toExport.videoTrack->source, request),
                                 request.encoders, stop);
}

media::Size AVFoundationExporter::outputSize(const ExportRequest& request) {
    const media::AssetTrack source = request.asset->tracks(media::MediaType::video).at(0);
    if (const auto rendering = videoComposition(source, request))
        return {static_cast<double>(rendering->renderWidth),
                static_cast<double>(rendering->renderHeight)};
    const media::Rect coded{0, 0, static_cast<double>(media::evenAtLeastTwo(source.codedWidth)),
                            static_cast<double>(media::evenAtLeastTwo(source.codedHeight))};
    return source.preferredTransform.apply(coded).size();
}

std::shared_ptr<const media::Asset> AVFoundationExporter::source(const ExportRequest& request,
                                                                 const std::stop_token& stop) {
    if (request.asset)
        return request.asset;
    try {
        return media::Asset::open(pathOf(request.sourceURL), stop);
    } catch (const media::Error& error) {
        // The message names the source, since other failures of an export are about the new file.
        std::throw_with_nested(
            media::Error(becauseOf(media::ErrorKind::sourceNotOpened, error.failure(),
                                   {shownName(request.sourceURL).toStdString()})));
    }
}

media::Composition AVFoundationExporter::composition(std::shared_ptr<const media::Asset> asset,
                                                     const ExportRequest& request) {
    const auto videoTracks = asset->tracks(media::MediaType::video);
    if (videoTracks.empty())
        throw ExportError(ExportError::Kind::noVideoTrack);
    const media::AssetTrack& video = videoTracks.front();
    const media::TimeRange range = rangeOf(request, asset->duration());

    media::Composition result;
    result.videoTrack = media::CompositionTrack{
        .source = video, .range = range, .preferredTransform = video.preferredTransform};
    if (!request.muted) {
        for (const media::AssetTrack& audio : asset->tracks(media::MediaType::audio)) {
            result.audioTracks.push_back(
                {.source = audio, .range = range, .preferredTransform = {}});
        }
    }
    result.asset = std::move(asset);
    return result;
}

std::optional<media::VideoComposition>
AVFoundationExporter::videoComposition(const media::AssetTrack& source,
                                       const ExportRequest& request) {
    if (!request.cropRect && request.rotation % 360 == 0 && !request.maxShortEdge)
        return std::nullopt;
    return transformComposition(source, request.rotation, request.cropRect, request.maxShortEdge);
}

} // namespace brisklet
