#pragma once

#include <ctime>
#include <mutex>
#include <vector>

namespace media {

/// The processor time of one piece of work: that of the thread that makes this object, and of all
/// threads that are started in this process from then on, such as an encoder's. Threads that exist
/// already, such as one that answers a screen reader meanwhile, do not count. Any thread.
class OwnProcessorTime final {
public:
    OwnProcessorTime();

    /// Seconds since the making. What a thread that does not count uses between the last call and
    /// its end is counted after all.
    [[nodiscard]] double seconds() const;

private:
    struct Other {
        clockid_t clock;
        /// Nanoseconds.
        long long last;
    };

    [[nodiscard]] long long others() const;

    mutable std::mutex m_mutex;
    mutable std::vector<Other> m_others;
    /// What the process had used, and those threads among it; nanoseconds.
    long long m_processStart;
    long long m_othersStart;
};

} // namespace media
