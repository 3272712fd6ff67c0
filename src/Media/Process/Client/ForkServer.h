#pragma once

#include "Media/Process/Client/HelperProcess.h"
#include "Media/Threading/Guarded.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <sys/types.h>

namespace media::process {

/// The process that has loaded the engine once and forks helpers from itself, so that they share
/// its memory and start at once. Another is started in place of one that is gone, or that does not
/// answer for long. Any thread.
class ForkServer {
public:
    /// Starts it; it loads the engine meanwhile. Throws Error if it cannot be started.
    explicit ForkServer(std::filesystem::path program);
    ForkServer(const ForkServer&) = delete;
    ForkServer& operator=(const ForkServer&) = delete;
    /// Ends it. Its helpers live on.
    ~ForkServer();

    /// A new helper. Waits until the engine is loaded. Throws Error: if the installation is
    /// incomplete or was updated meanwhile, if the system starts no more processes, or if there
    /// are too many descriptors.
    [[nodiscard]] std::shared_ptr<HelperProcess> fork();

private:
    struct Server {
        std::optional<Channel> channel;
        pid_t process = 0;
        /// It has said that it is of this program's build.
        bool isKnown = false;
    };

    void start(Server& server) const;
    static bool meet(Server& server);
    static void giveUp(Server& server);
    static std::optional<Message> answerOf(Server& server);
    static std::shared_ptr<HelperProcess> ask(Server& server);

    std::filesystem::path m_program;
    Guarded<Server> m_server;
};

} // namespace media::process
