#pragma once

#include "Export/ExportRequest.h"

#include <QCoroTask>

#include <functional>
#include <stop_token>

namespace brisklet {

/// Called with the fraction done, 0 to 1, about ten times a second, on a thread of its own, never
/// on the main thread. Not called any more once the export has ended.
using ExportProgressHandler = std::function<void(double fraction)>;

/// An engine that turns a request into a file.
class ExportBackend {
public:
    ExportBackend() = default;
    ExportBackend(const ExportBackend&) = default;
    ExportBackend& operator=(const ExportBackend&) = default;
    virtual ~ExportBackend() = default;

    /// Ends when the file is complete. Throws an exception whose what() is a sentence for the
    /// user, or media::Cancelled after a stop request.
    virtual QCoro::Task<> exportVideo(ExportRequest request, ExportProgressHandler onProgress,
                                      std::stop_token stop) const = 0;
};

} // namespace brisklet
