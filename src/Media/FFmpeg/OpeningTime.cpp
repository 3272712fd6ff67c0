#include "Media/FFmpeg/OpeningTime.h"

#include "Media/Error.h"

#include <algorithm>
#include <atomic>
#include <ctime>
#include <utility>

namespace media::ffmpeg {

namespace {

using std::chrono::nanoseconds;

thread_local OpeningTime* current = nullptr;

/// A lone number: its order to anything else does not matter.
std::atomic<nanoseconds::rep> usualLimit = nanoseconds(OpeningTime::kUsualLimit).count();

nanoseconds processorTime(clockid_t clock) {
    timespec time = {};
    ::clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

} // namespace

OpeningTime::OpeningTime()
    : m_outer(std::exchange(current, this)),
      m_limit(usualLimit.load(std::memory_order_relaxed)),
      m_start(processorTime(CLOCK_THREAD_CPUTIME_ID)) {}

OpeningTime::~OpeningTime() {
    current = m_outer;
}

nanoseconds OpeningTime::used() const {
    return processorTime(CLOCK_THREAD_CPUTIME_ID) - m_start + m_others;
}

bool OpeningTime::isUsedUp() {
    return current != nullptr && current->used() >= current->m_limit;
}

void OpeningTime::expectLeft() {
    if (isUsedUp())
        throw Error(ErrorKind::noPictureDecodable);
}

void OpeningTime::setLimit(nanoseconds limit) {
    usualLimit.store(limit.count(), std::memory_order_relaxed);
}

OpeningTime::Decoding::Decoding()
    : m_process(processorTime(CLOCK_PROCESS_CPUTIME_ID)),
      m_thread(processorTime(CLOCK_THREAD_CPUTIME_ID)) {}

/// No more than the time that has passed, since the rest of the process may be busy too.
OpeningTime::Decoding::~Decoding() {
    if (current == nullptr)
        return;
    const nanoseconds passed = std::chrono::steady_clock::now() - m_start;
    const nanoseconds process = processorTime(CLOCK_PROCESS_CPUTIME_ID) - m_process;
    const nanoseconds own = processorTime(CLOCK_THREAD_CPUTIME_ID) - m_thread;
    current->m_others += std::max(std::min(passed, process) - own, nanoseconds(0));
}

} // namespace media::ffmpeg
