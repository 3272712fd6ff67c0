#include "Media/Process/Client/HelperProcess.h"

#include "Media/Error.h"
#include "Media/Threading/ThreadName.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <new>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace media::process {

HelperProcess::HelperProcess(Descriptor process, Channel control)
    : m_process(std::move(process)),
      m_control(std::move(control)),
      m_stopWatch(::eventfd(0, EFD_CLOEXEC)) {
    if (!m_stopWatch.isOpen())
        throw Error(becauseOf(ErrorKind::unreadableFile, reasonOf(errno)));
    m_watch = std::jthread([this] { watch(); });
}

HelperProcess::~HelperProcess() {
    ::eventfd_write(m_stopWatch.number(), 1);
    m_watch.join();
    kill();
}

void HelperProcess::kill() noexcept {
    ::syscall(SYS_pidfd_send_signal, m_process.number(), SIGKILL, nullptr, 0);
}

Descriptor HelperProcess::makeObject(ObjectKind kind) {
    Channel::Pair ends = Channel::makePair();
    MessageWriter writer;
    writer.put(kind);
    writer.put(std::move(ends.theirs));
    if (!m_control.send(writer.message()))
        throw Error(ErrorKind::decoderStopped);
    return ends.ours.takeSocket();
}

void HelperProcess::setEndHandler(std::function<void()> handler) {
    const auto end = m_end.lock();
    end->handler = std::move(handler);
    if (end->hasEnded && end->handler)
        end->handler();
}

void HelperProcess::watch() {
    const ThreadName name("helper-watch");
    std::array<pollfd, 2> watched{pollfd{m_process.number(), POLLIN, 0},
                                  pollfd{m_stopWatch.number(), POLLIN, 0}};
    while (::poll(watched.data(), watched.size(), -1) < 0) {
        if (errno != EINTR)
            return;
    }
    if (watched[1].revents != 0)
        return;
    while (!tellEnd()) {
        constexpr int kPauseMilliseconds = 10;
        if (::poll(&watched[1], 1, kPauseMilliseconds) > 0)
            return;
    }
}

/// False if the handler had no memory for it.
bool HelperProcess::tellEnd() {
    const auto end = m_end.lock();
    end->hasEnded = true;
    try {
        if (end->handler)
            end->handler();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace media::process
