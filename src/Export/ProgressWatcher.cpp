#include "Export/ProgressWatcher.h"

#include "Media/ExportSession.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace brisklet {

namespace {

constexpr std::chrono::milliseconds kUpdateInterval(100);

void watch(const std::stop_token& stop, const media::ExportSession& session,
           const ExportProgressHandler& onProgress) {
    std::mutex mutex;
    std::condition_variable_any wakeUp;
    std::unique_lock lock(mutex);
    while (!stop.stop_requested()) {
        if (session.state() == media::ExportSession::State::exporting)
            onProgress(session.progress());
        // Waits for the interval, or until the watcher is stopped.
        wakeUp.wait_for(lock, stop, kUpdateInterval, [] { return false; });
    }
}

} // namespace

ProgressWatcher::ProgressWatcher(const media::ExportSession& session,
                                 ExportProgressHandler onProgress) {
    if (!onProgress)
        return;
    m_thread = std::jthread([&session, onProgress = std::move(onProgress)](
                                const std::stop_token& stop) { watch(stop, session, onProgress); });
}

} // namespace brisklet
