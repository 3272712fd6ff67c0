#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace media::playback {

/// The threads of a player, which may have to be left behind: a thread that a disk keeps waiting
/// can't be stopped. Belongs to one thread.
class PlayerThreads {
public:
    PlayerThreads() = default;
    PlayerThreads(const PlayerThreads&) = delete;
    PlayerThreads& operator=(const PlayerThreads&) = delete;
    ~PlayerThreads() = default;

    /// `name` is what the system calls it, at most 15 characters. Throws std::system_error if the
    /// system starts no more threads.
    void start(const char* name, std::function<void(const std::stop_token&)> work);

    void requestStop();
    /// Ends the threads after requestStop(). Where they do not end soon `abandon` is called, and
    /// they are joined on a thread left behind, which keeps `owner`, that all of them use, alive
    /// until then.
    void finish(std::shared_ptr<void> owner, const std::function<void()>& abandon);

private:
    bool waitForAll();
    void joinAll();

    std::mutex m_mutex;
    std::condition_variable m_hasEnded;
    /// Guarded by the mutex.
    std::size_t m_runningCount = 0;
    // The last, so that what they use outlives them.
    std::vector<std::jthread> m_threads;
};

} // namespace media::playback
