#include "Media/Threading/OwnProcessorTime.h"

#include <charconv>
#include <filesystem>
#include <numeric>
#include <optional>
#include <string>
#include <system_error>

#include <unistd.h>

namespace media {

namespace {

constexpr long long kNanosecondsPerSecond = 1'000'000'000;

/// Linux's name for the processor clock of one thread of this process, as clock_gettime(2) takes
/// it: the inverted id, and the kind of clock (that of a thread: 4, its running time: 2).
clockid_t threadClock(pid_t thread) {
    constexpr unsigned kBitsOfKind = 3;
    constexpr unsigned kRunningTimeOfThread = 4 | 2;
    return static_cast<clockid_t>((~static_cast<unsigned>(thread) << kBitsOfKind) |
                                  kRunningTimeOfThread);
}

/// None once the thread has ended.
std::optional<long long> nanoseconds(clockid_t clock) {
    timespec time = {};
    if (::clock_gettime(clock, &time) != 0)
        return std::nullopt;
    return time.tv_sec * kNanosecondsPerSecond + time.tv_nsec;
}

/// The threads of this process but the calling one.
std::vector<pid_t> otherThreads() {
    std::vector<pid_t> threads;
    std::error_code error;
    for (std::filesystem::directory_iterator each("/proc/self/task", error), end;
         !error && each != end; each.increment(error)) {
        const std::string name = each->path().filename();
        pid_t thread = 0;
        std::from_chars(name.data(), name.data() + name.size(), thread);
        if (thread != ::gettid())
            threads.push_back(thread);
    }
    return threads;
}

} // namespace

OwnProcessorTime::OwnProcessorTime()
    : m_processStart(nanoseconds(CLOCK_PROCESS_CPUTIME_ID).value_or(0)) {
    for (const pid_t thread : otherThreads()) {
        const clockid_t clock = threadClock(thread);
        if (const auto used = nanoseconds(clock))
            m_others.push_back({clock, *used});
    }
    m_othersStart = others();
}

double OwnProcessorTime::seconds() const {
    const std::lock_guard lock(m_mutex);
    const long long others = this->others() - m_othersStart;
    const long long all = nanoseconds(CLOCK_PROCESS_CPUTIME_ID).value_or(0) - m_processStart;
    return static_cast<double>(all - others) / static_cast<double>(kNanosecondsPerSecond);
}

long long OwnProcessorTime::others() const {
    long long sum = 0;
    for (Other& other : m_others) {
        other.last = nanoseconds(other.clock).value_or(other.last);
        sum += other.last;
    }
    return sum;
}

} // namespace media
