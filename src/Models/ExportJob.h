#pragma once

#include "Export/ExportRequest.h"

#include <QCoroTask>
#include <QString>

#include <functional>
#include <stop_token>

namespace brisklet {

/// How an export ended.
struct ExportOutcome {
    enum class Kind { finished, cancelled, failed };

    Kind kind = Kind::finished;
    /// Of a failure: "Export failed: " and why, for the user.
    QString message;
};

/// Runs one export on a worker thread and resumes the caller on its own; never throws. A stop
/// request cancels it.
///
/// `onProgress` hears the fraction done, 0 to 1, on the main thread, posted as the export reports
/// it: it may still be called for a moment after the export has ended.
QCoro::Task<ExportOutcome> runExport(ExportRequest request,
                                     std::function<void(double fraction)> onProgress,
                                     std::stop_token stop);

} // namespace brisklet
