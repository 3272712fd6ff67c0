#include "Export/AVFoundationExporter.h"
#include "Media/Error.h"
#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Tools/cli/Commands.h"
#include "Tools/cli/ProgressReport.h"
#include "Tools/cli/ToolText.h"

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
            .maxShortEdge = command.maxShortEdge,
            .encoders = command.encoders};
}

} // namespace

void run(const ExportCommand& command, const std::stop_token& stop) {
    ProgressReport report(command.progress);
    const auto onProgress = [&report](double fraction) { report.show(fraction); };
    try {
        AVFoundationExporter::run(requestOf(command), onProgress, stop);
    } catch (const media::Cancelled&) {
        throw;
    } catch (const std::exception& error) {
        throw CommandError(
            message(ToolText::tr("Export failed: %1"), {localizedMessage(error).toStdString()}));
    }
    report.show(1);
}

} // namespace brisklet::cli
