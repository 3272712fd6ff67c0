#include "Media/Playback/PlayerThreads.h"

#include <pthread.h>

#include <chrono>
#include <system_error>

namespace media::playback {

namespace {

/// Far more than any work takes before it looks whether it is to stop, unless it reads from a disk
/// that does not answer.
constexpr std::chrono::milliseconds kLongestFarewell{500};

} // namespace

void PlayerThreads::start(const char* name, std::function<void(const std::stop_token&)> work) {
    // Held so that the thread is counted before it can end.
    const std::lock_guard lock(m_mutex);
    m_threads.emplace_back([this, work = std::move(work)](const std::stop_token& stop) {
        work(stop);
        const std::lock_guard ending(m_mutex);
        --m_runningCount;
        m_hasEnded.notify_all();
    });
    ++m_runningCount;
    pthread_setname_np(m_threads.back().native_handle(), name);
}

void PlayerThreads::requestStop() {
    for (std::jthread& thread : m_threads)
        thread.request_stop();
}

void PlayerThreads::finish(std::shared_ptr<void> owner, const std::function<void()>& abandon) {
    if (waitForAll()) {
        joinAll();
        return;
    }
    abandon();
    try {
        std::thread([this, owner = std::move(owner)] { joinAll(); }).detach();
    } catch (const std::system_error&) {
        joinAll();
    }
}

bool PlayerThreads::waitForAll() {
    std::unique_lock lock(m_mutex);
    return m_hasEnded.wait_for(lock, kLongestFarewell, [this] { return m_runningCount == 0; });
}

void PlayerThreads::joinAll() {
    for (std::jthread& thread : m_threads)
        thread.join();
}

} // namespace media::playback
