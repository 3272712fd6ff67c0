#include "Platform/TerminationSignals.h"

#include "Support/MainThread.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace brisklet {

namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

/// The end of the one instance's pipe that the signal handler writes to.
volatile std::sig_atomic_t writeEnd = -1;

extern "C" void noteRequest(int signal) {
    const int savedError = errno;
    const char note = 0;
    // A failure cannot be handled here.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &note, 1);
    std::signal(signal, SIG_DFL);
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
    verifyMainThread();
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        char note = 0;
        while (::read(m_readEnd, &note, 1) == 1) {
        }
        Q_EMIT requested();
    });
    for (const int signal : kSignals) {
        if (std::signal(signal, noteRequest) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
}

TerminationSignals::~TerminationSignals() {
    verifyMainThread();
    if (m_readEnd < 0)
        return;
    for (const int signal : kSignals) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
    m_notifier.reset();
    ::close(m_readEnd);
    ::close(writeEnd);
}

} // namespace brisklet
