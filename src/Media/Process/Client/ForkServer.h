#pragma once

#include "Media/Process/Client/HelperProcess.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <sys/types.h>

namespace media::process {

/// The process that has loaded the engine once and forks helpers from itself, so that they share
/// its memory and start at once. Another is started in place of one that is gone, or that does not
/// answer for long. Any thread: those that want a helper take turns, without a lock held.
class ForkServer {
public:
    /// A server that does not answer for so long is taken to hang. Loading the engine takes a
    /// twentieth of a second, and many seconds from a slow disk.
    static constexpr std::chrono::milliseconds kLongestSilence{20'000};

    /// Starts it; it loads the engine meanwhile. Throws Error if it cannot be started.
    explicit ForkServer(std::filesystem::path program,
                        std::chrono::milliseconds longestSilence = kLongestSilence);
    ForkServer(const ForkServer&) = delete;
    ForkServer& operator=(const ForkServer&) = delete;
    /// Ends it and its helpers. Those of one that was replaced live on.
    ~ForkServer();

    /// A new helper. Waits until the engine is loaded. Throws Error: if the installation is
    /// incomplete or was updated meanwhile, if the system starts no more processes, or if there
    /// are too many descriptors. Throws Cancelled when stopped.
    [[nodiscard]] std::shared_ptr<HelperProcess> fork(const std::stop_token& stop = {});

private:
    struct Server {
        std::optional<Channel> channel;
        pid_t process = 0;
        /// It has said that it is of this program's build.
        bool isKnown = false;
        /// Who asked for these did not wait.
        int unreadAnswers = 0;
    };

    class Turn;

    void start();
    void giveUp();
    bool meet(const std::stop_token& stop);
    bool skipUnread(const std::stop_token& stop);
    std::shared_ptr<HelperProcess> ask(const std::stop_token& stop);
    std::optional<Message> answer(const std::stop_token& stop);

    const std::filesystem::path m_program;
    const std::chrono::milliseconds m_longestSilence;
    std::mutex m_mutex;
    std::condition_variable_any m_isFree;
    /// Guarded by the mutex.
    bool m_isTaken = false;
    /// Of the thread whose turn it is.
    Server m_server;
};

} // namespace media::process
