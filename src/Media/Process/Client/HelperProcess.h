#pragma once

#include "Media/FFmpeg/Descriptor.h"
#include "Media/Process/Wire/Channel.h"
#include "Media/Process/Wire/Protocol.h"
#include "Media/Threading/Guarded.h"

#include <functional>
#include <thread>

namespace media::process {

/// A process that works for the program, from when it was forked to when this is destroyed: what is
/// still running in it then is killed, since it has nothing that lasts. Any thread.
class HelperProcess {
public:
    /// `process` is a descriptor of it (pidfd), `control` its channel. Throws Error if there are
    /// too many descriptors; std::system_error.
    HelperProcess(Descriptor process, Channel control);
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;
    ~HelperProcess();

    /// Makes an object in it, and gives this end of its channel. Throws Error: decoderStopped if
    /// the process is gone, another if there are too many descriptors.
    [[nodiscard]] Descriptor makeObject(ObjectKind kind);

    /// Calls `handler` once, on a thread of this object, when the process ends by itself; at once
    /// if it has. Replaces the one before, which is not being called any more when this returns. A
    /// handler may throw std::bad_alloc there, and is called again after a moment.
    void setEndHandler(std::function<void()> handler);

    /// Ends it now. What waits for an answer of it is told that it is gone.
    void kill() noexcept;

private:
    struct End {
        std::function<void()> handler;
        bool hasEnded = false;
    };

    void watch();
    bool tellEnd();

    Descriptor m_process;
    Channel m_control;
    /// Readable once the watch is to stop (eventfd).
    Descriptor m_stopWatch;
    Guarded<End> m_end;
    // The last, so that what it uses outlives it.
    std::jthread m_watch;
};

} // namespace media::process
