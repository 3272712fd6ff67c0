#include "Support/Workers.h"

#include "Media/SystemRefusal.h"

#include <pthread.h>

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <mutex>
#include <thread>

namespace brisklet {

namespace {

/// Encoders in the middle of a large picture take a second or two.
constexpr std::chrono::seconds kLongestWindingDown(3);

/// A thread for each job: however many there are, none waits for another. Any thread. Not a pool of
/// Qt's, which never runs a job whose thread the system does not start, and does not say so.
class Workers final {
public:
    void start(std::function<void()> work);
    /// Whether all have ended by the limit.
    bool wait(std::optional<std::chrono::milliseconds> limit);

private:
    using Threads = std::list<std::thread>;

    /// Joins those that have ended; they are at the very end of their threads.
    void joinEnded();

    std::mutex m_mutex;
    std::condition_variable m_allEnded;
    // Guarded by the mutex.
    Threads m_running;
    Threads m_ended;
};

void Workers::start(std::function<void()> work) {
    joinEnded();
    const std::lock_guard lock(m_mutex);
    const auto place = m_running.emplace(m_running.end());
    try {
        *place = std::thread([this, place, work = std::move(work)]() mutable {
            pthread_setname_np(pthread_self(), "worker");
            // What the work holds is gone before it counts as done.
            std::exchange(work, nullptr)();
            const std::lock_guard ending(m_mutex);
            m_ended.splice(m_ended.end(), m_running, place);
            if (m_running.empty())
                m_allEnded.notify_all();
        });
    } catch (...) {
        m_running.erase(place);
        throw;
    }
}

bool Workers::wait(std::optional<std::chrono::milliseconds> limit) {
    std::unique_lock lock(m_mutex);
    const auto isIdle = [this] { return m_running.empty(); };
    if (limit)
        m_allEnded.wait_for(lock, *limit, isIdle);
    else
        m_allEnded.wait(lock, isIdle);
    const bool haveAllEnded = isIdle();
    lock.unlock();
    joinEnded();
    return haveAllEnded;
}

void Workers::joinEnded() {
    Threads ended;
    {
        const std::lock_guard lock(m_mutex);
        ended.swap(m_ended);
    }
    for (std::thread& thread : ended)
        thread.join();
}

/// Never destroyed: a worker may outlive everything static.
Workers& workers() {
    static auto* const all = new Workers;
    return *all;
}

} // namespace

void startWorker(std::function<void()> work) {
    media::withRefusalsAsErrors([&work] { workers().start(std::move(work)); });
}

bool waitForWorkers(std::optional<std::chrono::milliseconds> limit) {
    return workers().wait(limit);
}

int exitStatusAfterWorkers(int status) {
    if (!waitForWorkers(kLongestWindingDown)) {
        std::fflush(nullptr);
        // Without destructors: a worker may still use any object.
        std::_Exit(status);
    }
    return status;
}

} // namespace brisklet
