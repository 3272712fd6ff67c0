#pragma once

#include "Media/Threading/ThreadAffinity.h"

#include <array>

namespace media {

/// The calling thread's name, as `top -H` and debuggers show it, for as long as this lives. Threads
/// that are started meanwhile keep it, also those of libraries that give theirs none.
///
/// One thread, as a local variable.
class ThreadName final {
public:
    /// At most 15 bytes (Linux's TASK_COMM_LEN without the end); a longer one has no effect.
    explicit ThreadName(const char* name) noexcept;
    ThreadName(const ThreadName&) = delete;
    ThreadName& operator=(const ThreadName&) = delete;
    /// The name before.
    ~ThreadName();

private:
    ThreadAffinity m_thread;
    std::array<char, 16> m_before{};
};

} // namespace media
