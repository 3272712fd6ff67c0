#pragma once

#include "Export/ExportBackend.h"

#include <thread>

namespace media {
class ExportSession;
}

namespace brisklet {

/// Calls a handler with the progress of a session every 0.1 s while the session is exporting, on a
/// thread of its own, which has ended when the destructor returns. The session must outlive the
/// watcher.
class ProgressWatcher final {
public:
    /// Does nothing if the handler is empty.
    ProgressWatcher(const media::ExportSession& session, ExportProgressHandler onProgress);

private:
    std::jthread m_thread;
};

} // namespace brisklet
