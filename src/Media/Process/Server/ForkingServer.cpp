#include "Media/Process/Server/HelperMain.h"
#include "Media/Process/Server/NumaNodes.h"
#include "Media/Process/Wire/Channel.h"

#include <cerrno>
#include <csignal>
#include <optional>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace media::process {

namespace {

/// glibc has no function for it before 2.36.
Descriptor openProcess(pid_t process) {
    return Descriptor(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
}

/// Lets the children that have ended go.
void reap() {
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
}

/// A descriptor of the new process; none if the system starts no more.
std::optional<Descriptor> forkHelper(Channel& server, Descriptor socket) {
    const pid_t process = ::fork();
    if (process < 0)
        return std::nullopt;
    if (process == 0) {
        static_cast<void>(server.takeSocket());
        ::signal(SIGCHLD, SIG_DFL);
        serveProgram(std::move(socket));
    }
    Descriptor opened = openProcess(process);
    if (!opened.isOpen())
        return std::nullopt;
    return opened;
}

} // namespace

void serveForks(Descriptor socket) {
    Channel channel(std::move(socket));
    learnNumaNodes();
    // So that a child that ends interrupts the wait below, and is let go at once.
    struct sigaction action = {};
    action.sa_handler = [](int) {
        const int before = errno;
        reap();
        errno = before;
    };
    action.sa_flags = SA_RESTART | SA_NOCLDSTOP;
    ::sigaction(SIGCHLD, &action, nullptr);
    while (auto message = channel.receive()) {
        MessageReader reader(std::move(*message));
        // A child that ended before it was opened would be gone, and its number another’s.
        sigset_t child;
        sigset_t before;
        sigemptyset(&child);
        sigaddset(&child, SIGCHLD);
        ::pthread_sigmask(SIG_BLOCK, &child, &before);
        auto helper = forkHelper(channel, reader.getDescriptor());
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
        MessageWriter answer;
        answer.put(static_cast<std::uint8_t>(helper ? 1 : 0));
        if (helper)
            answer.put(std::move(*helper));
        if (!channel.send(answer.message()))
            return;
    }
}

} // namespace media::process
