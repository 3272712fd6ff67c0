#include "Models/ExportJob.h"

#include "Export/AVFoundationExporter.h"
#include "Media/Error.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"

#include <QCoreApplication>

#include <exception>
#include <utility>

namespace brisklet {

QCoro::Task<ExportOutcome> runExport(ExportRequest request,
                                     std::function<void(double fraction)> onProgress,
                                     std::stop_token stop) {
    const auto postProgress = [onProgress = std::move(onProgress)](double fraction) {
        postToMainThread([onProgress, fraction] { onProgress(fraction); });
    };
    ExportOutcome outcome;
    try {
        const AVFoundationExporter exporter;
        auto task = exporter.exportVideo(std::move(request), postProgress, stop);
        co_await task;
    } catch (const media::Cancelled&) {
        outcome.kind = ExportOutcome::Kind::cancelled;
    } catch (const std::exception& error) {
        outcome = {.kind = ExportOutcome::Kind::failed,
                   .message = QCoreApplication::translate(
                                  //: %1: the reason, a whole sentence.
                                  "brisklet::ExportJob", "Export failed: %1")
                                  .arg(localizedMessage(error))};
    }
    co_return outcome;
}

} // namespace brisklet
