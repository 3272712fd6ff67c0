#include "Export/AVFoundationExporter.h"
#include "Export/ProgressWatcher.h"
#include "Media/Error.h"
#include "Media/ExportSession.h"
#include "Support/FileUrl.h"
#include "Tools/cli/Commands.h"
#include "Tools/cli/ProgressReport.h"

namespace brisklet::cli {

namespace {

ExportRequest requestOf(const ExportCommand& command) {
    return {.sourceURL = urlOf(command.source),
            .startTime = command.start,
            .endTime = command.end,
            .muted = command.muted,
            .cropRect = command.crop,
            .rotation = command.rotation,
            .outputURL = urlOf(command.output),
            .format = command.format,
            .maxShortEdge = command.maxShortEdge};
}

/// The exporter's own steps with encoder settings that it does not offer.
void runMeasured(const ExportCommand& command, const ExportRequest& request,
                 const ExportProgressHandler& onProgress, const std::stop_token& stop) {
    auto composition =
        AVFoundationExporter::composition(AVFoundationExporter::source(request, stop), request);
    const auto rendering =
        AVFoundationExporter::videoComposition(composition.videoTrack->source, request);
    const auto fileType = command.format == ExportFormat::mov ? media::FileType::quickTimeMovie
                                                              : media::FileType::mpeg4;
    const auto session = media::ExportSession::make(std::move(composition), command.output,
                                                    fileType, *command.encoders);
    session->setVideoComposition(rendering);
    const ProgressWatcher watcher(*session, onProgress);
    session->run(stop);
}

} // namespace

void run(const ExportCommand& command, const std::stop_token& stop) {
    ProgressReport report(command.progress);
    const auto onProgress = [&report](double fraction) { report.show(fraction); };
    const ExportRequest request = requestOf(command);
    try {
        if (command.encoders)
            runMeasured(command, request, onProgress, stop);
        else
            AVFoundationExporter::run(request, onProgress, stop);
    } catch (const media::Cancelled&) {
        throw;
    } catch (const std::exception& error) {
        throw CommandError(std::string("Export failed: ") + error.what());
    }
    report.show(1);
}

} // namespace brisklet::cli
