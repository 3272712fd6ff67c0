#pragma once

#include "Export/ExportBackend.h"

#include <thread>

namespace media {
class ExportSession;
}

namespace brisklet {

/// Tells a handler how far a session is, every 0.1 s while the session is exporting and at no
/// other time. Calls it on a thread of its own, which has ended when the destructor returns. The
/// session must outlive the watcher.
class ProgressWatcher final {
public:
    /// An empty handler watches nothing.
    ProgressWatcher(const media::ExportSession& session, ExportProgressHandler onProgress);

private:
    std::jthread m_thread;
};

} // namespace brisklet
