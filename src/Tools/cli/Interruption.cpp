#include "Tools/cli/Interruption.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <system_error>
#include <unistd.h>

namespace brisklet::cli {

Interruption::Interruption() {
    // Shells start background jobs with SIGINT ignored; here it is always handled.
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, SIG_DFL);
    // A reader that closes the pipe must not kill the process before it has cleaned up.
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&set, signal);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    m_signals = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    m_end = ::eventfd(0, EFD_CLOEXEC);
    if (m_signals < 0 || m_end < 0)
        throw std::system_error(errno, std::generic_category());
    m_thread = std::jthread([this] { watch(); });
}

Interruption::~Interruption() {
    ::eventfd_write(m_end, 1);
    m_thread.join();
    ::close(m_signals);
    ::close(m_end);
}

void Interruption::watch() {
    std::array<pollfd, 2> events{{{m_end, POLLIN, 0}, {m_signals, POLLIN, 0}}};
    for (;;) {
        if (::poll(events.data(), events.size(), -1) < 0 && errno != EINTR)
            return;
        if (events[0].revents)
            return;
        signalfd_siginfo signal = {};
        if (events[1].revents && ::read(m_signals, &signal, sizeof signal) > 0)
            m_stop.request_stop();
    }
}

} // namespace brisklet::cli
